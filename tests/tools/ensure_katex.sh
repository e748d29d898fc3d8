#!/usr/bin/env bash
# KaTeX checks the LaTeX the formula engine writes; it is a test tool only,
# installed with npm (part of the nodejs package) into this folder. Fails
# when it cannot be installed, so that the check never skips unnoticed.
set -euo pipefail
dir="$(cd "$(dirname "$0")" && pwd)"
[ -f "$dir/node_modules/katex/package.json" ] && exit 0
command -v npm >/dev/null || { echo "npm missing: install nodejs for the KaTeX check" >&2; exit 1; }
npm install --prefix "$dir" --no-audit --no-fund --silent katex@0.16 >/dev/null || {
  echo "KaTeX could not be installed with npm: the formula check needs it" >&2
  exit 1
}
