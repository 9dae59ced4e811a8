#!/usr/bin/env bash
# Tests the page in Chromium: seiten_pruefen.sh NATIVE-FOLDER [lang]
# NATIVE-FOLDER holds zepholt and zepholt-bericht, whose outcomes the page's are held against; the page is build/web.
# `lang`: a file of 100 MB instead of 20, and its memory; then the main road in Firefox. Needs chromium (and firefox-esr), and
# node with npm, which fetches playwright-core and axe-core into the build folder.
set -euo pipefail
quelle=$(cd "$(dirname "$0")/../.." && pwd)
nativ=$(realpath "$1")
lang=${2:-}
ort=$quelle/build/modul/seiten
mkdir -p "$ort"
cd "$ort"
if [ ! -d node_modules/ws ]; then
    [ -f package.json ] || echo '{"private":true}' >package.json
    npm install --no-audit --no-fund --silent playwright-core axe-core ws
fi

# pruefe EXCHANGE-FILE PROTOCOL CATALOGUE: the native program's protocol.
pruefe() {
    rm -f "$2"
    "$nativ/zepholt" "file=$1" dialog=de- "errorfile=$2" "catalog=$3"
}
rm -rf los feindlich feindlich.soll
mkdir -p los/a feindlich feindlich.soll
cp "$quelle/samples/fehlerhaft.01S" "$quelle/samples/sauber.01S" los
cp "$quelle/samples/fehlerhaft.E1S" los/a
echo "no exchange file" >los/lies.txt
for datei in fehlerhaft.01S fehlerhaft.E1S sauber.01S sauber.E1S; do
    pruefe "$quelle/samples/$datei" "$datei.xml" "$quelle/samples/katalog"
    "$nativ/zepholt-bericht" csv "$datei.xml" "$quelle/samples/$datei" -l de -o "$datei.csv" || [ $? -eq 1 ]
done
pruefe "$quelle/samples/fehlerhaft.01S" fehlerhaft.01S.vlt.xml "$quelle/samples/katalog.vlt"
cp "$quelle"/samples/*.01S "$quelle"/samples/*.E1S .
/usr/bin/python3 -B "$quelle/tests/web/proben.py" "$quelle" ${lang:+100}
for datei in feindlich/*; do
    pruefe "$datei" "feindlich.soll/$(basename "$datei").xml" "$quelle/samples/katalog"
done
cp "$quelle"/tests/web/*.mjs .
node seiten_pruefen.mjs "$quelle/build/web" "$quelle/samples" ${lang:+"$lang"}
[ -z "$lang" ] || node firefox_pruefen.mjs "$quelle/build/web" "$quelle/samples"
