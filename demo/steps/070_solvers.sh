#!/usr/bin/env bash
# Worked solutions typed by the solver dialogs at their markers: an inequality
# with its set and number line, a linear and a quadratic equation (the delta
# from the program's own font, embedded in the document), permutations and
# combinations; then one number line with three intervals from its dialog.
set -euo pipefail
config="$(mktemp -u).db"
trap 'rm -f "$config"' EXIT
run() { "$LP" "$1" --doc "$DOC" --config "$config" --select "$2" "${@:3}"; }
run inequality "【解不等式】" --set Text1='3x+1>2x-1' --set chkSet=1 --set chkNumberAxis=1 \
  --click cmdInsert
run equation "【一次方程】" --set txtL_Equation='2(x-1)=x+3' --click cmdInsert_L --click cmdCancel_L
run equation "【二次方程】" --set txtQ_Equation='x^2-5x+6=0' --click cmdInsert_Q --click cmdCancel_Q
"$LP" a_c --doc "$DOC" --config "$config" --caret "【排列】" --set txtM=2 --set txtN=5 --set Check1=1 --click cmdInsert --click cmdCancel
"$LP" a_c --doc "$DOC" --config "$config" --caret "【组合】" --set optA_1=1 --set txtM=2 --set txtN=5 --set Check1=1 --click cmdInsert \
  --click cmdCancel
"$LP" interval --doc "$DOC" --config "$config" --caret "【数轴】" --set txtLengthOfAxis=8 \
  --set txtXmin=-5 --set txtXmax=5 --set optLessThanA=1 --set txtA=-3 --click cmdOK \
  --set optBTaNBTb=1 --set txtA=-2 --set txtB=1 --click cmdOK --set optNoLessThanA=1 --set txtA=3 \
  --click cmdOK --click cmdCancel
