#!/usr/bin/env bash
# Looks at the packages that package.sh has made, each on a system of its own: pakete_pruefen.sh [PART...]
#
#   groessen   the sizes, against their limits; the sums
#   haertung   what tools/haertung_pruefen.sh looks at, of every packaged program
#   lintian    Debian's judge of packages; the rights in their copyright are those of the info window
#   debian     fresh Debian 12: install, first report, remove without a trace
#   statisch   fresh Debian 11, or an empty folder as root where there is none: the static build's first report
#   windows    Wine, in a folder with blanks and umlauts: the ZIP's first report
#   fenster    fresh Debian 12 with the window and zepholt-stapel, from the network: some minutes, and not among the parts run
#              without names
#
# Each road from package to first report is timed. Needs to be root for the fresh systems.
set -euo pipefail
cd "$(dirname "$0")/.."
if [ "$(id -u)" -ne 0 ]; then
    exec sudo --preserve-env=XDG_CACHE_HOME,HOME "$0" "$@"
fi
pakete=$PWD/build/pakete
fassung=$(sed -nE 's/^project\(zepholt VERSION ([0-9.]+).*/\1/p' CMakeLists.txt)
ort=$(mktemp -d)
trap 'rm -rf --one-file-system "$ort"' EXIT
schlecht=0

klage() {
    echo "   $*"
    schlecht=1
}

# Clock: `uhr` starts it, `zeit` prints the seconds since.
uhr() { anfang=${EPOCHREALTIME/./}; }
zeit() { echo "$(((${EPOCHREALTIME/./} - anfang) / 100000))" | sed -E 's/(.)$/.\1/; s/^\./0./'; }

# erster_bericht SECONDS WHERE: tells the time of a road.
erster_bericht() {
    echo "   $2: first report after $1 s"
    [ "${1%.*}" -lt 60 ] || klage "$2: more than a minute"
}

# bericht_gut FOLDER: its protocol p.xml has the findings of the faulty sample, its page b.html is whole.
bericht_gut() {
    grep -aq '<Errors>35</Errors><Warnings>6</Warnings>' "$1/p.xml" && grep -aq '^</html>' "$1/b.html"
}

# frisch SUITE: a fresh system in $ort/SUITE.
frisch() {
    local archiv
    archiv=$(tools/debian_basis.sh "$1") || return 1
    rm -rf "${ort:?}/$1"
    mkdir "$ort/$1"
    tar -C "$ort/$1" -xf "$archiv"
}

# drin ROOT COMMAND...: runs it in there, with /proc, where this system lets mount. Mounts and processes end with it.
drin() {
    if ! unshare --mount true 2>/dev/null; then
        chroot "$@" </dev/null
        return
    fi
    unshare --mount --pid --fork --kill-child sh -c 'mount -t proc proc "$0/proc" && exec chroot "$0" "$@"' "$@" </dev/null
}

# bestand ROOT: every path but what the package tools keep for themselves.
bestand() {
    (cd "$1" && find . -path ./proc -prune -o -path ./root/pakete -prune -o -path ./var/log -prune -o -path ./var/cache -prune \
        -o -path ./var/lib/dpkg -prune -o -path ./var/lib/apt -prune -o -print | sort)
}

groessen() {
    (cd "$pakete" && sha256sum --quiet -c SHA256SUMS) || klage "the sums are wrong"
    local seiten programm
    # The pages of the codes are documents that the programs carry, packed as far as they go: they count by themselves.
    seiten=$(sed -nE 's/.*Gepackt\[([0-9]+)\].*/\1/p' build/release/hilfe/Seitenvorrat.cpp)
    programm=$(stat -c %s "$pakete/zepholt_${fassung}_amd64.deb")
    hoechstens "zepholt .deb without the pages of the codes ($seiten)" $((programm - seiten)) $((400 * 1024))
    hoechstens "ZIP" "$(stat -c %s "$pakete/zepholt-$fassung-windows-x64.zip")" $((1536 * 1024))
    local exe
    for exe in zepholt zepholt-bericht zepholt-pruefen; do
        hoechstens "$exe.exe" "$(stat -c %s "build/windows-release/$exe.exe")" $((1024 * 1024))
    done
}

# hoechstens WHAT BYTES LIMIT
hoechstens() {
    echo "   $1: $2 of $3 bytes"
    [ "$2" -le "$3" ] || klage "$1 is too large"
}

haertung() {
    tools/haertung_pruefen.sh build/release/zepholt build/release/zepholt-bericht build/release/zepholt_fenster_qt.so \
        build/statisch/zepholt build/statisch/zepholt-bericht build/windows-release/zepholt{,-bericht,-pruefen}.exe | sed 's/^/   /' ||
        klage "not hardened"
}

lintian_() {
    lintian --allow-root --fail-on error,warning --tag-display-limit 0 "$pakete"/*.deb | sed 's/^/   /' || klage "lintian has something to say"
    dpkg-deb --fsys-tarfile "$pakete"/zepholt_*.deb | tar -xO ./usr/share/doc/zepholt/copyright >"$ort/copyright"
    python3 - src/window/DialogDeFrIt.cpp "$ort/copyright" <<'ENDE' || klage "the rights are not those of the info window"
import pathlib, re, sys
fenster, paket = (pathlib.Path(name).read_text(encoding="utf-8") for name in sys.argv[1:])
rechte = re.search(r"Rechte\[3\] = \{(.*?)\n\};", fenster, re.DOTALL)[1]
absaetze = re.sub(r'"\s*u"', "", rechte).replace('u"', "\\n").replace('"', "\\n").replace("\\r\\n", "\\n").split("\\n")
absaetze = [a for a in absaetze if len(a) > 9]
paket = " ".join(paket.split())
sys.exit(len(absaetze) != 9 or any(absatz not in paket for absatz in absaetze))
ENDE
}

debian() {
    frisch bookworm
    local system=$ort/bookworm
    mkdir "$system/root/pakete"
    cp "$pakete"/zepholt_*.deb "$pakete"/zepholt-doc_*.deb "$system/root/pakete"
    bestand "$system" >"$ort/vorher"
    # Without what is recommended: that would come from the network, and stay.
    uhr
    drin "$system" sh -ec '
        export DEBIAN_FRONTEND=noninteractive
        apt-get install -qq -y --no-install-recommends /root/pakete/*.deb >/root/pakete/log 2>&1 || { cat /root/pakete/log; exit 1; }
        cd /root/pakete
        zepholt file=/usr/share/zepholt/samples/fehlerhaft.01S dialog=de- errorfile=p.xml catalog=/usr/share/zepholt/samples/katalog
        zepholt-bericht html p.xml /usr/share/zepholt/samples/fehlerhaft.01S -o b.html || [ $? -eq 1 ]' || klage "Debian 12: no report"
    erster_bericht "$(zeit)" "Debian 12"
    bericht_gut "$system/root/pakete" || klage "Debian 12: not the report of the sample"
    drin "$system" sh -ec '
        [ "$(zepholt-bericht --version)" = "zepholt-bericht '"$fassung"'" ]
        zepholt-bericht code 4504 -l fr >/dev/null
        [ -x /usr/bin/zepholt-stapel ]
        [ -e /usr/share/doc/zepholt/codes/it/4504.html ]
        dpkg --verify zepholt zepholt-doc
        apt-get purge -qq -y zepholt zepholt-doc >/dev/null 2>&1' || klage "Debian 12: not as it should be"
    bestand "$system" | diff "$ort/vorher" - || klage "Debian 12: something is left behind"
}

fenster() {
    frisch bookworm
    local system=$ort/bookworm
    mkdir "$system/root/pakete"
    cp "$pakete"/*.deb "$system/root/pakete"
    cp /etc/resolv.conf "$system/etc/" 2>/dev/null || true
    drin "$system" sh -ec '
        export DEBIAN_FRONTEND=noninteractive QT_QPA_PLATFORM=offscreen
        apt-get update -qq && apt-get install -qq -y --no-install-recommends /root/pakete/*.deb python3 desktop-file-utils shared-mime-info >/dev/null 2>&1
        cd /root/pakete
        LD_DEBUG=libs zepholt file=/usr/share/zepholt/samples/fehlerhaft.01S dialog=de errorfile=p.xml catalog=/usr/share/zepholt/samples/katalog 2>geladen
        grep -q "calling init: /usr/bin/../lib/zepholt/fenster/zepholt_fenster_qt.so" geladen
        zepholt-bericht html p.xml /usr/share/zepholt/samples/fehlerhaft.01S -o b.html || [ $? -eq 1 ]
        [ "$(zepholt-stapel --version)" = "zepholt-stapel '"$fassung"'" ]
        zepholt-stapel /usr/share/zepholt/samples -o alle -c /usr/share/zepholt/samples/katalog >/dev/null 2>&1 || [ $? -eq 1 ]
        [ "$(wc -l <alle/table.jsonl)" -eq 4 ]
        grep -q "^application/x-sia451-e1s=zepholt-pruefen.desktop" /usr/share/applications/mimeinfo.cache
        grep -q "x-sia451-01s:\*.01s" /usr/share/mime/globs
        apt-get purge -qq -y zepholt zepholt-fenster zepholt-doc >/dev/null 2>&1
        [ ! -e /usr/lib/zepholt ] && [ ! -e /usr/share/applications/zepholt-pruefen.desktop ]' || klage "Debian 12: no window"
    bericht_gut "$system/root/pakete" || klage "Debian 12 with the window: not the report of the sample"
    echo "   Debian 12 with the window: installed, run, removed"
}

statisch() {
    local system=$ort/bullseye wo="Debian 11" vor=/opt/zepholt-$fassung
    frisch bullseye || {
        wo="an empty folder as root"
        rm -rf "${system:?}"
        mkdir -p "$system/proc"
    }
    mkdir -p "$system/opt" "$system/tmp"
    uhr
    tar -C "$system/opt" -xzf "$pakete/zepholt-$fassung-linux-x86_64.tar.gz"
    drin "$system" "$vor/zepholt" "file=$vor/samples/fehlerhaft.01S" dialog=de- errorfile=/tmp/p.xml "catalog=$vor/samples/katalog" ||
        klage "$wo: no protocol"
    drin "$system" "$vor/zepholt-bericht" html /tmp/p.xml "$vor/samples/fehlerhaft.01S" -o /tmp/b.html || [ $? -eq 1 ] || klage "$wo: no report"
    erster_bericht "$(zeit)" "static build on $wo"
    [ -x "$system/opt/zepholt-$fassung/zepholt-stapel" ] || klage "the static build has no zepholt-stapel"
    ! readelf -lW "$system/opt/zepholt-$fassung/zepholt" | grep -q INTERP || klage "the static build asks for the system's libraries"
    bericht_gut "$system/tmp" || klage "$wo: not the report of the sample"
}

windows() {
    local los="$ort/Los 1 für Müller" exe fremd
    local prefix=$PWD/build/windows/wp # of the tests, where they have run
    [ -d "$prefix" ] || prefix=$PWD/build/windows-release/wp
    export WINEPREFIX=$prefix WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml=" LC_ALL=C.UTF-8
    # Where addresses are random, Wine finds no room for itself in one of 4,000 starts.
    local wine=(setarch -R /usr/lib/wine/wine64) server=/usr/lib/wine/wineserver64
    [ -x "$server" ] || server=/usr/lib/wine/wineserver
    if [ ! -d "$WINEPREFIX" ]; then
        "${wine[@]}" wineboot -i >/dev/null 2>&1
        "$server" -w
    fi
    uhr
    mkdir "$los"
    python3 -m zipfile -e "$pakete/zepholt-$fassung-windows-x64.zip" "$los"
    cd "$los/zepholt-$fassung"
    "${wine[@]}" zepholt.exe 'file=samples\fehlerhaft.01S' dialog=de- errorfile=p.xml 'catalog=samples\katalog' </dev/null >/dev/null 2>&1 || klage "Wine: no protocol"
    local voll="Z:${PWD//\//\\}"
    "${wine[@]}" zepholt-bericht.exe html --test "$voll\\samples\\fehlerhaft.01S" "--catalog=$voll\\samples\\katalog" -o b.html </dev/null >/dev/null 2>&1 ||
        [ $? -eq 1 ] || klage "Wine: no report"
    erster_bericht "$(zeit)" "Wine"
    bericht_gut . || klage "Wine: not the report of the sample"
    for datei in KURZANLEITUNG.txt GUIDE.txt GUIDA.txt zepholt-pruefen.exe; do
        [ -s "$datei" ] || klage "the ZIP has no $datei"
    done
    for exe in *.exe; do
        fremd=$(objdump -p "$exe" | sed -nE 's/^\s*DLL Name: //p' | grep -viE '^(advapi32|comctl32|comdlg32|gdi32|kernel32|msvcrt|ole32|shell32|user32)\.dll$' || true)
        [ -z "$fremd" ] || klage "$exe needs $fremd"
    done
    "$server" -k </dev/null >/dev/null 2>&1 || true
    cd - >/dev/null
}

[ $# -gt 0 ] || set -- groessen haertung lintian debian statisch windows
for teil in "$@"; do
    echo "== $teil"
    seit=$SECONDS
    case $teil in
    lintian) lintian_ ;;
    groessen | haertung | debian | statisch | windows | fenster) "$teil" ;;
    *) klage "there is no part $teil" ;;
    esac
    echo "   ($((SECONDS - seit)) s)"
done
exit "$schlecht"
