#!/usr/bin/env bash
# The small buttons over selected text: a fraction, a radical, an arc, a
# vector, a system and recurring decimals; then three sectors drawn at one
# caret and put side by side, all three selected as with shift-clicks.
set -euo pipefail
config="$(mktemp -u).db"
trap 'rm -f "$config"' EXIT
run() { "$LP" "$@" --doc "$DOC" --config "$config"; }
for pair in "fraction 3/4" "radicalexpression 3/27" "hu MN" "xl PQ" "fcz x+2y=4，3x-y=5" \
  "recurringdecimal 0.1/23" "recurringdecimal 0.1/234" "recurringdecimal 0./3"; do
  read -r word text <<< "$pair"
  run "$word" --select "$text"
done

run sector --caret "【并排】" --set txtR=0.8 --set txtAngle=90 --set txtLabel= --click cmdOK \
  --click cmdExit
run sector --set optKind_1=1 --set txtAngle=180 --click cmdOK --click cmdExit
run sector --set optKind_2=1 --set txtR2=0.4 --set txtAngle=270 --click cmdOK --click cmdExit
# The last three figures of the worksheet are the ones just drawn.
names="$(unzip -p "$DOC" word/document.xml | grep -o '<wp:docPr [^>]*name="[^"]*"' |
  sed 's/.*name="//; s/"$//' | tail -n 3 | paste -sd,)"
run join_lr --select-shape "$names"
