#!/usr/bin/env bash
# Two rows of 田字格 across the text width, one group at its caret.
set -euo pipefail
config="$(mktemp -u).db"
trap 'rm -f "$config"' EXIT
"$LP" fangge --doc "$DOC" --config "$config" --caret "【田字格】" --set optKind_1=1 --set txtRows=2 \
  --set txtSize=1.5 --click cmdOK --click cmdExit
