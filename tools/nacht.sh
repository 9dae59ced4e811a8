#!/usr/bin/env bash
# The long versions of all checks that look for faults: nacht.sh [HOURS OF FUZZING [PART]] (8, 1). Prints one table at
# its end; what each said stands in build/nacht/. Needs 15 GB of disk and 12 GB of memory; fails when one of them fails.
# PART shrinks all but the fuzzing, to try the script: 100 for a hundredth.
set -uo pipefail
cd "$(dirname "$0")/.."
stunden=${1:-8}
teil=${2:-1}
. tools/pakete.sh
# shellcheck disable=SC2086
tools/einrichten.sh $PAKETE_NACHT || exit 1
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

bau() {
    for preset in debug release asan; do
        cmake --preset "$preset" -Wno-dev && cmake --build --preset "$preset" || return 1
    done
    ./web.sh
}

stufe bau bau
stufe unterbrechung tests/fehler/unterbrechung.py build/release/zepholt $((1000 / teil)) \
    build/debug/tests/libzepholt_stoerung.so
stufe stoerung tests/fehler/stoerung.py build/release/zepholt build/debug/tests/libzepholt_stoerung.so
stufe grenzen tests/fehler/grenzen.py build/release/zepholt "$teil"
stufe seiten tests/bericht/seiten_pruefen.sh build/release
stufe oeffnen bench/oeffnen.sh build/release
stufe vergleich tools/vergleiche.py build/release/zepholt --viele build/debug/viele_laeufe --viele build/asan/viele_laeufe \
    $((100000 / teil))
stufe windows env DOKUMENTE=$((100000 / teil)) tools/windows_pruefen.sh
stufe felder tools/mutanten.py doctest items --art zahl --skripte --probe $((2000 / teil))
stufe mutanten tools/mutanten.py support state errors intake doctest catalogue items --skripte --probe $((400 / teil))
stufe stapel tests/stapel/abschuesse.py build/release 100000
stufe stapel_tempo tests/stapel/tempo.py build/release 20000
stufe pakete ./package.sh
stufe pakete_probe tools/pakete_pruefen.sh
stufe reproduzierbar tools/reproduzierbar.sh
stufe pakete_fenster tools/pakete_pruefen.sh fenster
stufe web_gleich tests/web/gleich.sh build/release/zepholt lang
stufe web_seiten tests/web/seiten_pruefen.sh build/release lang
stufe fuzz fuzz/dauer.sh "$stunden"
echo
printf '%s\n' "${zeilen[@]}"
exit "$schlecht"
