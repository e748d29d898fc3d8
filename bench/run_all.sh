#!/usr/bin/env bash
# Runs every benchmark the build made; each prints its own figures and ratios.
set -euo pipefail
build="${1:-build}"
for b in "$build"/bench/*/bench_*; do
  [ -f "$b" ] && [ -x "$b" ] || continue
  echo "== $(basename "$b")"
  "$b"
done
