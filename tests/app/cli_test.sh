#!/usr/bin/env bash
# cli_test.sh CHECK LUMENPAD: what the command line answers and its exit status.
set -uo pipefail
check="$1" lp="$2"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
cd "$work"
db="$work/config.db"

fail() { echo "FAIL: $*" >&2; exit 1; }
# expect STATUS OUTPUT COMMAND...: the run's status and standard output.
expect() {
  local status="$1" output="$2" actual
  shift 2
  actual="$("$lp" "$@" --config "$db" 2>/dev/null)"
  local got=$?
  [[ $got == "$status" ]] || fail "status $got, not $status, for: $*"
  [[ "$actual" == "$output" ]] || fail "'$actual', not '$output', for: $*"
}

case "$check" in
utility_modes)
  expect 0 '2*x^2+3*x' --normalise "2x^2+3x"
  expect 0 '0.75' --eval "x^2/3" --x 1.5
  expect 1 'error: division-by-zero' --eval "1/0"  # one text: its error is the status
  expect 0 $'2\nerror: sqr-domain' --eval - <<< $'1+1\nsqrt(-1)'
  expect 0 $'x+1\n3*x' --normalise - <<< $'x+1\n3x'
  # A mode takes its own arguments only; a mistake prints its usage.
  expect 2 '' --eval
  expect 2 '' --eval "x" --x
  expect 2 '' --normalise a b
  ;;
missing_control)
  "$lp" factoring --doc t.docx --set Text1=6 --click Command1 --click cmdInsert --config "$db" ||
    fail "the first run failed"
  cp t.docx before.docx
  for args in "--set NoSuch=6 --click Command1" "--set Text1=6 --click NoButton"; do
    # shellcheck disable=SC2086
    out="$("$lp" factoring --doc t.docx $args --config "$db" 2>&1)"
    status=$?
    [[ $status == 2 ]] || fail "status $status for $args"
    [[ "$out" == *NoSuch* || "$out" == *NoButton* ]] || fail "the message names no control: $out"
    cmp -s t.docx before.docx || fail "the document changed for $args"
  done
  ;;
*)
  fail "unknown check $check"
  ;;
esac
echo "ok: $check"
