#!/usr/bin/env bash
# Fuzzes for hours: dauer.sh HOURS [FOLDER]. Builds first; a table each hour, see lauf.sh. What is worth keeping stays in
# FOLDER (build/fuzz/korpus), so that the next time goes on from there.
set -euo pipefail
hier=$(cd "$(dirname "$0")" && pwd)
cd "$hier/.."
cmake --preset fuzz -Wno-dev >/dev/null
cmake --build --preset fuzz
for ((stunde = 1; stunde <= $1; ++stunde)); do
    echo "== hour $stunde of $1"
    "$hier/lauf.sh" 3600 "${2:-build/fuzz/korpus}"
done
