#!/usr/bin/env bash
# The slower checks: form, the order of the rooms, clang-tidy, the tests built by clang under its sanitizers, fuzzing, the
# cases by code with what users get and its limits, the program in the browser, the tests on Windows under Wine, the pages,
# many files, and the packages. What runs under Wine and in browsers, which waits more than it works, has a road of its own
# beside the rest.
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/pakete.sh
# shellcheck disable=SC2086
tools/einrichten.sh $PAKETE_CI

# stufe TEXT: heads a stage, and tells how long the one before took.
stufe() {
    [ -z "${seit:-}" ] || echo "   ($((SECONDS - seit)) s)"
    seit=$SECONDS
    echo "== $1"
}

# All that runs in a browser. Needs the release build and the debug build.
im_browser() {
    seit=
    stufe "The same protocols from the module for browsers, under node"
    ./web.sh
    tests/web/gleich.sh build/release/zepholt

    stufe "The page that tests in a browser, in Chromium"
    tests/web/seiten_pruefen.sh build/release

    stufe "The pages of the report, in Chromium"
    tests/bericht/seiten_pruefen.sh build/debug

    stufe "The pages of the codes, in Chromium"
    tests/hilfe/seiten_pruefen.sh build/debug
    stufe "All of it done"
}

# All that runs under Wine, which finds no room for itself in one of 4,000 starts where addresses are random. Needs both
# builds too.
unter_wine() {
    seit=
    stufe "The Windows program and its tests under Wine"
    tools/windows_pruefen.sh
    tools/haertung_pruefen.sh build/windows/zepholt.exe

    stufe "What the documents show for Windows, and the example as a batch file"
    WINEPREFIX="$PWD/build/windows/wp" setarch -R tests/doku/windows.py build/windows

    stufe "The windows of the Windows program, and files dropped on zepholt-pruefen"
    setarch -R tests/fenster/wine_fenster.sh
    setarch -R tests/desktop/wine_pruefen.sh
    stufe "All of it done"
}

# abwarten PROCESS LOG: the end of what runs beside, and what it said.
abwarten() {
    local status=0
    wait "$1" || status=$?
    cat "$2"
    return "$status"
}

stufe "Form (clang-format)"
git ls-files '*.cpp' '*.h' | xargs -r clang-format --dry-run --Werror

stufe "Rooms: none includes what stands below it"
tools/raeume_pruefen.py
tools/raeume_zeichnen.py --pruefen

stufe "clang-tidy, of what has changed since it was right"
[ -f build/debug/compile_commands.json ] || cmake --preset debug -Wno-dev >/dev/null
tools/tidy.py build/debug

stufe "The main job"
./run.sh >/dev/null
cmake --build --preset debug --target ziehen zepholt zepholt-bericht
im_browser >build/im_browser.log 2>&1 &
browser=$!
(
    tail --pid="$browser" -f /dev/null
    unter_wine
) >build/unter_wine.log 2>&1 &
wine=$!
trap wait EXIT # also when a stage fails

stufe "Tests under the address and undefined-behaviour sanitizers"
cmake --preset asan -Wno-dev >/dev/null
cmake --build --preset asan
tools/ctest_lauf.sh build/asan

stufe "Fuzzing, a minute for all targets"
cmake --preset fuzz -Wno-dev >/dev/null
cmake --build --preset fuzz
korpus=$(mktemp -d)
fuzz/lauf.sh 60 "$korpus"
rm -r "$korpus"

stufe "The cases by code with what users get"
cmake --preset release -Wno-dev -DZEPHOLT_TESTS=ON >/dev/null
tools/ctest_lauf.sh build/release -R '^codes/'

stufe "The same protocols from every compiler, on random files"
tools/vergleiche.py build/release/zepholt --viele build/debug/viele_laeufe --viele build/asan/viele_laeufe 2000

stufe "What users get: hardened, and within its limits"
tools/haertung_pruefen.sh build/release/zepholt build/release/zepholt_fenster_qt.so
tests/fehler/grenzen.py build/release/zepholt 100

stufe "The examples in C# and Java"
tests/doku/aufrufe.py build/release java csharp

stufe "Many files: 2,000 with kills, then by ssh and Slurm"
tests/stapel/abschuesse.py build/release 2000
tests/stapel/viele_rechner.sh build/release || [ $? -eq 77 ]

stufe "What ran in browsers beside all this"
abwarten "$browser" build/im_browser.log

stufe "The packages"
./package.sh >build/pakete.log 2>&1 || {
    tail -n 40 build/pakete.log
    exit 1
}

stufe "What ran under Wine beside all this"
abwarten "$wine" build/unter_wine.log

stufe "From each package to the first report in a minute: a fresh Debian 12, the static build, Wine"
tools/pakete_pruefen.sh

stufe "All checks done"
