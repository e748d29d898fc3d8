#!/bin/sh
# Runs the COM back end's tests under Wine, headless, in a throw-away prefix
# under the MinGW build folder. Fails when Wine is missing.
# usage: run_under_wine.sh BUILD_MINGW_DIR
set -u
build=${1:?usage: run_under_wine.sh BUILD_MINGW_DIR}
exe="$build/tests/word_com/word_com_wine_tests.exe"
if [ -x /usr/lib/wine/wine64 ]; then
  wine=/usr/lib/wine/wine64
elif command -v wine64 >/dev/null 2>&1; then
  wine=wine64
elif command -v wine >/dev/null 2>&1; then
  wine=wine
else
  echo "COM under Wine: Wine is missing (install wine64); the COM back end was not run" >&2
  exit 1
fi
if [ ! -f "$exe" ]; then
  echo "COM under Wine: $exe is missing; run make com first" >&2
  exit 1
fi
WINEPREFIX="$(cd "$build" && pwd)/wineprefix"
export WINEPREFIX WINEDEBUG=-all OANOCACHE=1
unset DISPLAY WAYLAND_DISPLAY
# A first start creates the prefix; its messages are no test output.
[ -d "$WINEPREFIX" ] || "$wine" cmd /c exit >/dev/null 2>&1
# A script that never ends fails the run instead of holding the build.
exec timeout 300 "$wine" "$exe"
