#!/usr/bin/env bash
# libreoffice_check.sh LUMENPAD SHARED: types a factorisation into real-world
# documents and has LibreOffice lay out each result as a PDF. A file we write
# that another reader refuses, or that loses the typed text, fails here.
set -euo pipefail
lp="$1" corpus="$2/corpus/docx"
skip=77
[[ -d "$corpus" ]] || { echo "shared test material missing: $corpus (see README)"; exit $skip; }
for tool in soffice pdftotext; do
  command -v "$tool" > /dev/null || { echo "$tool missing: skipped"; exit $skip; }
done
# Tables, headers with pictures, a text box in a cell, Chinese numbering,
# fields, footnotes, nested lists, tracked changes.
files=(
  powertools/HC031-Complicated-Document.docx
  powertools/DB005-Headers-With-Images.docx
  powertools/WC048-Text-Box-in-Cell.docx
  powertools/LIR009-zh-CN-chineseCounting.docx
  poi/FieldCodes.docx
  poi/form_footnotes.docx
  poi/ComplexNumberedLists.docx
  poi/bug56075-changeTracking_on.docx
)
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
fail() { echo "FAIL: $*" >&2; exit 1; }

docs=()
for file in "${files[@]}"; do
  doc="$work/$(basename "$file")"
  cp "$corpus/$file" "$doc"
  chmod u+w "$doc"  # the corpus is read-only, and lumenpad refuses read-only files
  QT_QPA_PLATFORM=offscreen "$lp" factoring --doc "$doc" --config "$work/config.db" \
    --set Text1=360 --click Command1 --click cmdInsert --click Command2 ||
    fail "lumenpad on $file"
  docs+=("$doc")
done
# A profile of its own lets this run beside another LibreOffice.
timeout 120 soffice -env:UserInstallation="file://$work/lo" --headless \
  --convert-to pdf --outdir "$work/pdf" "${docs[@]}" > "$work/soffice.log" 2>&1 ||
  fail "soffice: $(cat "$work/soffice.log")"
for doc in "${docs[@]}"; do
  pdf="$work/pdf/$(basename "$doc" .docx).pdf"
  [[ -s "$pdf" ]] || fail "no PDF for $(basename "$doc")"
  pdftotext "$pdf" - | grep -q '360 *=' || fail "the factorisation is not in $(basename "$pdf")"
done
echo "ok: ${#docs[@]} documents laid out by LibreOffice"
