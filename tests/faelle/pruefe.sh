#!/usr/bin/env bash
# One whole run of the real program: pruefe.sh FOLDER PROGRAM [ARG...] (the program may be an emulator and the program).
#
# FOLDER holds the input, `befehl` (one argument per line), and `erwartet.xml`, the protocol with Date and Time masked as
# "-", compared byte for byte; without it no protocol may come out. With `erwartet.txt`, standard error is compared too.
set -uo pipefail
fall=$1
shift
ort=$(mktemp -d)
trap 'rm -rf "$ort"' EXIT
cp -r "$fall"/. "$ort"
rm -f "$ort/erwartet.xml" "$ort/erwartet.txt"
cd "$ort"
mapfile -t argumente <befehl

"$@" "${argumente[@]}" >ausgabe.txt 2>meldung.txt </dev/null || { echo "exit status $?"; cat meldung.txt; exit 1; }
[ -s ausgabe.txt ] && { echo "standard output is not empty:"; cat ausgabe.txt; exit 1; }
if [ -f "$fall/erwartet.txt" ]; then
    tr -d '\r' <meldung.txt | diff "$fall/erwartet.txt" - || exit 1
fi

if [ ! -f "$fall/erwartet.xml" ]; then
    [ ! -e p.xml ] || { echo "a protocol that should not exist:"; cat p.xml; exit 1; }
    exit 0
fi
[ -f p.xml ] || { echo "no protocol"; exit 1; }
xmllint --noout p.xml || exit 1
LC_ALL=C sed -E 's|<Date>[0-9]{4}-[0-9]{2}-[0-9]{2}</Date><Time>[0-9]{2}:[0-9]{2}</Time>|<Date>-</Date><Time>-</Time>|' \
    p.xml >maskiert.xml
cmp -s "$fall/erwartet.xml" maskiert.xml && exit 0
diff <(sed 's/></>\n</g' "$fall/erwartet.xml" | iconv -f ISO-8859-1 -t UTF-8) \
    <(sed 's/></>\n</g' maskiert.xml | iconv -f ISO-8859-1 -t UTF-8)
exit 1
