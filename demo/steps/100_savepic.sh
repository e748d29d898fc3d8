#!/usr/bin/env bash
# Picture export: the first sector figure and the first native formula of the
# worksheet saved as JPEG pictures beside it.
set -euo pipefail
config="$(mktemp -u).db"
trap 'rm -f "$config"' EXIT
out="$(dirname "$DOC")"
run() { "$LP" savepic --doc "$DOC" --config "$config" "$@" --click cmdOK --click cmdExit > /dev/null 2>&1; }
run --select-shape "扇形" --set txtFile="$out/sector.jpg" --set txtDpi=200
run --select $'\x01' --set txtFile="$out/formula.jpg" --set txtDpi=300
