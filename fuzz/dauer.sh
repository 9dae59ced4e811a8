#!/usr/bin/env bash
# Fuzzes for whole hours: dauer.sh HOURS [FOLDER]. Builds first; two tables each hour, see lauf.sh: three quarters of it without
# sanitizers, which makes six times as many runs, and a quarter under them on what was found worth keeping. That stays in
# FOLDER (build/fuzz/korpus), so that the next time goes on from there.
set -euo pipefail
hier=$(cd "$(dirname "$0")" && pwd)
cd "$hier/.."
for preset in fuzz fuzz_schnell; do
    cmake --preset "$preset" -Wno-dev >/dev/null
    cmake --build --preset "$preset"
done
for ((stunde = 1; stunde <= $1; ++stunde)); do
    echo "== hour $stunde of $1"
    "$hier/lauf.sh" 2700 "${2:-build/fuzz/korpus}" fuzz_schnell
    "$hier/lauf.sh" 900 "${2:-build/fuzz/korpus}" fuzz
done
