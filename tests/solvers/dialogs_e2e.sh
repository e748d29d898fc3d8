#!/usr/bin/env bash
# dialogs_e2e.sh LUMENPAD: the solver dialogs and the number line driven
# headless on a .docx; what they type is read back from word/document.xml.
set -euo pipefail
lp="$1"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
export QT_QPA_PLATFORM=offscreen
fail() { echo "FAIL: $*" >&2; exit 1; }
body() { unzip -p "$1" word/document.xml; }
has() { [[ "$(body "$1")" == *"$2"* ]] || fail "$(basename "$1") lacks $2"; }
run() { "$lp" "$1" --doc "$work/$2.docx" --config "$work/config.db" "${@:3}"; }

run inequality ineq --set Text1='-2x<4' --set chkSet=1 --click cmdInsert --click cmdCancel
has "$work/ineq.docx" '<w:t xml:space="preserve"> x&gt;-2</w:t>'
has "$work/ineq.docx" '(-2，+∞)'
run inequality line --set Text1='3x+1>2x-1' --set chkNumberAxis=1 --click cmdInsert
has "$work/line.docx" '区间：'
has "$work/line.docx" '<wpg:wgp>'

run equation quad --set txtQ_Equation='x^2-2=0' --click cmdInsert_Q --click cmdCancel_Q
has "$work/quad.docx" '由求根公式可得：'
has "$work/quad.docx" 'EQ -\r(,2)'
has "$work/quad.docx" 'w:font="lumenpad" w:char="F044"'
[[ "$(unzip -l "$work/quad.docx")" == *word/fonts/font1.odttf* ]] || fail "the font is not embedded"
run equation refused --set txtQ_Equation='2x+1=0' --click cmdInsert_Q --click cmdCancel_Q \
  --answer ok > /dev/null
[[ ! -e "$work/refused.docx" || "$(body "$work/refused.docx")" != *解：* ]] ||
  fail "a refused equation typed something"

"$lp" a_c --doc "$work/ac.docx" --config "$work/config.db" --set optA_1=1 --set txtM=2 \
  --set txtN=5 --set Check1=1 --click cmdInsert --click cmdCancel
has "$work/ac.docx" 'eq \o(\s\up 5(2),\s\do 3(5))'
has "$work/ac.docx" '=10'

run interval axis --set txtXmin=-5 --set txtXmax=2.5 --set optNLTaNBTb=1 --set txtA=-1 \
  --set txtB=2 --click cmdOK --set optBigThanA=1 --set txtA=0.5 --click cmdOK --click cmdCancel
has "$work/axis.docx" '区间：'
record="$(sqlite3 "$work/config.db" "select data from record where id=9")"
[[ "$record" == '-5@@2.5@@5@@ 0@@0@@0@@0' ]] || fail "record 9: $record"
echo "ok: solver dialogs typed their solutions"
