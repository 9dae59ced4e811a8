#!/usr/bin/env bash
# Installs what is missing, builds the debug build and runs all tests. The last line tells how many tests ran.
set -euo pipefail
cd "$(dirname "$0")"
. tools/pakete.sh
# shellcheck disable=SC2086
tools/einrichten.sh $PAKETE_TEST

echo "== Building (debug, with the assertions of the standard library)"
cmake --preset debug -Wno-dev >/dev/null
cmake --build --preset debug

echo "== Testing"
tools/ctest_lauf.sh build/debug
