#!/usr/bin/env bash
# The samples are what their descriptions make, and the program finds in them what the descriptions say:
# samples_pruefen.sh BAUORDNER. The faulty descriptions name each code that they bring in a comment, as "4221:".
set -uo pipefail
programme=$(cd "$1" && pwd)
quelle=$(cd "$(dirname "$0")/../.." && pwd)
samples=$quelle/samples
ort=$(mktemp -d)
trap 'rm -rf "$ort"' EXIT
fehler=0

klage() {
    echo "$*"
    fehler=1
}

mkdir "$ort/neu"
"$quelle/tools/samples_bauen.sh" "$programme" "$ort/neu" || klage "the samples can't be made"
for datei in sauber.01S fehlerhaft.01S sauber.E1S fehlerhaft.E1S katalog.vlt katalog; do
    diff -r "$samples/$datei" "$ort/neu/$datei" || klage "$datei is not what its description makes"
done

# protokoll FILE CATALOG LANGUAGE: the protocol, one element a line
protokoll() {
    rm -f "$ort/p.xml"
    "$programme/zepholt" "file=$samples/$1" "dialog=$3" "errorfile=$ort/p.xml" "catalog=$samples/$2"
    xmllint --noout --relaxng "$quelle/docs/schema/protokoll.rng" "$ort/p.xml" 2>/dev/null || klage "$1: the protocol is not valid"
    LC_ALL=C sed 's/></>\n</g' "$ort/p.xml"
}

for katalog in katalog katalog.vlt; do
    for art in 01S E1S; do
        for sprache in de- fr- it-; do
            protokoll sauber.$art $katalog $sprache | LC_ALL=C grep -aE '<Error |<(Errors|Warnings)>[1-9]' &&
                klage "sauber.$art brings a finding against $katalog"
            protokoll fehlerhaft.$art $katalog $sprache | LC_ALL=C grep -aoE ' N="[0-9]{4}"' | grep -oE '[0-9]{4}' |
                sort -u >"$ort/gefunden"
            grep -E '^#' "$samples/quellen/fehlerhaft.$art.txt" | grep -oE '\b[0-9]{4}\b' | sort -u >"$ort/genannt"
            diff "$ort/genannt" "$ort/gefunden" || klage "fehlerhaft.$art: said <, found >"
        done
    done
    for funktion in 1 9; do
        rm -f "$ort/liste.xml"
        "$programme/zepholt" "file=*$funktion" dialog=it- "errorfile=$ort/liste.xml" "catalog=$samples/$katalog"
        xmllint --noout --relaxng "$quelle/docs/schema/listen.rng" "$ort/liste.xml" 2>/dev/null || klage "the list $funktion is not valid"
    done
done
exit $fehler
