#!/usr/bin/env bash
# Makes the seeds of the fuzz targets from their descriptions: saat.sh FOLDER SATZSCHREIBER KAPITELSCHREIBER
# FOLDER gets a folder for each target. The descriptions of the samples are
# cut into small files: each block of records between the head and the end.
set -euo pipefail
ziel=$1
satzschreiber=$2
kapitelschreiber=$3
hier=$(cd "$(dirname "$0")" && pwd)
quellen=$hier/../samples/quellen
rm -rf "$ziel"
mkdir -p "$ziel"/{01S,E1S,kapitel,sammeldatei,xml,kommandotext,stuecke}

for art in 01S E1S; do
    for name in sauber fehlerhaft; do
        awk -v RS= -v vor="$ziel/stuecke/$name" -v art="$art" '
            { block[NR] = $0 }
            END {
                for (i = 1; i <= NR; ++i) {
                    datei = vor i "." art ".txt"
                    print block[1] "\n" (i > 1 && i < NR ? block[i] "\n" : "") block[NR] > datei
                    close(datei)
                }
            }' <(sed '/^#/d' "$quellen/$name.$art.txt")
    done
    for stueck in "$ziel"/stuecke/*."$art".txt; do
        $satzschreiber "$stueck" "$ziel/$art/$(basename "$stueck" .txt)"
    done
done

$kapitelschreiber kapitel "$hier/saat/kapitel.txt" "$ziel/kapitel"
$kapitelschreiber sammeln "$ziel/sammeldatei/alle" "$ziel"/kapitel/*.qvm
cp "$ziel"/kapitel/*.qvm "$ziel/sammeldatei"

# One seed for each line.
for name in xml kommandotext; do
    nummer=0
    while IFS= read -r zeile; do
        printf '%s' "$zeile" >"$ziel/$name/$((++nummer))"
    done <"$hier/saat/$name.txt"
done
rm -r "$ziel/stuecke"
