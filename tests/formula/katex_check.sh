#!/usr/bin/env bash
# Every formula of the corpus through `lumenpad --latex -`, each result parsed
# by KaTeX. Skips (77) when KaTeX is not installed.
set -euo pipefail
lumenpad="$1"
here="$(cd "$(dirname "$0")" && pwd)"
tools="$here/../tools"
[ -f "$tools/node_modules/katex/package.json" ] || { echo "KaTeX missing: make deps installs it (tests/tools/ensure_katex.sh)"; exit 77; }
out="$(mktemp)"
config="$out.db"
trap 'rm -f "$out" "$config"' EXIT
"$lumenpad" --latex - --config "$config" < "$here/corpus.txt" > "$out"
expected=$(wc -l < "$here/corpus.txt")
actual=$(wc -l < "$out")
[ "$expected" = "$actual" ] || { echo "got $actual results for $expected formulas"; exit 1; }
paste -d '\t' "$here/corpus.txt" "$out" | node "$tools/katex_check.js" "$here/latex_known_invalid.txt" 2>/dev/null
