#!/usr/bin/env bash
# Builds the Windows program and runs its tests under Wine, with a Wine prefix inside the build folder. Then 2,000
# random files (DOKUMENTE for another number) give the same protocols as on Linux.
set -euo pipefail
cd "$(dirname "$0")/.."
cmake --preset windows -Wno-dev >/dev/null
cmake --build --preset windows

export WINEPREFIX="$PWD/build/windows/wp" WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
wineserver=/usr/lib/wine/wineserver64
[ -x "$wineserver" ] || wineserver=/usr/lib/wine/wineserver
if [ ! -d "$WINEPREFIX" ]; then
    /usr/lib/wine/wine64 wineboot -i >/dev/null 2>&1
    "$wineserver" -w
fi
# One server for all tests: one that each test started for itself would cost seconds. The streams must not be the
# caller's, or it would wait for the server's end.
"$wineserver" -p </dev/null >/dev/null 2>&1
/usr/lib/wine/wine64 cmd /c exit </dev/null >/dev/null 2>&1
trap '"$wineserver" -k </dev/null >/dev/null 2>&1 || true' EXIT
# Where addresses are random, Wine finds no room for itself in one of 4,000 starts; in one of 6,000 it hangs before the
# program begins.
setarch -R tools/ctest_lauf.sh build/windows --timeout 600 --repeat after-timeout:2

cmake --preset debug -Wno-dev >/dev/null
cmake --build --preset debug --target zepholt
setarch -R tools/vergleiche.py build/debug/zepholt --viele "/usr/lib/wine/wine64 build/windows/viele_laeufe.exe" "${DOKUMENTE:-2000}"
