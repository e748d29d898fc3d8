#!/usr/bin/env bash
# A labelled sector of 120 degrees and an annulus sector, each one group at
# its caret.
set -euo pipefail
config="$(mktemp -u).db"
trap 'rm -f "$config"' EXIT
run() { "$LP" "$@" --doc "$DOC" --config "$config"; }
run sector --caret "【扇形】" --set txtR=1.5 --set txtAngle=120 --set txtLabel=120° --click cmdOK \
  --click cmdExit
run sector --caret "【扇环】" --set optKind_2=1 --set txtR=1.5 --set txtR2=0.8 --set txtAngle=240 \
  --set txtLabel= --set chkMark=0 --click cmdOK --click cmdExit
