#!/usr/bin/env bash
# The teacher's notation, selected in the worksheet and turned into formulas by
# gs: first as EQ fields, then through the TeX route as native equations (the
# same notation stands twice; the first occurrence is converted first).
set -euo pipefail
eq=(
  "(a+b)/(c+d)"
  "x=(-b+-g(b^2-4ac))/(2a)"
  "g(3,x)+1"
  "x^(n+1)+y^2"
  "a_(n+1)=2a_n"
  "xl(AB)+xl(BC)=xl(AC)"
  "A(5,3)+C(5,2)"
  "fcz(x+y=5,2x-y=1)"
  "sin(@a+@b)<>@p"
)
tex=(
  "(a+b)/(c+d)"
  "x=(-b+-g(b^2-4ac))/(2a)"
  "g(3,x)+1"
  "x^(n+1)+y^2"
  "A(5,3)+C(5,2)"
  "fcz(x+y=5,2x-y=1)"
)
for formula in "${eq[@]}"; do
  "$LP" gs --doc "$DOC" --select "$formula"
done

config="$(mktemp -u).db"
trap 'rm -f "$config"' EXIT
"$LP" --eq x --config "$config" >/dev/null
sqlite3 "$config" "UPDATE config SET blvalue = -1 WHERE cName = 'blMathType'"
for formula in "${tex[@]}"; do
  "$LP" gs --doc "$DOC" --config "$config" --select "$formula"
done
