#!/usr/bin/env bash
# Factorisations typed by the factoring dialog at the caret, raised exponents included.
set -euo pipefail
for n in 360 2520; do
  "$LP" factoring --doc "$DOC" --select "【分解$n】" --set Text1=$n --click Command1 --click cmdInsert --click Command2
done
