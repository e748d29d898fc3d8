#!/usr/bin/env bash
# make_gallery_seed.sh LUMENPAD OUT.docx: draws the figures an empty gallery
# starts with, one per paragraph after its caption ("名称："), each with the
# program's own dialogs run headless. The gallery takes each figure in under
# its caption the first time it opens.
set -euo pipefail
lp="$1" out="$2"
here="$(cd "$(dirname "$0")" && pwd)"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
export QT_QPA_PLATFORM=offscreen
doc="$work/gallery.docx"
cat > "$work/lines.txt" << 'LINES'
平面直角坐标系：【1】
抛物线 y=x²：【2】
指数函数 y=2^x：【3】
正弦曲线（五点法）：【4】
圆与圆心：【5】
过两点的直线：【6】
数轴与区间：【7】
扇形：【8】
扇环：【9】
方格纸：【10】
田字格：【11】
线段图：【12】
频数分布直方图：【13】
扇形统计图：【14】
LINES
python3 "$here/../../demo/seed_worksheet.py" "$doc" "$work/lines.txt"
run() {
  local word="$1" mark="$2"
  shift 2
  "$lp" "$word" --doc "$doc" --config "$work/config.db" --caret "【$mark】" "$@" > /dev/null
}
graph() { run functiongraph "$@" --click cmdOK --click cmdCancel; }
graph 1 --set txtLenOfAxis_x=10 --set txtLenOfAxis_y=10
graph 2 --set optXn_Power=1 --set txtN_Power=2 --set txtXmin_Power=-2 --set txtXmax_Power=2 \
  --click cmdOK_Power
graph 3 --set txtXmin_Exponent=-3 --set txtXmax_Exponent=2 --click cmdOK_Exponent
graph 4 --set txtLenOfAxis_x=8 --set HScrollx=-3 --set txtLenOfAxis_y=4 --set optFW_0=1 \
  --set optFS_2=1 --set txtXmin_SJ=1 --set txtXmax_SJ=0 --click cmdOK_sin
graph 5 --set optType_Y_0=1 --set txtY_0=2 --set chkCentreOfCircle=1 --click cmdOK_Y
graph 6 --set optType_ZX_2=1 --set "txtZX_0=(-3,-2)" --set "txtZX_1=(1,2)" --set txtXmin_ZX=-4 \
  --set txtXmax_ZX=3 --click cmdOK_ZX_0
run interval 7 --set txtLengthOfAxis=8 --set txtXmin=-3 --set txtXmax=3 --set optBTaNBTb=1 \
  --set txtA=-2 --set txtB=1 --click cmdOK --click cmdCancel
run sector 8 --set txtR=1.5 --set txtAngle=120 --set txtLabel=120° --click cmdOK --click cmdExit
run sector 9 --set optKind_2=1 --set txtR=1.5 --set txtR2=0.8 --set txtAngle=240 --set txtLabel= \
  --set chkMark=0 --click cmdOK --click cmdExit
run fangge 10 --set optKind_0=1 --set txtRows=4 --set txtSize=0.8 --click cmdOK --click cmdExit
run fangge 11 --set optKind_1=1 --set txtRows=1 --set txtSize=1.5 --click cmdOK --click cmdExit
run xdt 12 --set txtLen_0=10 --set txtBL=3：2 --click cmdOK --click cmdExit
run zft 13 --set optZFT_1=1 --set txtData=2,5,12,10,5 --set txtChuZhi=50 --set txtTextX=成绩 \
  --click cmdOK_0 --click cmdOK_1
run sxt 14 --set chkColor=1 --set optColor_1=1 --click cmdOK_0 --click cmdOK_1
cp "$doc" "$out"
