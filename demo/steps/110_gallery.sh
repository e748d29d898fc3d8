#!/usr/bin/env bash
# The figure gallery: one of its seed figures, a circle with its centre on
# coordinate axes, inserted at the caret.
set -euo pipefail
config="$(mktemp -u).db"
trap 'rm -f "$config"' EXIT
"$LP" tk --doc "$DOC" --config "$config" --caret "【图库】" --set lstFigures=4 --click cmdInsert \
  --click cmdExit
