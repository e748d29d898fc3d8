#!/usr/bin/env bash
# A block of formulas of every construct, typed in the formula dialog: first
# as EQ fields, then through the TeX route as native equations. The arc has
# no TeX form and appears in the first block only.
set -euo pipefail
formulas=(
  "(a+b)/(c+d)"
  "x=(-b+-g(b^2-4ac))/(2a)"
  "g(3,x)+1"
  "x^(n+1)+y^2"
  "a_(n+1)=2a_n"
  "xl(AB)+xl(BC)=xl(AC)"
  "A(5,3)+C(5,2)"
  "fcz(x+y=5,2x-y=1)"
  "(ab)bar+abar"
  "sin(@a+@b)<>@p"
)
for formula in "${formulas[@]}" "hu(AB)"; do
  "$LP" gs --doc "$DOC" --set "txtGS=$formula" --click cmdOK
done

config="$(mktemp -u).db"
trap 'rm -f "$config"' EXIT
"$LP" --eq x --config "$config" >/dev/null
sqlite3 "$config" "UPDATE config SET blvalue = -1 WHERE cName = 'blMathType'"
for formula in "${formulas[@]}"; do
  "$LP" gs --doc "$DOC" --config "$config" --set "txtGS=$formula" --click cmdOK
done
