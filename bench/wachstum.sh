#!/usr/bin/env bash
# How a run grows with its file: for each shape of bench/erzeugen.py, clean and wrong, the processor time of n and of 4n.
set -euo pipefail

hilfe() {
    cat <<'TXT'
bench/wachstum.sh [PROGRAMM]

Measures how a run of PROGRAMM (build/release/zepholt unless given) grows with its file: for each shape of
bench/erzeugen.py, as a 01S and as an E1S file, clean (sauber) and with every record wrong (falsch), the processor time
of a file of size n and of one four times that size, the least of five runs each. A factor near 4 means that time grows
in step with the file. Takes some minutes and about 500 MB in the folder for temporary files; needs /usr/bin/time.

Columns: shape, interface, records, seconds for n, seconds for 4n, their ratio, peak memory for 4n in MB.
TXT
}

case ${1:-} in
--help)
    hilfe
    exit 0
    ;;
-*)
    echo "bench/wachstum.sh: unknown option '$1'; --help tells more" >&2
    exit 1
    ;;
esac
programm=$(realpath "${1:-$(dirname "$0")/../build/release/zepholt}")
if [ ! -f "$programm" ] || [ ! -x "$programm" ]; then
    echo "bench/wachstum.sh: $programm is no program; --help tells more" >&2
    exit 1
fi
cd "$(dirname "$0")/.."
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

printf '%-18s %-4s %-7s %9s %9s %7s %9s\n' Form Art Saetze 'n s' '4n s' Faktor '4n MB'
while read -r form n; do
    for art in 01S E1S; do
        for saetze in sauber falsch; do
            wahl=()
            [ $saetze = sauber ] || wahl=(--falsch)
            bench/erzeugen.py "$form" "$ordner/n.$art" "$n" "${wahl[@]}"
            bench/erzeugen.py "$form" "$ordner/4n.$art" $((4 * n)) "${wahl[@]}"
            read -r klein _ < <(miss "$ordner/n.$art"; echo)
            read -r gross mb < <(miss "$ordner/4n.$art"; echo)
            printf '%-18s %-4s %-7s %9s %9s %7s %9s\n' "$form" "$art" "$saetze" "$klein" "$gross" \
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
