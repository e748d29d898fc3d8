#!/usr/bin/env bash
# The answer key, run after run on the same file without selecting anything:
# each run leaves the caret behind what it typed, so the next one adds to it.
# Factorisations from the factoring dialog, then formulas typed in the formula
# dialog (through the TeX route, so that every reader shows them).
set -euo pipefail
for n in 360 2520; do
  "$LP" factoring --doc "$DOC" --set Text1=$n --click Command1 --click cmdInsert --click Command2
done
config="$(mktemp -u).db"
trap 'rm -f "$config"' EXIT
"$LP" --eq x --config "$config" >/dev/null
sqlite3 "$config" "UPDATE config SET blvalue = -1 WHERE cName = 'blMathType'"
for formula in "a^2+b^2=c^2" "(x-a)^2+(y-b)^2=r^2"; do
  "$LP" gs --doc "$DOC" --config "$config" --set "txtGS=$formula" --click cmdOK
done
