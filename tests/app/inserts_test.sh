#!/usr/bin/env bash
# inserts_test.sh CHECK LUMENPAD: the small buttons end to end on a temporary
# .docx: the fields they leave, what they refuse, and shapes put side by side.
set -euo pipefail
check="$1" lp="$2"
here="$(cd "$(dirname "$0")" && pwd)"
. "$here/common.sh"
dump() { python3 "$here/docx_dump.py" text "$1"; }
# Each top-level figure as "left width", in the order of the document.
lefts_and_widths() {
  unzip -p "$1" word/document.xml | python3 -c '
import re, sys
for a in re.findall(r"<wp:anchor.*?</wp:anchor>", sys.stdin.read()):
    left = re.search(r"<wp:positionH[^>]*><wp:posOffset>(-?\d+)", a).group(1)
    width = re.search(r"<wp:extent cx=\"(\d+)\"", a).group(1)
    print(left, width)'
}

case "$check" in
fields)
  seed t.docx "分数：3/4　根式：3/27" "弧：MN　向量：PQ" "方程组：x+2y=4，3x-y=5" \
    "循环小数：0.1/23，0.1/234，0./3"
  for pair in "fraction 3/4" "radicalexpression 3/27" "hu MN" "xl PQ" "fcz x+2y=4，3x-y=5" \
    "recurringdecimal 0.1/23" "recurringdecimal 0.1/234" "recurringdecimal 0./3"; do
    read -r word text <<< "$pair"
    run "$word" --doc t.docx --select "$text" || fail "$word on $text"
  done
  expected='分数：{ EQ \F(3,4)}　根式：{ EQ \r(3,27)}
弧：{ EQ \o\ac(\S\UP7(⌒),MN)}　向量：{ EQ \o\ac(\S\UP7(→),PQ)}
方程组：{ EQ \B\lc\{(\a\al(x＋2y＝4,3x－y＝5))}
循环小数：{ eq 0.1\o(\s\up 3(˙),2)\o(\s\up 3(˙),3)}，{ eq 0.1\o(\s\up 3(˙),2)3\o(\s\up 3(˙),4)}，{ eq 0.\o(\s\up 3(˙),3)}'
  [[ "$(dump t.docx)" == "$expected" ]] || fail "fields: $(dump t.docx)"
  ;;
refused)
  seed t.docx "循环小数：0.5/ 与 12.5" "没有斜线的分数：abc"
  before="$(dump t.docx)"
  out="$(run recurringdecimal --doc t.docx --select "0.5/" 2>&1)"
  [[ "$out" == *"没有循环小数部分,程序退出"* ]] || fail "no message for 0.5/: $out"
  out="$(run recurringdecimal --doc t.docx --select "12.5" 2>&1)"
  [[ "$out" == *'没有"/"符号,无法确定循环小数部分'* ]] || fail "no message without slash: $out"
  out="$(run fraction --doc t.docx --select "abc" 2>&1)"
  [[ "$out" == *"没有“/”符号，不能区分分子和分母，请重新选择！"* ]] ||
    fail "no message for a fraction without slash: $out"
  out="$(run join_lr --doc t.docx 2>&1)"
  [[ "$out" == *"您选择的少于两个对象，无法拼接！"* ]] || fail "no message for nothing to join: $out"
  [[ "$(dump t.docx)" == "$before" ]] || fail "a refusal changed the text: $(dump t.docx)"
  ;;
join)
  seed t.docx "三个扇形并排：【图】"
  run sector --doc t.docx --caret "【图】" --set txtR=0.8 --set txtAngle=90 --set txtLabel= \
    --click cmdOK --click cmdExit
  run sector --doc t.docx --set optKind_1=1 --set txtAngle=180 --click cmdOK --click cmdExit
  run sector --doc t.docx --set optKind_2=1 --set txtR2=0.4 --set txtAngle=270 --click cmdOK \
    --click cmdExit
  names="$(unzip -p t.docx word/document.xml | grep -o '<wp:docPr [^>]*name="[^"]*"' |
    sed 's/.*name="//; s/"$//' | paste -sd,)"
  [[ "$(tr ',' '\n' <<< "$names" | wc -l)" == 3 ]] || fail "expected three figures: $names"
  run join_lr --doc t.docx --select-shape "$names"
  # Each figure starts where the one before it ends.
  lefts_and_widths t.docx | awk '
    NR > 1 && $1 != left + width { bad = 1; print "figure " NR " at " $1 ", not " left + width }
    { left = $1; width = $2 }
    END { exit bad }' || fail "figures not side by side: $(lefts_and_widths t.docx | tr '\n' ' ')"
  ;;
render)
  # Each insert beside the same formula typed through gs, both turned into
  # native equations by the batch runner: the pairs must come out alike, and
  # LibreOffice, which shows no EQ field, lays the page out.
  type -P soffice > /dev/null || { echo "SKIP: no LibreOffice"; exit 77; }
  mkdir folder
  seed folder/t.docx "分数：3/4　公式：3/4" "根式：3/27　公式：g(3,27)" "弧：MN　公式：hu(MN)" \
    "向量：PQ　公式：xl(PQ)" "方程组：x+2y=4，3x-y=5　公式：fcz(x+2y=4,3x-y=5)"
  for pair in "fraction 3/4" "gs 3/4" "radicalexpression 3/27" "gs g(3,27)" "hu MN" "gs hu(MN)" \
    "xl PQ" "gs xl(PQ)" "fcz x+2y=4，3x-y=5" "gs fcz(x+2y=4,3x-y=5)"; do
    read -r word text <<< "$pair"
    run "$word" --doc folder/t.docx --select "$text" || fail "$word on $text"
  done
  seed host.docx "批量处理"
  run bat --doc host.docx --set "txtFolder=$work/folder" --set txtFile=docx --set SSTab1=1 \
    --set chkEqToOmml=1 --click cmdOK > /dev/null
  unzip -p folder/t.docx word/document.xml | python3 -c '
import re, sys
pairs = [re.findall(r"<m:oMath>.*?</m:oMath>", p) for p in re.findall(r"<w:p[ >].*?</w:p>", sys.stdin.read())]
plain = lambda m: re.sub(r"<m:rPr>.*?</m:rPr>|<w:rPr>.*?</w:rPr>", "", m)
bad = [i + 1 for i, p in enumerate(pairs) if len(p) != 2 or plain(p[0]) != plain(p[1])]
sys.exit("lines whose insert and formula differ: %s" % bad if bad else 0)' || fail "insert and formula differ"
  soffice --headless --convert-to pdf --outdir "$work" folder/t.docx > /dev/null 2>&1
  [[ -s t.pdf ]] || fail "LibreOffice made no page"
  ;;
*)
  fail "unknown check $check"
  ;;
esac
