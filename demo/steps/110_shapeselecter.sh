#!/usr/bin/env bash
# Selects the groups of the caret's page, as a teacher does before grouping
# or joining them; the worksheet itself stays as it is.
set -euo pipefail
config="$(mktemp -u).db"
trap 'rm -f "$config"' EXIT
"$LP" shapeselecter --doc "$DOC" --config "$config" --set chkLine=0 --set chkGroup=1 --click cmdOK
