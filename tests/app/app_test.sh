#!/usr/bin/env bash
# app_test.sh CHECK LUMENPAD LUMENPADSETUP: one end-to-end check of a run.
set -euo pipefail
check="$1" lp="$2" setup="$3"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
cd "$work"
db="$work/config.db"

fail() { echo "FAIL: $*" >&2; exit 1; }
body() { unzip -p "$1" word/document.xml; }
text() { body "$1" | sed 's/<[^>]*>//g'; }
run() { "$lp" "$@" --config "$db"; }

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
  [[ "$(sqlite3 "$db" "select count(*) from record where Data = ''")" == 10 ]] || fail "record slots"
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
*)
  fail "unknown check $check"
  ;;
esac
echo "ok: $check"
