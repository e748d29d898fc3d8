#!/usr/bin/env bash
# gallery_test.sh LUMENPAD: the figure gallery end to end. A fresh store takes
# in the seed figures; a figure added from one document survives the run and
# is inserted into another, which LibreOffice renders with the drawing; a
# figure is renamed and deleted; refused input changes nothing.
set -euo pipefail
lp="$1"
here="$(cd "$(dirname "$0")" && pwd)"
skip=77
for tool in sqlite3 soffice pdftoppm; do
  command -v "$tool" > /dev/null || { echo "$tool missing: skipped"; exit $skip; }
done
. "$here/../app/common.sh"
count() { sqlite3 "$db" "select count(*) from big where id > 2"; }
names() { sqlite3 "$db" "select Name from big where id > 2 order by id" | tr '\n' '|'; }
shapes() { unzip -p "$1" word/document.xml | grep -o '<wp:anchor' | wc -l; }

# A fresh store: the seed figures come in once, the update marked taken in.
seed empty.docx "空白"
run tk --doc empty.docx --grab gallery.png --click cmdExit
seeded="$(count)"
((seeded >= 12)) || fail "only $seeded seed figures: $(names)"
[[ "$(names)" == 平面直角坐标系\|抛物线* ]] || fail "seed names: $(names)"
[[ "$(sqlite3 "$db" "select Data from record where id=2")" == UpdateOk ]] || fail "slot 2 not marked"
run tk --doc empty.docx --click cmdExit 2> /dev/null
[[ "$(count)" == "$seeded" ]] || fail "the seeds came in twice"

# A sector added from one document ...
seed a.docx "扇形：【图】"
run sector --doc a.docx --caret "【图】" --set txtR=1.5 --set txtAngle=90 --set txtLabel=90° \
  --click cmdOK --click cmdExit
run tk --doc a.docx --select-shape "扇形" --click cmdAdd --answer "直角扇形" --click cmdExit 2> /dev/null
[[ "$(count)" == $((seeded + 1)) && "$(names)" == *"|直角扇形|" ]] || fail "not added: $(names)"
[[ "$(sqlite3 "$db" "select Name from small where big = (select max(id) from big)")" == 扇形：* ]] ||
  fail "the shape's name is not kept in small"

# ... is inserted by a later run into another document, at its caret.
seed b.docx $'插入图库中的图形：【这里】\n后面的文字。'
cp b.docx before.docx
run tk --doc b.docx --caret "【这里】" --set lstFigures="$seeded" --click cmdInsert --click cmdExit \
  2> /dev/null
[[ "$(shapes b.docx)" == 1 ]] || fail "inserted shapes: $(shapes b.docx)"
unzip -p b.docx word/document.xml | grep -q 'wp:docPr[^>]*name="扇形：' || fail "the figure's kind is lost"
python3 "$here/../app/docx_dump.py" text b.docx | grep -q '后面的文字' || fail "text lost"
soffice --headless --convert-to pdf b.docx before.docx > /dev/null 2>&1 || fail "LibreOffice refused b.docx"
pdftoppm -r 100 -f 1 -l 1 before.pdf before
pdftoppm -r 100 -f 1 -l 1 b.pdf after
read -r text figure <<< "$(python3 "$here/dark_box.py" --count before-1.ppm after-1.ppm | tr '\n' ' ')"
((figure > text + 60)) || fail "the page shows no drawing: $text dark pixels before, $figure after"

# Refused: nothing selected, a cancelled or empty name; nothing changes.
before="$(names)"
out="$(run tk --doc b.docx --caret "后面" --click cmdAdd --click cmdExit 2>&1)"
[[ "$out" == *"请先选中要保存的图形或公式"* ]] || fail "no selection: $out"
out="$(run tk --doc a.docx --select-shape "扇形" --click cmdAdd --answer cancel --click cmdExit 2>&1)"
[[ "$out" == *"已取消，图库没有改变"* ]] || fail "cancelled: $out"
out="$(run tk --doc a.docx --select-shape "扇形" --click cmdAdd --answer "  " --click cmdExit 2>&1)"
[[ "$out" == *"图形的名称不能为空"* ]] || fail "empty name: $out"
[[ "$(names)" == "$before" ]] || fail "refused input changed the gallery: $(names)"

# Renamed, then deleted; the chosen figure comes back in the next run.
run tk --doc a.docx --set lstFigures="$seeded" --click cmdRename --answer "九十度扇形" --click cmdExit \
  2> /dev/null
[[ "$(names)" == *"|九十度扇形|" ]] || fail "not renamed: $(names)"
[[ "$(sqlite3 "$db" "select Data from record where id=3")" == "$seeded" ]] || fail "slot 3 not kept"
run tk --doc a.docx --click cmdDelete --answer yes --click cmdExit 2> /dev/null
[[ "$(count)" == "$seeded" && "$(names)" != *"九十度扇形"* ]] || fail "not deleted: $(names)"
[[ "$(sqlite3 "$db" "select count(*) from small where big not in (select id from big)")" == 0 ]] ||
  fail "names of a deleted figure stay in small"
echo "gallery: $seeded seed figures; added, inserted after a restart, renamed, deleted"
