#!/usr/bin/env bash
# Tests the report's pages in Chromium and takes their pictures: seiten_pruefen.sh [build folder] [folder for pictures].
# Needs chromium and node with npm, which fetches playwright-core and axe-core into the build folder.
set -euo pipefail
quelle=$(cd "$(dirname "$0")/../.." && pwd)
bau=$(realpath "${1:-$quelle/build/debug}")
ordner="$bau/seiten"
bilder=$(realpath -m "${2:-$ordner/bilder}")
mkdir -p "$ordner" "$bilder"
cd "$ordner"
if [ ! -d node_modules/axe-core ]; then
    [ -f package.json ] || echo '{"private":true}' >package.json
    npm install --no-audit --no-fund --silent playwright-core axe-core
fi
cp "$quelle"/samples/*.01S "$quelle"/samples/*.E1S .
python3 "$quelle/tests/bericht/beispiele.py" . 76000

# Each page with the number of findings that an XML parser of another kind counts in its protocol.
: >seiten.txt
for datei in fehlerhaft.01S fehlerhaft.E1S sauber.E1S abgewiesen.01S feindlich.E1S gross.01S; do
    rm -f "$datei.xml"
    "$bau/zepholt" "file=$datei" dialog=de- "errorfile=$datei.xml" "catalog=$quelle/samples/katalog"
    status=0
    "$bau/zepholt-bericht" html "$datei.xml" "$datei" -o "$datei.html" -c samples/katalog || status=$?
    [ "$status" -le 1 ]
    echo "$datei $(xmllint --xpath 'count(/SIA451/Errors/Error)' --huge "$datei.xml")" \
        "$(xmllint --xpath 'count(/SIA451/Errors/Error[@E="B"])' --huge "$datei.xml")" >>seiten.txt
done
cp "$quelle/tests/bericht/seiten_pruefen.mjs" .
node seiten_pruefen.mjs "$bilder"
