#!/usr/bin/env bash
# A flow chart of the absolute value, its connectors attached to the shapes.
set -euo pipefail
config="$(mktemp -u).db"
trap 'rm -f "$config"' EXIT
"$LP" kt --doc "$DOC" --config "$config" --caret "【流程图】" \
  --set txtSteps=$'输入 x\nx≥0？\n否：y=-x\ny=x\n输出 y' --click cmdOK --click cmdExit
