#!/usr/bin/env bash
# The figure gallery: its first two seed figures, the coordinate axes and a
# circle with its centre, inserted one after the other at the caret.
set -euo pipefail
config="$(mktemp -u).db"
trap 'rm -f "$config"' EXIT
"$LP" tk --doc "$DOC" --config "$config" --caret "【图库】" --set lstFigures=0 --click cmdInsert \
  --set lstFigures=4 --click cmdInsert --click cmdExit
