# Sourced by the end-to-end scripts after setting check, lp and here: a
# scratch folder to work in, a settings file of its own, and the helpers
# every script uses.
work="$(mktemp -d)"
trap 'chmod -R u+w "$work" 2>/dev/null; rm -rf "$work"' EXIT
cd "$work"
db="$work/config.db"

fail() { echo "FAIL: $*" >&2; exit 1; }
# LibreOffice with a profile of this script's own: two instances sharing the
# default one hand their work to each other, and one of them makes nothing.
soffice() { command soffice -env:UserInstallation="file://$work/lo" "$@"; }
run() { "$lp" "$@" --config "$db"; }
# seed FILE LINE...: a document holding the lines, as a teacher typed them.
seed() {
  local out="$1"
  shift
  printf '%s\n' "$@" > lines.txt
  python3 "$here/../../demo/seed_worksheet.py" "$out" lines.txt
}
