#!/usr/bin/env bash
# savepic_test.sh LUMENPAD: a graph and a native formula saved as JPEG by
# savepic decode with djpeg, and their drawn extent matches LibreOffice's
# rendering of the same document at the same resolution; refused input
# writes no file.
set -euo pipefail
lp="$1"
here="$(cd "$(dirname "$0")" && pwd)"
skip=77
for tool in djpeg soffice pdftoppm sqlite3; do
  command -v "$tool" > /dev/null || { echo "$tool missing: skipped"; exit $skip; }
done
. "$here/../app/common.sh"
box() { python3 "$here/dark_box.py" "$1"; }

# Width and height of two dark boxes agree within tol pixels plus pct percent.
agree() {
  python3 - "$1" "$2" "$3" "$4" << 'PY'
import sys
a = list(map(int, sys.argv[1].split())); b = list(map(int, sys.argv[2].split()))
tol, pct = int(sys.argv[3]), float(sys.argv[4])
for i, what in ((0, "width"), (1, "height")):
    sa, sb = a[i + 2] - a[i], b[i + 2] - b[i]
    if abs(sa - sb) > tol + pct / 100 * max(sa, sb):
        sys.exit(f"{what}: savepic {sa} px, LibreOffice {sb} px")
PY
}

compare_with_libreoffice() {  # DOCX JPEG DPI TOL PCT
  djpeg -outfile saved.ppm "$2" || fail "djpeg refused $2"
  soffice --headless --convert-to pdf "$1" > /dev/null 2>&1 || fail "soffice failed on $1"
  pdftoppm -r "$3" -f 1 -l 1 "${1%.docx}.pdf" page
  agree "$(box saved.ppm)" "$(box page-1.ppm)" "$4" "$5" || fail "$2 differs from LibreOffice's page"
}

# A parabola with focus and directrix, alone on its page.
seed graph.docx "【图】"
run functiongraph --doc graph.docx --caret "【图】" --set optType_PWX_3=1 --set txtPWX_0=2 \
  --set chkFocus_PWX=1 --set chkDirectrix_PWX=1 --click cmdOK_PWX --click cmdOK --click cmdCancel
out="$(run savepic --doc graph.docx --select-shape "组合" --set txtFile="$work/graph" --set txtDpi=100 \
  --click cmdOK --click cmdExit 2>&1)"
[[ "$out" == *"图片已保存"* && -s graph.jpg ]] || fail "graph not saved: $out"
compare_with_libreoffice graph.docx graph.jpg 100 3 2

# A native equation, alone on its line.
run test > /dev/null 2>&1 || true  # creates the settings file
sqlite3 config.db "update config set blvalue=-1 where cName='blMathType'"
seed formula.docx "sqr(3)/2"
run gs --doc formula.docx --select "sqr(3)/2"
run savepic --doc formula.docx --select $'\x01' --set txtFile="$work/formula.jpg" --set txtDpi=150 \
  --click cmdOK --click cmdExit > /dev/null
[[ -s formula.jpg ]] || fail "formula not saved"
compare_with_libreoffice formula.docx formula.jpg 150 4 15

# Refused: nothing selected, an empty name, a resolution out of range.
seed plain.docx "只有文字"
out="$(run savepic --doc plain.docx --select "文字" --set txtFile="$work/none.jpg" --click cmdOK \
  --click cmdExit 2>&1)"
[[ "$out" == *"没有可以保存的图形或公式"* && ! -e none.jpg ]] || fail "plain text: $out"
out="$(run savepic --doc plain.docx --caret "文字" --set txtFile="$work/none.jpg" --click cmdOK \
  --click cmdExit 2>&1)"
[[ "$out" == *"请先选中要保存的图形或公式"* && ! -e none.jpg ]] || fail "no selection: $out"
cp graph.docx before.docx
out="$(run savepic --doc graph.docx --select-shape "组合" --set txtFile= --click cmdOK --click cmdExit 2>&1)"
[[ "$out" == *"请输入图片的文件名"* ]] || fail "empty name: $out"
out="$(run savepic --doc graph.docx --select-shape "组合" --set txtFile="$work/big" --set txtDpi=5000 \
  --click cmdOK --click cmdExit 2>&1)"
[[ "$out" == *"分辨率应是 36 到 1200 之间的数"* && ! -e big.jpg ]] || fail "resolution: $out"
cmp -s graph.docx before.docx || fail "a refused save changed the document"

# The name and resolution come back in the next run.
out="$(run savepic --doc graph.docx --select-shape "组合" --grab dialog.png --click cmdExit 2>&1)"
[[ "$(sqlite3 config.db "select Data from record where id=16")" == "$work/big@@5000" ]] ||
  fail "record slot: $(sqlite3 config.db "select Data from record where id=16")"
echo "savepic: graph and formula match LibreOffice; refused input writes nothing"
