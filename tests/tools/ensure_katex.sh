#!/usr/bin/env bash
# KaTeX checks the LaTeX the formula engine writes; it is a test tool only.
set -euo pipefail
dir="$(cd "$(dirname "$0")" && pwd)"
[ -f "$dir/node_modules/katex/package.json" ] && exit 0
command -v npm >/dev/null || { echo "npm missing: KaTeX checks will be skipped"; exit 0; }
npm install --prefix "$dir" --no-audit --no-fund --silent katex@0.16 >/dev/null 2>&1 \
  || echo "KaTeX could not be installed: its checks will be skipped"
