#!/usr/bin/env bash
# A lettered point and a row of points along a segment, each one group at
# its caret.
set -euo pipefail
config="$(mktemp -u).db"
trap 'rm -f "$config"' EXIT
run() { "$LP" "$@" --doc "$DOC" --config "$config"; }
run dot --caret "【标点】" --set txtNames=O --set optPlace_6=1 --click cmdOK --click cmdExit
run dot --caret "【线段上的点】" --set optMode_1=1 --set txtNames="A B" --set txtCount=4 \
  --set txtLength=4 --set optPlace_1=1 --click cmdOK --click cmdExit
