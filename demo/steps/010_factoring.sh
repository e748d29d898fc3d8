#!/usr/bin/env bash
# The factorisation of 360, typed by the factoring dialog with raised exponents.
set -euo pipefail
"$LP" factoring --doc "$DOC" --set Text1=360 --click Command1 --click cmdInsert --click Command2
