#!/usr/bin/env bash
# The beautifier over a line of plain text the teacher selects.
set -euo pipefail
"$LP" mhgs --doc "$DOC" --select "2x+3y=12，x-y=1"
