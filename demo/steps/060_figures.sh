#!/usr/bin/env bash
# A segment diagram, two column calculations, a relative-frequency histogram
# and a pie chart, each made through its dialog or its button and inserted as
# one group at its caret: the carets are blanks of different widths.
set -euo pipefail
config="$(mktemp -u).db"
trap 'rm -f "$config"' EXIT
run() { "$LP" "$@" --doc "$DOC" --config "$config"; }
run xdt --select $'\u2004' --set txtLen_0=10 --set txtBL=3：2 --click cmdOK --click cmdExit
# Nothing with an operator is selected: the input box asks for the sum.
run shushi --select $'\u2005' --answer "125*24"
run shushi --select $'\u2006' --answer "986/17"
run zft --select $'\u2007' --set optZFT_1=1 --set txtData=2,5,12,10,5 --set txtChuZhi=50 \
  --set txtTextX=成绩 --click cmdOK_0 --click cmdOK_1
run sxt --select $'\u2008' --set chkColor=1 --set optColor_1=1 --click cmdOK_0 --click cmdOK_1
