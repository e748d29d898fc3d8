#!/usr/bin/env bash
# Wall time of `lumenpad test --doc` on a small document: the whole front door
# (companion, document, settings, dispatch, save check). Budget: 100 ms.
set -euo pipefail
here="$(cd "$(dirname "$0")" && pwd)"
lp="${LUMENPAD:-$here/../../src/app/lumenpad}"
runs="${RUNS:-21}"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
export QT_QPA_PLATFORM=offscreen
"$lp" factoring --doc "$work/small.docx" --config "$work/config.db" \
  --set Text1=360 --click Command1 --click cmdInsert --click Command2
times=()
for ((i = 0; i < runs; i++)); do
  start=$(date +%s%N)
  "$lp" test --doc "$work/small.docx" --config "$work/config.db"
  times+=($(( ($(date +%s%N) - start) / 1000 )))
done
sorted=($(printf '%s\n' "${times[@]}" | sort -n))
median=${sorted[$((runs / 2))]}
best=${sorted[0]}
printf 'startup: median %d.%03d ms, best %d.%03d ms over %d runs; median/budget(100 ms) = %s\n' \
  $((median / 1000)) $((median % 1000)) $((best / 1000)) $((best % 1000)) "$runs" \
  "$(awk -v m="$median" 'BEGIN { printf "%.2f", m / 100000 }')"
