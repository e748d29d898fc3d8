#!/bin/sh
# Validates a worksheet the engine builds from nothing (document, styles and
# settings), then round-trips every seventh file of the round-trip set and
# validates the result's word/document.xml wherever the untouched file validates.
tool=$1
corpus=$2
[ -d "$corpus" ] || { echo "shared test material missing: $corpus (see README)"; exit 77; }
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
failed=0
"$tool" --new "$tmp/new.docx" || failed=1
for part in word/document.xml word/styles.xml word/settings.xml; do
  "$corpus/tools/validate_docx.sh" "$tmp/new.docx" "$part" >"$tmp/log" 2>&1 ||
    { echo "invalid new document: $part"; cat "$tmp/log"; failed=1; }
done
i=0
for f in "$corpus"/docx/powertools/*.docx "$corpus"/docx/poi/*.docx; do
  i=$((i + 1))
  [ $((i % 7)) -eq 0 ] || continue
  "$corpus/tools/validate_docx.sh" "$f" >/dev/null 2>&1 || continue
  "$tool" "$f" "$tmp/out.docx" || { echo "refused: $f"; failed=1; continue; }
  if ! "$corpus/tools/validate_docx.sh" "$tmp/out.docx" >"$tmp/log" 2>&1; then
    echo "invalid after round trip: $f"
    cat "$tmp/log"
    failed=1
  fi
done
exit $failed
