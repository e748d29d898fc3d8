#!/usr/bin/env bash
# Builds demo/worksheet.docx by running the finished tools one after another,
# as a teacher would select text and press their buttons, then a PDF when
# LibreOffice is there.
set -euo pipefail
build="${1:-build}"
here="$(cd "$(dirname "$0")" && pwd)"
lp="$build/src/app/lumenpad"
doc="$here/worksheet.docx"
python3 "$here/seed_worksheet.py" "$doc" "$here/worksheet.txt"
export QT_QPA_PLATFORM=offscreen
for step in "$here"/steps/*.sh; do
  [ -f "$step" ] || continue
  echo "demo: $(basename "$step")"
  LP="$lp" DOC="$doc" bash "$step"
done
if command -v soffice >/dev/null; then
  soffice --headless --convert-to pdf --outdir "$here" "$doc" >/dev/null 2>&1 || true
  # Pages a step made beside the worksheet (a before/after view) follow it.
  extra=("$here"/pages/*.pdf)
  if [ -f "$here/worksheet.pdf" ] && [ -f "${extra[0]}" ] && command -v pdfunite >/dev/null; then
    pdfunite "$here/worksheet.pdf" "${extra[@]}" "$here/worksheet+pages.pdf"
    mv "$here/worksheet+pages.pdf" "$here/worksheet.pdf"
  fi
fi
echo "demo: $doc"
