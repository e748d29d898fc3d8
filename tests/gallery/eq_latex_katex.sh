#!/usr/bin/env bash
# The LaTeX expected of every EQ code in eq_latex_rows.tsv parses in KaTeX,
# but for the rows of eq_latex_not_katex.txt. Skips (77) when KaTeX is not installed.
set -euo pipefail
here="$(cd "$(dirname "$0")" && pwd)"
tools="$here/../tools"
[ -f "$tools/node_modules/katex/package.json" ] || { echo "KaTeX missing: make deps installs it (tests/tools/ensure_katex.sh)"; exit 77; }
grep -v '^#' "$here/eq_latex_rows.tsv" | cut -f1,3 | node "$tools/katex_check.js" "$here/eq_latex_not_katex.txt"
