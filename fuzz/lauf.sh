#!/usr/bin/env bash
# Fuzzes the six targets: lauf.sh SECONDS [FOLDER [PRESET]]
# SECONDS are for all of them together, two at a time. FOLDER keeps what is worth beginning with next time, a folder for
# each target, and what was found (build/fuzz/korpus). PRESET is the one of the build: "fuzz", under sanitizers, or
# "fuzz_schnell", without them. Ends with a table; fails when something was found.
set -uo pipefail
hier=$(cd "$(dirname "$0")" && pwd)
bau=$hier/../build/${3:-fuzz}
sekunden=$1
korpus=${2:-$hier/../build/fuzz/korpus}
ziele="01S E1S kapitel sammeldatei xml kommandotext"
je=$((sekunden / 3 > 0 ? sekunden / 3 : 1)) # two at a time

"$hier/saat.sh" "$bau/saat" "$bau/satzschreiber" "$bau/kapitelschreiber" >/dev/null || exit 1

# Short stacks of allocations and a small quarantine: what is found is seen again by the replay programs anyway.
export ASAN_OPTIONS=malloc_context_size=2:quarantine_size_mb=8:detect_leaks=0

ziel() {
    mkdir -p "$korpus/$1" "$korpus/funde"
    "$bau/fuzz_$1" -max_total_time="$je" -max_len=8192 -timeout=10 -rss_limit_mb=2048 -print_final_stats=1 -entropic=0 -detect_leaks=0 \
        -dict="$hier/woerter/$1.dict" -artifact_prefix="$korpus/funde/$1-" "$korpus/$1" "$bau/saat/$1" \
        >"$korpus/$1.log" 2>&1
}

schlecht=0
set -- $ziele
while [ $# -gt 0 ]; do
    ziel "$1" &
    erster=$!
    ziel "$2" &
    zweiter=$!
    wait "$erster" || schlecht=1
    wait "$zweiter" || schlecht=1
    shift 2
done

printf '%-14s %12s %10s %8s %8s %s\n' target runs runs/s edges files found
for name in $ziele; do
    log=$korpus/$name.log
    wert() { awk -v was="stat::$1:" '$1 == was { print $2 }' "$log"; }
    kanten=$(grep -oE 'cov: [0-9]+' "$log" | tail -n 1 | cut -d' ' -f2)
    funde=$(find "$korpus/funde" -name "$name-*" | wc -l)
    printf '%-14s %12s %10s %8s %8s %s\n' "$name" "$(wert number_of_executed_units)" "$(wert average_exec_per_sec)" \
        "$kanten" "$(find "$korpus/$name" -type f | wc -l)" "$funde"
    [ "$funde" -eq 0 ] || schlecht=1
done
if [ "$schlecht" -ne 0 ]; then
    grep -hE "doesn't hold|ERROR|runtime error|SUMMARY" "$korpus"/*.log
fi
exit "$schlecht"
