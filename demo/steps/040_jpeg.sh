#!/usr/bin/env bash
# The JPEG writer: a photograph saved by lumenpad's own encoder beside the worksheet.
set -euo pipefail
photo="$(dirname "$0")/../../../shared/corpus/img/kodak/kodim23.png"
[ -f "$photo" ] || { echo "demo: no photograph to encode, skipped"; exit 0; }
"$LP" --jpeg "$photo" "$(dirname "$DOC")/photo.jpg"
