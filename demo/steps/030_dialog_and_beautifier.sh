#!/usr/bin/env bash
# A formula typed in the formula dialog (the caret stands on one character, so
# gs opens frmGS), through the TeX route so that every reader shows it; then
# the beautifier over a line of plain text.
set -euo pipefail
config="$(mktemp -u).db"
trap 'rm -f "$config"' EXIT
"$LP" --eq x --config "$config" >/dev/null
sqlite3 "$config" "UPDATE config SET blvalue = -1 WHERE cName = 'blMathType'"
"$LP" gs --doc "$DOC" --config "$config" --select "◆" --set "txtGS=a^2+b^2=c^2" --click cmdOK
"$LP" mhgs --doc "$DOC" --select "2x+3y=12，x-y=1"
