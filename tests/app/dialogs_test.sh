#!/usr/bin/env bash
# dialogs_test.sh CHECK LUMENPAD: the small insertion dialogs end to end on a
# temporary .docx, judged from the fields the document holds.
set -euo pipefail
check="$1" lp="$2"
here="$(cd "$(dirname "$0")" && pwd)"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
cd "$work"
db="$work/config.db"

fail() { echo "FAIL: $*" >&2; exit 1; }
run() { "$lp" "$@" --config "$db"; }
dump() { python3 "$here/docx_dump.py" text "$1"; }
seed() {
  local out="$1"
  shift
  printf '%s\n' "$@" > lines.txt
  python3 "$here/../../demo/seed_worksheet.py" "$out" lines.txt
}

case "$check" in
angle2radian)
  seed t.docx "弧度：【角】" "角度：【度】"
  run angle2radian --doc t.docx --select "【角】" --set txtDu=1 --set txtFen=30 --click cmdOK \
    --click cmdExit
  # The state came back: the direction is switched and the degrees stay typed.
  run angle2radian --doc t.docx --select "【度】" --set optDir_1=1 --set txtRad=3π/4 --click cmdOK \
    --click cmdExit
  [[ "$(dump t.docx)" == $'弧度：{ EQ \\F(p,120)}\n角度：{ EQ 135°}' ]] || fail "fields: $(dump t.docx)"
  cp t.docx before.docx
  out="$(run angle2radian --doc t.docx --set txtRad=3π4 --click cmdOK --click cmdExit 2>&1)"
  [[ "$out" == *"请把弧度写成 kπ/n 的形式"* ]] || fail "no message: $out"
  cmp -s t.docx before.docx || fail "a refused angle changed the document"
  [[ "$(sqlite3 "$db" 'select Data from record where id=11')" == "1@@1@@30@@@@3π4" ]] ||
    fail "slot: $(sqlite3 "$db" 'select Data from record where id=11')"
  ;;
*)
  fail "unknown check $check"
  ;;
esac
