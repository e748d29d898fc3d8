#!/usr/bin/env bash
# The batch runner over a folder of collected copies of the finished
# worksheet, headless as a script would run it: tab 0 takes out the other
# school's header, footer, blank lines, link and author; tab 1 puts this
# school's name in the file names, the properties and the text, and turns
# the EQ fields, which LibreOffice does not show, into native equations.
# The first copy before and after, side by side, becomes one page appended
# to the worksheet's PDF (pages/batch.pdf). The step runs last, on the
# worksheet as the other steps leave it.
set -euo pipefail
here="$(cd "$(dirname "$0")/.." && pwd)"
work="$here/batch"
config="$(mktemp -u).db"
trap 'rm -f "$config"' EXIT
# Debian's python3, which has python3-docx, before any other on the PATH.
py=/usr/bin/python3
[ -x "$py" ] || py=python3
rm -rf "$work" "$here/pages/batch.pdf"
"$py" "$here/dirty_copies.py" "$DOC" "$work/before" 3
cp -r "$work/before" "$work/after"
bat() { "$LP" bat --doc "$DOC" --config "$config" --set "txtFolder=$work/after" --set txtFile=docx "$@"; }
bat --set chkBack=1 --set chkBlankLine=1 --answer yes --set chkPageHeader=1 --set chkLinkInTxt=1 \
  --set chkFileInfo=1 --set "txtFileInfo=张老师" --click cmdOK
bat --set SSTab1=1 --set txtFile_Change_0=_XX中学 --set txtFile_Change_1=_流明中学 \
  --set "txtFile_Change_2=XX 中学" --set txtFile_Change_3=流明中学 \
  --set "txtFile_Change_4=XX 中学" --set txtFile_Change_5=流明中学 --set chkEqToOmml=1 --click cmdOK
ls "$work/after"
command -v soffice >/dev/null && command -v pdftoppm >/dev/null || exit 0
for side in before after; do
  first="$(ls "$work/$side"/练习1*.docx | head -1)"
  cp "$first" "$work/$side.docx"
  soffice --headless --convert-to pdf --outdir "$work" "$work/$side.docx" >/dev/null 2>&1
  pdftoppm -png -r 110 -f 1 -l 1 -singlefile "$work/$side.pdf" "$work/$side"
done
"$py" "$here/before_after_page.py" "$work/before.png" "$work/after.png" "$work/before_after.docx"
soffice --headless --convert-to pdf --outdir "$work" "$work/before_after.docx" >/dev/null 2>&1
mkdir -p "$here/pages"
mv "$work/before_after.pdf" "$here/pages/batch.pdf"
