#!/usr/bin/env bash
# Processor time and memory of two programs on large files of each shape of bench/erzeugen.py, side by side: MB/s, and peak
# memory in times the file. The programs take turns, each with two runs in a row, since the first may pay for memory that a
# virtual machine's host took back meanwhile; of each the least of several counts.
# A shape with a catalogue is tested with it; of the one that is nearly all catalogue, the catalogue's bytes count.
#
#     bench/tabelle.sh OLD NEW [RUNS [PART]]
#
# RUNS is 8. PART makes every file smaller: 10 for a tenth.
set -euo pipefail
alt=$(realpath "${1:?the program to compare with}")
neu=$(realpath "${2:?the program}")
laeufe=${3:-8}
teil=${4:-1}
cd "$(dirname "$0")/.."
ordner=$(mktemp -d)
trap 'rm -rf "$ordner"' EXIT
mkdir "$ordner/leer"

# One run: processor seconds and memory in kB.
lauf() {
    rm -f "$ordner/p.xml"
    /usr/bin/time -f '%U %S %M' -o "$ordner/zeit" "$1" "file=$2" dialog=de- "errorfile=$ordner/p.xml" "catalog=$katalog"
    cat "$ordner/zeit"
}

# The runs of both programs on a file, as "old s, old kB, new s, new kB".
messe() {
    for ((i = 0; i < laeufe; i += 2)); do
        printf '%s\n' "1 $(lauf "$alt" "$1")" "1 $(lauf "$alt" "$1")" "2 $(lauf "$neu" "$1")" "2 $(lauf "$neu" "$1")"
    done | awk '{ t = $2 + $3; if (!($1 in zeit) || t < zeit[$1]) zeit[$1] = t; if ($4 > mem[$1]) mem[$1] = $4 }
                END { print zeit[1], mem[1], zeit[2], mem[2] }'
}

printf '%-18s %-4s %-6s %6s %9s %9s %7s %7s %7s\n' shape kind records MB 'old MB/s' 'new MB/s' factor 'old x' 'new x'
while read -r form n arten falsch; do
    for art in ${arten//,/ }; do
        datei=$ordner/a.$art
        # shellcheck disable=SC2086
        bench/erzeugen.py "$form" "$datei" $((n / teil)) $falsch
        katalog=$ordner/leer
        [ ! -d "$datei.katalog" ] || katalog=$datei.katalog
        gemessen=$datei
        [ "$form" != katalog ] || gemessen=$katalog
        read -r alt_s alt_kb neu_s neu_kb < <(messe "$datei")
        awk -v b="$(du -sb "$gemessen" | cut -f1)" -v f="$form" -v a="$art" -v w="${falsch:-clean}" -v s="$alt_s" -v k="$alt_kb" \
            -v t="$neu_s" -v l="$neu_kb" 'BEGIN { if (!s) s = .001; if (!t) t = .001
                printf "%-18s %-4s %-6s %6.1f %9.0f %9.0f %7.2f %7.2f %7.2f\n", f, a, w == "clean" ? w : "wrong", b / 1e6,
                       b / 1e6 / s, b / 1e6 / t, s / t, k * 1024 / b, l * 1024 / b }'
        rm -r "$ordner"/a.*
    done
done <<TXT
dokument 100 01S,E1S
dokument_katalog 100 01S,E1S
katalog 100 01S
umlaute 400000 01S,E1S
schriften 200000 E1S
dokument 100 01S,E1S --falsch
zeichen 1000000 01S,E1S
nur_g2 500000 01S
nur_g3 800000 01S
nur_p 1000000 E1S
nur_u 800000 01S
mengen_allein 1000000 01S
mengen_allein 500000 01S,E1S --falsch
mengen 300000 E1S
laufnummern 900000 01S
konditionen 300000 01S
objekte 200000 01S
objekte_gemischt 900000 01S
doppelte 900000 01S
leer 5000000 01S
TXT
