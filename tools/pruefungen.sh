#!/usr/bin/env bash
# The slower checks: form, clang-tidy, the tests under the sanitizers, with clang, and on Windows under Wine.
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/pakete.sh
# shellcheck disable=SC2086
tools/einrichten.sh $PAKETE_CI

echo "== Form (clang-format)"
git ls-files '*.cpp' '*.h' | xargs -r clang-format --dry-run --Werror

echo "== clang-tidy"
[ -f build/debug/compile_commands.json ] || cmake --preset debug -Wno-dev >/dev/null
git ls-files 'src/*.cpp' 'tools/*.cpp' | grep -vE '_windows|windows/|win32|qt' |
    xargs -r -P "$(nproc)" -n 4 clang-tidy -p build/debug --quiet 2>/dev/null

echo "== Tests under the address and undefined-behaviour sanitizers"
cmake --preset asan -Wno-dev >/dev/null
cmake --build --preset asan
tools/ctest_lauf.sh build/asan

echo "== Tests built by clang"
cmake --preset clang -Wno-dev >/dev/null
cmake --build --preset clang
tools/ctest_lauf.sh build/clang

echo "== The Windows program and its tests under Wine"
tools/windows_pruefen.sh
