#!/usr/bin/env bash
# The slower checks: form, the order of the rooms, clang-tidy, the tests under the sanitizers, the whole runs with what users get and with the
# program that clang builds, and on Windows under Wine.
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/pakete.sh
# shellcheck disable=SC2086
tools/einrichten.sh $PAKETE_CI

echo "== Form (clang-format)"
git ls-files '*.cpp' '*.h' | xargs -r clang-format --dry-run --Werror

echo "== Rooms: none includes what stands below it"
tools/raeume_pruefen.py

echo "== clang-tidy"
[ -f build/debug/compile_commands.json ] || cmake --preset debug -Wno-dev >/dev/null
git ls-files 'src/*.cpp' 'tools/*.cpp' | grep -vE '_windows|windows/|win32|qt' |
    xargs -r -P "$(nproc)" -n 2 clang-tidy -p build/debug --quiet --extra-arg=-Wno-unknown-warning-option 2>/dev/null

echo "== Tests under the address and undefined-behaviour sanitizers"
cmake --preset asan -Wno-dev >/dev/null
cmake --build --preset asan
tools/ctest_lauf.sh build/asan

echo "== The main job, and whole runs with the release build"
./run.sh >/dev/null
for fall in tests/faelle/*/befehl; do
    tests/faelle/pruefe.sh "$PWD/$(dirname "$fall")" "$PWD/build/release/zepholt"
done
for skript in tests/codes/*_test.py; do
    python3 "$skript" "$PWD/build/release/zepholt"
done

echo "== Whole runs with the program that clang builds"
cmake --preset clang -Wno-dev >/dev/null
cmake --build --preset clang --target zepholt zepholt_fenster_qt
tools/ctest_lauf.sh build/clang -R '^(faelle|codes)/'

echo "== The Windows program and its tests under Wine"
tools/windows_pruefen.sh

echo "== The windows of the Windows program, by clicks and keys"
tests/fenster/wine_fenster.sh
