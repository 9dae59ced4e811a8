#!/usr/bin/env bash
# How a run grows with its file: for each shape of bench/erzeugen.py, clean and wrong, the processor time of n and of 4n.
#
#     bench/wachstum.sh [PROGRAM]
set -euo pipefail
cd "$(dirname "$0")/.."
programm=$(realpath "${1:-build/release/zepholt}")
ordner=$(mktemp -d)
trap 'rm -rf "$ordner"' EXIT
mkdir "$ordner/leer"

# Processor seconds, the least of five runs, and peak memory in MB.
TIMEFORMAT='%3U %3S'
miss() {
    for _ in 1 2 3 4 5; do
        rm -f "$ordner/p.xml"
        { time /usr/bin/time -f %M -o "$ordner/kB" "$programm" "file=$1" dialog=de- "errorfile=$ordner/p.xml" \
            "catalog=$ordner/leer"; } 2>&1
        cat "$ordner/kB"
    done | awk 'NF == 2 { t = $1 + $2; if (!n++ || t < b) b = t }
                NF == 1 { if ($1 > m) m = $1 }
                END { printf "%.3f %.0f", b, m / 1024 }'
}

printf '%-18s %-4s %-7s %9s %9s %7s %9s\n' shape kind records 'n s' '4n s' factor '4n MB'
while read -r form n; do
    for art in 01S E1S; do
        for falsch in "" --falsch; do
            # shellcheck disable=SC2086
            bench/erzeugen.py "$form" "$ordner/n.$art" "$n" $falsch
            # shellcheck disable=SC2086
            bench/erzeugen.py "$form" "$ordner/4n.$art" $((4 * n)) $falsch
            read -r klein _ < <(miss "$ordner/n.$art"; echo)
            read -r gross mb < <(miss "$ordner/4n.$art"; echo)
            printf '%-18s %-4s %-7s %9s %9s %7s %9s\n' "$form" "$art" "${falsch:-clean}" "$klein" "$gross" \
                "$(awk "BEGIN { printf \"%.1f\", $klein ? $gross / $klein : 0 }")" "$mb"
        done
    done
done <<TXT
kapitel 100000
positionen 100000
mengen 50000
laufnummern 100000
gliederung 50000
einschraenkungen 50000
undefiniert 250000
zeichen 250000
TXT
