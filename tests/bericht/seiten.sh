# For the scripts of this folder, which source it: the pages that are tested and shown, in a folder of the build.

# browser_bereiten BUILD: goes to the folder of the pages, and fetches what drives the browser.
browser_bereiten() {
    mkdir -p "$1/seiten"
    cd "$1/seiten"
    [ ! -d node_modules/axe-core ] || return 0
    [ -f package.json ] || echo '{"private":true}' >package.json
    npm install --no-audit --no-fund --silent playwright-core axe-core
}

# seiten_bereiten BUILD LINES: browser_bereiten, and the pages; the large one has about that many lines. seiten.txt then
# names each page with the number of its findings and of its warnings that an XML parser of another kind counts in its
# protocol.
seiten_bereiten() {
    local bau=$1 zeilen=$2 quelle datei status
    quelle=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
    browser_bereiten "$bau"
    cp "$quelle"/samples/*.01S "$quelle"/samples/*.E1S .
    python3 "$quelle/tests/bericht/beispiele.py" . "$zeilen"
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
    rm -f ./*.bericht*.html ./*.protokoll*.xml Berichte*.html
    "$bau/zepholt-bericht" test -l de -c "$quelle/samples/katalog" -- *.E1S fehlt.01S abgewiesen.01S >uebersicht.txt 2>/dev/null || true
    mv Berichte.html uebersicht.html
}
