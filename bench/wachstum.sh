#!/usr/bin/env bash
# How a run grows with its file: for each shape of bench/erzeugen.py the processor time of n, 4n and 16n.
set -euo pipefail

hilfe() {
    cat <<'TXT'
bench/wachstum.sh [PROGRAMM [RUNS [SHAPE...]]]

Measures how a run of PROGRAMM (build/release/zepholt unless given) grows with its file: for each SHAPE of
bench/erzeugen.py (all unless some are named), clean (sauber) or with every record wrong (falsch), the processor time of a
file of size n, of one four times and of one sixteen times that size, the least of RUNS (5) each. Factors near 4 and 16 mean
that time grows in step with the file; above 5 and 22 the script fails. Then records with one order number, n of which
have n*(n-1)/2 findings by the rules: there the time for a finding must stay the same. Files that were chosen to make a
table slow are among the limits: tests/fehler/grenzen.py. Takes half an hour and about 500 MB in the folder for temporary
files; needs /usr/bin/time and xmllint.

Columns: shape, interface, records, seconds for n, their factors for 4n and 16n, peak memory for 16n in MB.
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
laeufe=${2:-5}
shift $(($# < 2 ? $# : 2))
formen=" $* "
if [ ! -f "$programm" ] || [ ! -x "$programm" ]; then
    echo "bench/wachstum.sh: $programm is no program; --help tells more" >&2
    exit 1
fi
cd "$(dirname "$0")/.."
ordner=$(mktemp -d)
trap 'rm -rf "$ordner"' EXIT
mkdir "$ordner/leer"

# Processor seconds, the least of all runs, and peak memory in MB.
TIMEFORMAT='%3U %3S'
miss() {
    local katalog=$ordner/leer
    [ ! -d "$1.katalog" ] || katalog=$1.katalog
    for ((i = 0; i < laeufe; ++i)); do
        rm -f "$ordner/p.xml"
        { time /usr/bin/time -f %M -o "$ordner/kB" "$programm" "file=$1" dialog=de- "errorfile=$ordner/p.xml" \
            "catalog=$katalog"; } 2>&1
        cat "$ordner/kB"
    done | awk '
        NF == 2 { t = $1 + $2; if (!n++ || t < b) b = t }
        NF == 1 { if ($1 > m) m = $1 }
        END { if (!b) b = 0.001; printf "%.3f %.0f\n", b, m / 1024 }'
}

# erzeuge TIMES: the file of that many times n.
erzeuge() {
    rm -rf "$ordner"/a.*
    # shellcheck disable=SC2086
    bench/erzeugen.py "$form" "$ordner/a.$art" $(($1 * n)) $falsch
}

schlecht=0
printf '%-18s %-4s %-7s %9s %7s %7s %9s\n' Form Art Saetze 'n s' 4n 16n '16n MB'
while read -r form n arten falsch; do
    [ "$formen" = "  " ] || [[ $formen == *" $form "* ]] || continue
    for art in ${arten//,/ }; do
        erzeuge 1
        read -r eins _ < <(miss "$ordner/a.$art")
        erzeuge 4
        read -r vier _ < <(miss "$ordner/a.$art")
        erzeuge 16
        read -r sechzehn mb < <(miss "$ordner/a.$art")
        awk -v f="$form" -v a="$art" -v s="${falsch:+falsch}" -v e="$eins" -v v="$vier" -v z="$sechzehn" -v m="$mb" 'BEGIN {
            zu = v / e > 5.0 || z / e > 22
            printf "%-18s %-4s %-7s %9.3f %7.1f %7.1f %9.0f%s\n", f, a, s ? s : "sauber", e, v / e, z / e, m, zu ? " too much" : ""
            exit zu }' || schlecht=1
    done
done <<TXT
dokument 6 01S,E1S
dokument 6 01S,E1S --falsch
dokument_katalog 6 01S,E1S
katalog 25 01S
zeichen 60000 01S,E1S
undefiniert 60000 01S
kapitel 60000 01S
kapitel 60000 01S --falsch
positionen 33000 01S,E1S
positionen 33000 01S --falsch
mengen 20000 E1S
mengen_allein 60000 01S
mengen_allein 40000 01S,E1S --falsch
laufnummern 60000 01S,E1S
laufnummern 60000 01S --falsch
gliederung 40000 01S
gliederung 40000 01S --falsch
einschraenkungen 60000 01S,E1S
einschraenkungen 60000 01S --falsch
konditionen 30000 01S
umlaute 25000 01S,E1S
schriften 15000 E1S
nur_g2 30000 01S
nur_g3 50000 01S
nur_p 60000 E1S
nur_u 50000 01S
objekte 20000 01S
objekte_gemischt 60000 01S
doppelte 60000 01S
leer 300000 01S
TXT

# n records of one order number: the time for each of the n*(n-1)/2 findings.
art=01S form=gleiche_ordnung falsch=
[ "$formen" = "  " ] || [[ $formen == *" $form "* ]] || exit "$schlecht"
for n in 1000 2000 4000; do
    erzeuge 1
    read -r sekunden mb < <(miss "$ordner/a.$art")
    echo "$n $sekunden $mb $(xmllint --huge --xpath 'string(/SIA451/Test/Errors)' "$ordner/p.xml")"
done | awk '
    { je = $2 / $4 * 1e9; printf "%-18s %6d records, %8d findings, %7.3f s, %5.0f ns and %4.1f bytes for each\n",
          "gleiche_ordnung", $1, $4, $2, je, $3 * 1048576 / $4; if (NR == 1) erste = je }
    END { exit je > 1.5 * erste }' || schlecht=1
exit "$schlecht"
