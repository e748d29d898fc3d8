#!/usr/bin/env bash
# app_test.sh CHECK LUMENPAD LUMENPADSETUP: one end-to-end check of a run.
set -euo pipefail
check="$1" lp="$2" setup="$3"
here="$(cd "$(dirname "$0")" && pwd)"
. "$here/common.sh"
body() { unzip -p "$1" word/document.xml; }
text() { body "$1" | sed 's/<[^>]*>//g'; }
dump() { python3 "$here/docx_dump.py" "$@"; }
setting() {
  [[ -e "$db" ]] || "$lp" --eq x --config "$db" < /dev/null > /dev/null
  sqlite3 "$db" "UPDATE config SET blvalue = $2 WHERE cName = '$1'"
}
# The figures anchored in the body, and the name bases of all their shapes.
anchors() { body "$1" | grep -o '<wp:anchor' | wc -l; }
shape_bases() { body "$1" | grep -o 'cNvPr id="[0-9]*" name="[^"]*"' | sed 's/.*name="//; s/：.*//' | sort -u; }
has_shapes() {
  local doc="$1" bases
  shift
  bases="$(shape_bases "$doc")"
  for base in "$@"; do
    grep -qxF "$base" <<< "$bases" || fail "no shape $base in: $(tr '\n' ' ' <<< "$bases")"
  done
}
# The characters that carry a size, and those that carry a font or slant.
sized() { dump chars "$1" | awk -F'\t' '$4 != "-" { printf "%s:%s ", $1, $4 }'; }
styled() { dump chars "$1" | awk -F'\t' '$2 $3 != "--" { printf "%s:%s:%s ", $1, $2, $3 }'; }

case "$check" in
factoring)
  run factoring --doc t.docx --set Text1=360 --click Command1 --click cmdInsert --click Command2
  xml="$(body t.docx)"
  sup='<w:vertAlign w:val="superscript"/></w:rPr><w:t xml:space="preserve">'
  [[ "$xml" == *'> 360=  2</w:t>'*"$sup 3</w:t>"*'>· 3</w:t>'*"$sup 2</w:t>"*'>· 5</w:t>'* ]] ||
    fail "360 is not typed with raised exponents: $xml"
  ;;
refused_input)
  run factoring --doc t.docx --set Text1=6 --click Command1 --click cmdInsert
  cp t.docx before.docx
  out="$(run factoring --doc t.docx --set Text1=0 --click Command1 --click Command2 2>&1)"
  [[ "$out" == *"您输入的数据过小，请确认该整数大于 0 "* ]] || fail "no message: $out"
  cmp -s t.docx before.docx || fail "the document changed"
  ;;
test_word)
  run factoring --doc t.docx --set Text1=6 --click Command1 --click cmdInsert
  cp t.docx before.docx
  run test --doc t.docx
  cmp -s t.docx before.docx || fail "test changed the document"
  ;;
companion_missing)
  mkdir alone && cp "$lp" alone/
  out="$(alone/lumenpad test --doc t.docx --config "$db" 2>&1)"
  [[ "$out" == *"在lumenpad目录下未找到lumenpadsetup.exe"* ]] || fail "no message: $out"
  [[ ! -e "$db" ]] || fail "the settings were read: something ran after the message"
  [[ ! -e t.docx ]] || fail "the document was created though no command ran"
  ;;
unmatched_words)
  for words in "nonsense" " dot" "dot " "dot test" "DOT" ""; do
    rm -f "$db"
    if [[ -z "$words" ]]; then run --doc t.docx; else run "$words" --doc t.docx; fi
    # ConfigWord created the settings: Document_Init ran before the end.
    [[ -e "$db" ]] || fail "Document_Init did not run for '$words'"
  done
  before="$(md5sum < t.docx)"
  run dot test --doc t.docx
  [[ "$(md5sum < t.docx)" == "$before" ]] || fail "an unmatched word changed the document"
  ;;
settings)
  run test --doc t.docx
  [[ "$(sqlite3 "$db" "select count(*) from record where Data = ''")" == 16 ]] || fail "record slots"
  [[ "$(sqlite3 "$db" "select intvalue from config where cName = 'intK'")" == 5 ]] || fail "intK"
  sqlite3 "$db" "update record set Data = 'kept' where id = 9"
  run test --doc t.docx
  [[ "$(sqlite3 "$db" "select Data from record where id = 9")" == kept ]] || fail "a slot was lost"
  echo "not a database" > "$db"
  out="$(run test --doc t.docx 2>&1)" || fail "a corrupt database stopped the run"
  [[ "$out" == *"ConfigWord-->line 0"* ]] || fail "no error box: $out"
  ;;
select)
  run factoring --doc t.docx --set Text1=10 --click Command1 --click cmdInsert
  run factoring --doc t.docx --select " 10" --set Text1=6 --click Command1 --click cmdInsert
  [[ "$(text t.docx)" == *' 6=  2· 3=  2· 5' ]] || fail "the selection was not replaced: $(text t.docx)"
  set +e
  run test --doc t.docx --select "no such text" 2>/dev/null
  [[ $? == 2 ]] || fail "a missing --select text is no failure"
  ;;
bad_file)
  echo "plain text" > bad.docx
  set +e
  out="$(run test --doc bad.docx 2>&1)"
  status=$?
  set -e
  [[ $status == 2 ]] || fail "status $status for a refused file"
  [[ -n "$out" ]] || fail "no message for a refused file"
  [[ "$(cat bad.docx)" == "plain text" ]] || fail "the refused file was changed"
  ;;
gs_eq)
  seed t.docx "计算 x^2/2 的值"
  run gs --doc t.docx --select "x^2/2"
  # The font pass takes the field code's last blank away.
  [[ "$(dump text t.docx)" == '计算 { EQ \F(x\S(2),2)} 的值' ]] || fail "field: $(dump text t.docx)"
  # Only the script shrinks: 70 percent of 10.5 pt, cut to 7 pt.
  [[ "$(sized t.docx)" == '\:14 S:14 (:14 2:14 ):14 ' ]] || fail "script sizes: $(sized t.docx)"
  seed s.docx "x a^2;b^2 y"
  run gs --doc s.docx --select "a^2;b^2"
  [[ "$(dump text s.docx)" == 'x { EQ a\S(2)} { EQ b\S(2)}  y' ]] || fail "split: $(dump text s.docx)"
  setting EmbellishFormula 0
  seed p.docx "计算 x^2/2 的值"
  run gs --doc p.docx --select "x^2/2"
  [[ "$(dump text p.docx)" == '计算 { EQ \F(x\S(2),2) } 的值' ]] || fail "plain: $(dump text p.docx)"
  ;;
gs_tex)
  setting blMathType -1
  seed t.docx "计算 (a+b)/(c+d) 的值"
  run gs --doc t.docx --select "(a+b)/(c+d)"
  [[ "$(body t.docx)" == *'<m:oMath><m:f><m:num>'*'</m:num><m:den>'*'</m:den></m:f></m:oMath>'* ]] ||
    fail "no native fraction: $(body t.docx)"
  [[ "$(dump text t.docx)" == '计算 «a+bc+d» 的值' ]] || fail "text: $(dump text t.docx)"
  ;;
gs_timeout)
  setting blMathType -1
  seed t.docx "弧 hu(AB) 长"
  # The caret is stored first, so that only gs could change the file.
  run test --doc t.docx --select "hu(AB)"
  cp t.docx before.docx
  set +e
  out="$(timeout 30 "$lp" gs --doc t.docx --select "hu(AB)" --config "$db" 2>&1)"
  status=$?
  set -e
  [[ $status == 3 ]] || fail "status $status for a formula that never ends"
  [[ "$out" == *"公式转换超时，文档没有改动。"* ]] || fail "no message: $out"
  cmp -s t.docx before.docx || fail "the document changed"
  # The same formula typed into the dialog ends the same way.
  seed d.docx "弧长"
  run test --doc d.docx
  cp d.docx before.docx
  set +e
  out="$(timeout 30 "$lp" gs --doc d.docx --set "txtGS=hu(AB)" --click cmdOK --config "$db" 2>&1)"
  status=$?
  set -e
  [[ $status == 3 ]] || fail "status $status for a formula from the dialog that never ends"
  [[ "$out" == *"公式转换超时，文档没有改动。"* ]] || fail "no message from the dialog: $out"
  cmp -s d.docx before.docx || fail "the dialog changed the document"
  ;;
mhgs)
  seed t.docx "已知 x+y=1 求解"
  run mhgs --doc t.docx --select "x+y=1"
  [[ "$(dump text t.docx)" == '已知 x＋y＝1 求解' ]] || fail "signs: $(dump text t.docx)"
  expected='x:Times New Roman:i y:Times New Roman:i 1:Times New Roman:upright '
  [[ "$(styled t.docx)" == "$expected" ]] || fail "fonts: $(styled t.docx)"
  # Again over the formula, selected once more: no sign is left to replace.
  before="$(body t.docx)"
  run mhgs --doc t.docx --select "x＋y＝1"
  [[ "$(body t.docx)" == "$before" ]] || fail "a second run changed the formula"
  ;;
graph_sine)
  # y = sin x over one period by the five-point method, its marks and pi labels.
  run functiongraph --doc t.docx --set txtLenOfAxis_x=8 --set HScrollx=-3 --set txtLenOfAxis_y=4 \
    --set optFW_0=1 --set optFS_2=1 --set txtXmin_SJ=1 --set txtXmax_SJ=0 --click cmdOK_sin \
    --grab preview.png --click cmdOK --click cmdCancel
  [[ "$(anchors t.docx)" == 1 ]] || fail "not one figure"
  body t.docx | grep -q '<wp:docPr id="[0-9]*" name="组合：' || fail "the group is not named"
  has_shapes t.docx x轴 y轴 x轴标记 y轴标记 原点 正弦函数 "(@p)/2竖线" "(@p)/2横线" "(3@p)/2竖线" \
    x轴上刻度标注1 y轴上刻度标注5
  [[ "$(body t.docx | grep -o 'EQ \\F(' | wc -l)" == 2 ]] || fail "pi/2 and 3pi/2 are not EQ fractions"
  [[ -s preview.png ]] || fail "no preview"
  ;;
graph_conics)
  run functiongraph --doc t.docx --set txtLenOfAxis_x=16 --set txtLenOfAxis_y=16 \
    --set optType_Y_1=1 --set txtY_0=-4 --set txtY_1=4 --set txtY_2=2 --set chkCentreOfCircle=1 \
    --click cmdOK_Y --set optType_TY_0=1 --set txtTY_0=16 --set txtTY_1=9 --set chkFocus_TY=1 \
    --click cmdOK_TY --set optType_SQX_0=1 --set txtSQX_0=4 --set txtSQX_1=5 --set txtXmin_SQX=-6 \
    --set txtXmax_SQX=6 --set chkFocus_SQX=1 --set chkJJX_SQX=1 --click cmdOK_SQX \
    --set optType_PWX_3=1 --set txtPWX_0=2 --set chkFocus_PWX=1 --set chkDirectrix_PWX=1 \
    --click cmdOK_PWX --click cmdOK --click cmdCancel
  [[ "$(anchors t.docx)" == 1 ]] || fail "not one figure"
  has_shapes t.docx 圆 圆心 椭圆 椭圆左焦点 椭圆右焦点 双曲线左支 双曲线右支 左焦点 右焦点 渐近线 \
    抛物线 抛物线焦点 抛物线准线
  ;;
graph_lines)
  run functiongraph --doc t.docx --set optType_ZX_2=1 --set "txtZX_0=(-2,-1)" --set "txtZX_1=(2,3)" \
    --click cmdOK_ZX_0 --set "txtPoint=(2,3)" --set txtPointName=A --click cmdDrawPoint \
    --click cmdOK --click cmdCancel
  has_shapes t.docx 直线 点 A点标注 标示横坐标的虚线 标示纵坐标的虚线
  ;;
graph_reedit)
  # Insert, move the group by hand, reopen it by selecting it, change the
  # circle, insert: one group remains where it was moved, with the change.
  run functiongraph --doc t.docx --set txtExp="x^2-2*x" --set txtXmin_Any=-1 --set txtXmax_Any=3 \
    --click cmdOK_Any --set optType_Y_0=1 --set txtY_0=2 --click cmdOK_Y --click cmdOK --click cmdCancel
  python3 - t.docx <<'PY'
import re, sys, zipfile
path = sys.argv[1]
parts = {n: zipfile.ZipFile(path).read(n) for n in zipfile.ZipFile(path).namelist()}
xml = parts["word/document.xml"].decode()
xml = re.sub(r'(<wp:positionH relativeFrom="column"><wp:posOffset>)\d+', r'\g<1>2000000', xml, count=1)
parts["word/document.xml"] = xml.encode()
with zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED) as z:
    for name, data in parts.items():
        z.writestr(name, data)
PY
  run functiongraph --doc t.docx --select-shape 组合 --click cmdChange --set List1=2 --set txtY_0=3 \
    --click cmdOK_Y --click cmdOK --click cmdCancel
  [[ "$(anchors t.docx)" == 1 ]] || fail "the old group was not replaced"
  body t.docx | grep -q '<wp:positionH relativeFrom="column"><wp:posOffset>2000000<' ||
    fail "the new group is not where the old one was moved"
  body t.docx | grep -q 'txtY_0=3' || fail "the change is not in the saved graph"
  [[ "$(body t.docx | grep -o 'name="任意函数：' | wc -l)" == 1 ]] || fail "the curve is not kept once"
  ;;
graph_refused)
  run functiongraph --doc t.docx --click cmdOK --click cmdCancel
  cp t.docx before.docx
  out="$(run functiongraph --doc t.docx --set optType_Y_0=1 --set txtY_0=-1 --click cmdOK_Y \
    --set optType_TY_0=1 --set txtTY_0=4 --set txtTY_1=9 --click cmdOK_TY \
    --set txtExp="x+*(" --click cmdOK_Any --click cmdCancel 2>&1)"
  [[ "$out" == *"圆的半径不能为负或者零，请检查后重新输入。"* ]] || fail "no radius message: $out"
  [[ "$out" == *"椭圆中a要大于b，请检查你的数据！"* ]] || fail "no ellipse message: $out"
  [[ "$out" == *"您输入的函数表达式有误，请检查！"* ]] || fail "no expression message: $out"
  cmp -s t.docx before.docx || fail "refused objects changed the document"
  ;;
*)
  fail "unknown check $check"
  ;;
esac
echo "ok: $check"
