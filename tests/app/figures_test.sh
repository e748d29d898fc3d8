#!/usr/bin/env bash
# figures_test.sh CHECK LUMENPAD: one end-to-end check of a figure tool on a
# temporary .docx, judged from the shapes the document holds.
set -euo pipefail
check="$1" lp="$2"
here="$(cd "$(dirname "$0")" && pwd)"
. "$here/common.sh"
shapes() { python3 "$here/figure_dump.py" "$1"; }
# judge FILE PYTHON: runs the check with rows = the shapes of FILE as lists.
judge() {
  shapes "$1" > shapes.tsv
  python3 - "$2" <<'PY'
import sys
rows = [line.rstrip("\n").split("\t") for line in open("shapes.tsv", encoding="utf-8")]
def num(row, i): return float(row[i])
def named(base): return [r for r in rows if r[1] == base]
def starting(prefix): return [r for r in rows if r[1].startswith(prefix)]
exec(sys.argv[1])
PY
}

case "$check" in
segment)
  seed t.docx "线段图：【图】"
  run xdt --doc t.docx --select "【图】" --set txtBL=2：1：1 --click cmdOK --click cmdExit
  judge t.docx '
assert {r[0] for r in rows} == {"区间"}, rows
ticks = sorted(num(r, 3) for r in starting("线段竖线"))
assert len(ticks) == 4 and len(starting("线段横线")) == 3, rows
u = 8 * 28.4 / 4
assert all(abs((t - ticks[0]) - k * u) < 0.05 for t, k in zip(ticks, (0, 2, 3, 4))), ticks
'
  ;;
segment_state)
  seed t.docx "线段图：【图】"
  run xdt --doc t.docx --set optDF=1 --set txtDF=5 --set txtLen_0=10 --click cmdExit
  run xdt --doc t.docx --select "【图】" --click cmdOK --click cmdExit
  judge t.docx '
assert len(starting("线段竖线")) == 6 and len(starting("线段横线")) == 5, rows
width = max(num(r, 3) for r in rows) - min(num(r, 3) for r in rows)
assert abs(width - 10 * 28.4) < 0.05, width
'
  ;;
shushi)
  seed t.docx "乘法：12*34" "除法：987654/37"
  run shushi --doc t.docx --select "12*34"
  run shushi --doc t.docx --select "987654/37"
  judge t.docx '
groups = {}
for r in rows:
    if r[1].startswith("ss_("):
        row, col = map(int, r[1][4:-1].split(","))
        groups.setdefault(len(groups) if (row, col) == (1, 1) else len(groups) - 1, {})[(row, col)] = r[7]
        assert abs(num(r, 3) - 20 * (col - 1)) < 0.01 and abs(num(r, 4) - 20 * (row - 1)) < 0.01, r
def number_at(cells, row, last, value):
    for place, digit in enumerate(reversed(str(value))):
        assert cells.get((row, last - place)) == digit, (row, last - place, value, cells)
mul, div = groups[0], groups[1]
cols = max(c for _, c in mul)
number_at(mul, 1, cols, 12); number_at(mul, 2, cols, 34)
number_at(mul, 3, cols, 12 * 4); number_at(mul, 4, cols - 1, 12 * 3); number_at(mul, 5, cols, 12 * 34)
assert mul[(2, 1)] == "×"
assert len([r for r in rows if r[1] in ("竖式横线1", "竖式横线2")]) >= 2
cols = max(c for _, c in div)
number_at(div, 1, cols, 987654 // 37); number_at(div, 2, 2, 37); number_at(div, 2, cols, 987654)
number_at(div, max(r for r, _ in div), cols, 987654 % 37)
bracket = named("除法竖式括号")
assert len(bracket) == 1 and bracket[0][2].startswith("path")
'
  out="$(run shushi --doc t.docx --select "乘法" --answer "0+3" 2>&1)"
  [[ "$out" == *"目前只支持正整数的运算，请检查您输入的数据。"* ]] || fail "no refusal: $out"
  ;;
histogram)
  seed t.docx "直方图：【图】"
  run zft --doc t.docx --select "【图】" --set optZFT_1=1 --click cmdOK_0 --click cmdOK_1
  judge t.docx '
bars = sorted((r for r in starting("柱状图") if r[2] == "rect"), key=lambda r: num(r, 3))
data = [3, 5, 6, 4, 7, 5, 4]
assert len(bars) == 7, rows
for a, b in zip(bars, bars[1:]):
    assert abs(num(a, 3) + num(a, 5) - num(b, 3)) < 0.02, (a, b)
unit = num(bars[0], 6) / data[0]
for bar, value in zip(bars, data):
    assert abs(num(bar, 6) - unit * value) < 0.02, (bar, value)
    assert abs(num(bar, 4) + num(bar, 6) - (num(bars[0], 4) + num(bars[0], 6))) < 0.02
first = named("频率/组距y 1")
assert first and first[0][7] == "0.009", first
assert named("频率/组距文字标注")[0][7] == r"EQ \F(频率,组距)", named("频率/组距文字标注")
labels = sorted((num(r, 4), r[7]) for r in starting("频率/组距y"))
assert all(b[0] - a[0] >= 10 for a, b in zip(labels, labels[1:])), labels  # 10-point text
'
  ;;
histogram_state)
  seed t.docx "直方图：【图】"
  run zft --doc t.docx --set optZFT_2=1 --set txtData=1,2,3 --set txtTextX=年级 --click cmdOK_1
  [[ "$(sqlite3 "$db" "select data from record where id=5")" == \
     " 2@@6@@4@@20@@10@@年级@@数量@@100@@700@@100@@1,2,3@@0@@0@@3@@0@@0" ]] ||
    fail "slot 5: $(sqlite3 "$db" "select data from record where id=5")"
  run zft --doc t.docx --select "【图】" --click cmdOK_0 --click cmdOK_1
  judge t.docx '
assert len(starting("条形图") ) == 9 and named("样本文字标注")[0][7] == "年级", rows
'
  ;;
histogram_refused)
  seed t.docx "直方图：【图】"
  out="$(run zft --doc t.docx --set chkYKd=1 --set txtYkd_0=0 --click cmdOK_0 --click cmdOK_1 2>&1)"
  [[ "$out" == *"您指定的y轴刻度数据有误，请检查！"* ]] || fail "no message: $out"
  # Equal values leave no step for the y axis: the error ends the run.
  out="$(run zft --doc t.docx --set txtData=5,5 --click cmdOK_0 2>&1)"
  [[ "$out" == *"运行时错误 '11'"* ]] || fail "no error box: $out"
  [[ -z "$(shapes t.docx)" ]] || fail "shapes were drawn: $(shapes t.docx)"
  ;;
pie)
  seed t.docx "扇形图：【图】"
  run sxt --doc t.docx --select "【图】" --set txtData=10,35:25：30 --set chkColor=1 --click cmdOK_0 --click cmdOK_1
  judge t.docx '
sectors = starting("扇形")
assert [r[1] for r in sectors] == ["扇形10", "扇形35", "扇形25", "扇形30"], rows
assert all(int(r[2].split(":")[1]) % 3 == 1 for r in sectors), sectors
'
  [[ "$(sqlite3 "$db" "select data from record where id=7")" == "0@@2@@0@@10,35:25：30" ]] ||
    fail "slot 7: $(sqlite3 "$db" "select data from record where id=7")"
  ;;
render)
  # LibreOffice lays the page out: a figure lands on its caret's line, the
  # same way near the top of a page, at the foot of a long one, where the
  # engine's estimate of the line's place has drifted furthest, and in the
  # second column of a two-column paper, which the estimate does not know.
  type -P soffice >/dev/null || exit 77
  figure_at() {  # NAME LINES [COLUMNS]
    lines=()
    for i in $(seq 1 "$2"); do lines+=("第${i}行：练习"); done
    seed "$1.docx" "${lines[@]}" "数轴：【图】"
    if [[ -n "${3:-}" ]]; then
      python3 - "$1.docx" <<'PY'
import sys, zipfile
path = sys.argv[1]
parts = {n: zipfile.ZipFile(path).read(n) for n in zipfile.ZipFile(path).namelist()}
parts["word/document.xml"] = parts["word/document.xml"].replace(
    b"</w:sectPr>", b'<w:cols w:num="2" w:space="425"/></w:sectPr>')
with zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED) as z:
    for name, data in parts.items():
        z.writestr(name, data)
PY
    fi
    run interval --doc "$1.docx" --caret "【图】" --set txtXmin=-4 --set txtXmax=4 \
      --set txtLengthOfAxis=4 --set optLessThanA=1 --set txtA=-3 --click cmdOK --click cmdCancel
    soffice --headless --convert-to pdf "$1.docx" > /dev/null 2>&1 || fail "LibreOffice failed"
    pdftotext -bbox "$1.pdf" "$1.html"
  }
  figure_at top 2
  figure_at foot 28
  figure_at columns 40 2
  python3 - <<'PY' || fail "the figure is not on its caret's line"
import re
def placed(name):
    # Where the figure's "-3" label stands against the end of the caret's
    # line ("数轴：", which the tool centres), on the same page.
    for page in open(name, encoding="utf-8").read().split("<page ")[1:]:
        line = re.findall(r'xMax="([0-9.]+)" yMax="([0-9.]+)">数轴', page)
        label = re.findall(r'xMin="([0-9.]+)" yMin="[0-9.]+" xMax="[0-9.]+" yMax="([0-9.]+)">-3<', page)
        if line:
            assert label, "the figure is on another page than its line"
            return [float(l) - float(c) for l, c in zip(label[0], line[0])]
top, foot, columns = map(placed, ("top.html", "foot.html", "columns.html"))
assert 0 < top[1] < 15, top
for other in foot, columns:
    assert abs(other[0] - top[0]) < 3 and abs(other[1] - top[1]) < 2, (top, foot, columns)
PY
  ;;
*)
  fail "unknown check $check"
  ;;
esac
