#!/usr/bin/env bash
# An angle typed as an exact multiple of pi, and a radian back in degrees,
# each through the angle dialog at its caret.
set -euo pipefail
config="$(mktemp -u).db"
trap 'rm -f "$config"' EXIT
run() { "$LP" "$@" --doc "$DOC" --config "$config"; }
run angle2radian --select "【弧度】" --set txtDu=135 --click cmdOK --click cmdExit
run angle2radian --select "【角度】" --set optDir_1=1 --set txtRad=5π/6 --click cmdOK --click cmdExit
