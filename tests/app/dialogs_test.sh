#!/usr/bin/env bash
# dialogs_test.sh CHECK LUMENPAD: the small insertion dialogs end to end on a
# temporary .docx, judged from the fields the document holds.
set -euo pipefail
check="$1" lp="$2"
here="$(cd "$(dirname "$0")" && pwd)"
. "$here/common.sh"
dump() { python3 "$here/docx_dump.py" text "$1"; }

case "$check" in
angle2radian)
  seed t.docx "弧度：【角】" "角度：【度】"
  run angle2radian --doc t.docx --select "【角】" --set txtDu=1 --set txtFen=30 --click cmdOK \
    --click cmdExit
  # The state came back: the direction is switched and the degrees stay typed.
  run angle2radian --doc t.docx --select "【度】" --set optDir_1=1 --set txtRad=3π/4 --click cmdOK \
    --click cmdExit
  [[ "$(dump t.docx)" == $'弧度：{ EQ \\F(p,120)}\n角度：{ EQ 135°}' ]] || fail "fields: $(dump t.docx)"
  cp t.docx before.docx
  out="$(run angle2radian --doc t.docx --set txtRad=3π4 --click cmdOK --click cmdExit 2>&1)"
  [[ "$out" == *"请把弧度写成 kπ/n 的形式"* ]] || fail "no message: $out"
  cmp -s t.docx before.docx || fail "a refused angle changed the document"
  [[ "$(sqlite3 "$db" 'select Data from record where id=11')" == "1@@1@@30@@@@3π4" ]] ||
    fail "slot: $(sqlite3 "$db" 'select Data from record where id=11')"
  ;;
sector)
  seed t.docx "扇形：【图】"
  run sector --doc t.docx --set optKind_1=1 --set txtR=3 --set txtAngle=90 --set txtLabel= \
    --click cmdExit
  cp t.docx before.docx
  out="$(run sector --doc t.docx --set txtAngle=400 --click cmdOK --click cmdExit 2>&1)"
  [[ "$out" == *"圆心角应大于 0° 且不超过 360°"* ]] || fail "no message: $out"
  cmp -s t.docx before.docx || fail "a refused angle changed the document"
  # The remembered arc of radius 3 cm and 90 degrees, with its two radii.
  run sector --doc t.docx --select "【图】" --set txtAngle=90 --click cmdOK --click cmdExit
  python3 "$here/figure_dump.py" t.docx > shapes.tsv
  python3 - <<'PY'
rows = [line.rstrip("\n").split("\t") for line in open("shapes.tsv", encoding="utf-8")]
assert {r[0] for r in rows} == {"扇形"}, rows
names = sorted(r[1] for r in rows)
assert names == ["半径", "半径", "弧", "角标"], names
arc = [r for r in rows if r[1] == "弧"][0]
assert abs(float(arc[5]) - 3 * 28.4) < 0.1 and abs(float(arc[6]) - 3 * 28.4) < 0.1, arc
PY
  # A filled sector shows its light grey, not the white of an unfilled outline.
  seed f.docx "扇形：【图】"
  run sector --doc f.docx --select "【图】" --set optKind_0=1 --set chkFill=1 --click cmdOK \
    --click cmdExit
  unzip -p f.docx word/document.xml | grep -q '<a:solidFill><a:srgbClr val="D9D9D9"/>' ||
    fail "the filled sector has no grey fill"
  ;;
fangge)
  seed t.docx "田字格：【图】"
  out="$(run fangge --doc t.docx --set txtRows=0 --click cmdOK --click cmdExit 2>&1)"
  [[ "$out" == *"行数应是 1 到 60 之间的整数"* ]] || fail "no message: $out"
  run fangge --doc t.docx --select "【图】" --set txtRows=2 --set txtSize=1.5 --click cmdOK \
    --click cmdExit
  python3 "$here/figure_dump.py" t.docx > shapes.tsv
  python3 - <<'PY'
rows = [line.rstrip("\n").split("\t") for line in open("shapes.tsv", encoding="utf-8")]
assert {r[0] for r in rows} == {"方格"}, rows
grid = [r for r in rows if r[1] == "格线"]
middle = [r for r in rows if r[1] == "中线"]
# The seeded page leaves 451.3 pt between the margins: 10 cells of 42.6 pt.
assert len(grid) == 3 + 11 and len(middle) == 2 + 10, (len(grid), len(middle))
assert abs(max(float(r[3]) + float(r[5]) for r in grid) - 10 * 1.5 * 28.4) < 0.1
PY
  [[ "$(sqlite3 "$db" 'select Data from record where id=10')" == "0@@1@@0@@0@@2@@1.5" ]] ||
    fail "slot: $(sqlite3 "$db" 'select Data from record where id=10')"
  ;;
dot)
  seed t.docx "线段：【图】"
  cp t.docx before.docx
  out="$(run dot --doc t.docx --set txtNames=AB --click cmdOK --click cmdExit 2>&1)"
  [[ "$out" == *"点的名称“AB”不对"* ]] || fail "no message: $out"
  cmp -s t.docx before.docx || fail "a refused name changed the document"
  run dot --doc t.docx --set optMode_1=1 --set txtNames="P1'" --set txtCount=4 --set txtLength=3 \
    --set optPlace_1=1 --click cmdExit
  [[ "$(sqlite3 "$db" 'select Data from record where id=4')" == "1@@P1'@@4@@3@@1@@1@@0@@0@@10.5" ]] ||
    fail "slot: $(sqlite3 "$db" 'select Data from record where id=4')"
  # The remembered row: four points 1 cm apart, named on from P1'.
  run dot --doc t.docx --select "【图】" --click cmdOK --click cmdExit
  python3 "$here/figure_dump.py" t.docx > shapes.tsv
  python3 - <<'PY'
rows = [line.rstrip("\n").split("\t") for line in open("shapes.tsv", encoding="utf-8")]
assert {r[0] for r in rows} == {"标点"}, rows
assert [r[7] for r in rows if r[1] == "点名"] == ["P1′", "P2′", "P3′", "P4′"], rows
dots = sorted(float(r[3]) for r in rows if r[1] == "点")
assert len(dots) == 4 and all(abs(b - a - 28.4) < 0.05 for a, b in zip(dots, dots[1:])), dots
assert len([r for r in rows if r[1] == "线段"]) == 1, rows
PY
  ;;
shapeselecter)
  seed t.docx "流程图：【图】"
  out="$(run shapeselecter --doc t.docx --click cmdOK --click cmdExit 2>&1)"
  [[ "$out" == *"本页没有所选类型的图形"* ]] || fail "no message on an empty page: $out"
  run wbk_y --doc t.docx
  run wbk_n --doc t.docx
  run sector --doc t.docx --click cmdOK --click cmdExit
  out="$(run shapeselecter --doc t.docx --set chkLine=0 --click cmdOK --click cmdExit 2>&1)"
  [[ "$out" == *"请至少选择一种图形"* ]] || fail "no message without a kind: $out"
  # The text boxes are there to be selected: the dialog closes without a word.
  out="$(run shapeselecter --doc t.docx --set chkTextBox=1 --click cmdOK 2>&1)"
  [[ -z "$out" ]] || fail "selecting the text boxes: $out"
  [[ "$(sqlite3 "$db" 'select Data from record where id=15')" == "0@@0@@1@@0@@0@@0" ]] ||
    fail "slot: $(sqlite3 "$db" 'select Data from record where id=15')"
  # Several shapes selected by name together are what group takes in.
  run group --doc t.docx --select-shape "Text Box 1,Text Box 2"
  python3 "$here/figure_dump.py" t.docx > shapes.tsv
  python3 - <<'PY'
rows = [line.rstrip("\n").split("\t") for line in open("shapes.tsv", encoding="utf-8")]
boxes = {r[0] for r in rows if r[1].startswith("Text Box")}
assert len(boxes) == 1 and boxes.pop().startswith("Group"), rows
assert {r[0] for r in rows if not r[1].startswith("Text Box")} == {"扇形"}, rows
PY
  ;;
kt)
  seed t.docx "流程图：【图】"
  cp t.docx before.docx
  out="$(run kt --doc t.docx --set txtSteps=$'x=1\n否：y=2' --click cmdOK --click cmdExit 2>&1)"
  [[ "$out" == *"“否：”一行应紧跟在判断框"* ]] || fail "no message: $out"
  cmp -s t.docx before.docx || fail "refused steps changed the document"
  run kt --doc t.docx --set txtSteps=$'输入 n\nn>100？\n否：n=n+1\n输出 n' --set optYN_1=1 \
    --set chkJoin=0 --click cmdExit
  [[ "$(sqlite3 "$db" 'select Data from record where id=14')" == $'输入 n\nn>100？\n否：n=n+1\n输出 n@@1@@3@@1@@0' ]] ||
    fail "slot: $(sqlite3 "$db" 'select Data from record where id=14')"
  # The remembered steps: every connector attached at both ends, on the
  # connection sites computed from each shape's own geometry.
  run kt --doc t.docx --select "【图】" --click cmdOK --click cmdExit
  python3 "$here/connector_check.py" t.docx > links.txt
  [[ "$(cat links.txt)" == $'开始@3 -> 输入 n@1\n输入 n@3 -> n>100？@1\nn>100？@4 -> n=n+1@2\nn>100？@3 -> 输出 n@1\n输出 n@3 -> 结束@1' ]] ||
    fail "connectors: $(cat links.txt)"
  python3 "$here/figure_dump.py" t.docx > shapes.tsv
  [[ "$(awk -F'\t' '$2 == "是否" {print $8}' shapes.tsv | sort | tr -d '\n')" == NY ]] ||
    fail "Y/N labels: $(cat shapes.tsv)"
  # An if-else: the "否" step comes back beside the step after the "是" step.
  seed f.docx "流程图：【图】"
  run kt --doc f.docx --select "【图】" --set txtSteps=$'x≥0？\n否：y=-x\ny=x\n输出 y' \
    --set chkJoin=1 --click cmdOK --click cmdExit
  python3 "$here/connector_check.py" f.docx > links.txt
  grep -qx '输出 y@4 -> y=-x@3' links.txt || fail "no way back from 否: $(cat links.txt)"
  ;;
*)
  fail "unknown check $check"
  ;;
esac
