#!/usr/bin/env bash
# The long versions of all checks that look for faults: nacht.sh [HOURS OF FUZZING] (8). Prints one table at its end; what
# each said stands in build/nacht/. Needs 15 GB of disk and 12 GB of memory; fails when one of them fails.
set -uo pipefail
cd "$(dirname "$0")/.."
stunden=${1:-8}
ort=build/nacht
mkdir -p "$ort"
zeilen=()
schlecht=0

# stufe NAME COMMAND...: runs it and keeps a row with the last line that it said.
stufe() {
    local name=$1 seit=$SECONDS urteil=passed
    shift
    "$@" >"$ort/$name.log" 2>&1 || {
        urteil=FAILED
        schlecht=1
    }
    zeilen+=("$(printf '%-16s %-7s %6d s  %s' "$name" "$urteil" $((SECONDS - seit)) "$(tail -n 1 "$ort/$name.log")")")
    echo "${zeilen[-1]}"
}

# vergleich OLD NEW: the same random files through two programs.
vergleich() {
    tools/vergleiche.py "$1" "$2" 100000
}

bau() {
    for preset in debug release asan fuzz; do
        cmake --preset "$preset" -Wno-dev && cmake --build --preset "$preset" || return 1
    done
    ./web.sh
}

stufe bau bau
stufe unterbrechung tests/fehler/unterbrechung.py build/release/zepholt 1000 build/debug/tests/libzepholt_stoerung.so
stufe stoerung tests/fehler/stoerung.py build/release/zepholt build/debug/tests/libzepholt_stoerung.so
stufe grenzen tests/fehler/grenzen.py build/release/zepholt
stufe vergleich_debug vergleich build/release/zepholt build/debug/zepholt
stufe vergleich_clang vergleich build/release/zepholt build/asan/zepholt
stufe web_gleich tests/web/gleich.sh build/release/zepholt lang
stufe web_seiten tests/web/seiten_pruefen.sh build/release lang
stufe mutanten tools/mutanten.py support state errors intake doctest catalogue items --probe 400
stufe fuzz fuzz/dauer.sh "$stunden"
echo
printf '%s\n' "${zeilen[@]}"
exit "$schlecht"
