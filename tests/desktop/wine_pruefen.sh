#!/usr/bin/env bash
# zepholt-pruefen under Wine on a display without a screen, by real clicks, keys and drags.
#
#     tests/desktop/wine_pruefen.sh [FOLDER OF THE WINDOWS BUILD [FOLDER OF A LINUX BUILD WITH QT]]
#
# Needs xvfb, openbox, xdotool and wine64. Root may write everywhere: it gives that up first.
set -uo pipefail
if [ "$(id -u)" -eq 0 ] && [ -z "${OHNE_VORRECHT:-}" ]; then
    OHNE_VORRECHT=1 exec setpriv --bounding-set -dac_override "$0" "$@"
fi
cd "$(dirname "$0")/../.."
bau=$(realpath "${1:-build/windows}")
ziehen=$(realpath "${2:-build/debug}/ziehen")
programm=$bau/zepholt-pruefen.exe
. tests/fenster/anzeige.sh
wine_bereiten "${WINEPREFIX:-$bau/wp}"
titel='Austauschdatei SIA 451 prüfen'
wpfad() { echo "Z:${1//\//\\}"; }
wine() { "$wine" "$@" </dev/null >/dev/null 2>&1; }
texte() { "$wine" "$bau/fenstertexte.exe" </dev/null 2>/dev/null | tr -d '\r'; }

# Pages are "opened" by a line in a file: Wine hands them to what its settings name as the browser.
geoeffnet=$ordner/geoeffnet
offen() { [ "$(wc -l <"$geoeffnet" 2>/dev/null || echo 0)" -eq "$1" ]; }
seiten=0
eine_mehr() {
    seiten=$((seiten + 1))
    warte offen "$seiten"
}
im_benutzerordner() { grep -q "ZEPHOLT.*$1" <(tail -n 1 "$geoeffnet"); }
printf '#!/bin/sh\necho "$1" >>%s\n' "$geoeffnet" >"$ordner/browser"
chmod +x "$ordner/browser"
browser='HKCU\Software\Wine\WineBrowser'
wine reg add 'HKCR\.html' /ve /d htmlfile /f
wine reg add "$browser" /v Browsers /d "$ordner/browser" /f
wine reg delete 'HKCU\Software\ZEPHOLT' /f
gemerkt() { "$wine" reg query 'HKCU\Software\ZEPHOLT' /v Katalog </dev/null 2>/dev/null | tr -d '\r' | grep -qF "$1"; }

d=$ordner/a
mkdir "$d"
cp samples/fehlerhaft.01S "$d/mauern.01S"
cp samples/fehlerhaft.E1S "$d/Türen und Wände.E1S"
cp samples/sauber.01S "$d/sauber.01S"
katalog=$ordner/katalog
cp -r samples/katalog "$katalog"

haupt() { fenster "$titel"; }
dateidialog() { fenster 'Welche Austauschdateien'; }
ordnerdialog() { fenster 'In welchem Ordner'; }
zeigt() { texte | grep -qF "$1"; }
tippe() { sleep 0.5; xdotool type --delay 15 "$1"; taste Return; }

# --- Without arguments: the dialog for files, then once that for the catalogue.
"$wine" "$programm" </dev/null >/dev/null 2>&1 &
lauf=$!
pruefe "the dialog for files opens" warte dateidialog
tippe "$(wpfad "$d/mauern.01S")"
pruefe "the dialog for the catalogue opens" warte ordnerdialog
tippe "$(wpfad "$katalog")"
pruefe "one page is opened" eine_mehr
pruefe "it lies beside the file" test -s "$d/mauern.01S.bericht.html"
pruefe "so does the protocol" xmllint --noout "$d/mauern.01S.protokoll.xml"
pruefe "the catalogue is remembered" gemerkt "$(wpfad "$katalog")"
pruefe "the window tells the outcome" warte zeigt 'mauern.01S: 35 Fehler, 6 Warnungen'
w=$(haupt)

# --- Drops
ziehe() { # files...
    "$ziehen" "$@" 2>/dev/null &
    local zieher=$! quelle
    warte fenster "^ziehen$" || kill "$zieher"
    quelle=$(fenster '^ziehen$')
    sleep 0.5
    xdotool mousemove --window "$quelle" 60 30 mousedown 1 mousemove_relative --sync -- -15 -15
    sleep 0.3
    xdotool mousemove --window "$w" 200 40
    sleep 0.3
    xdotool mousemove --window "$w" 210 45
    sleep 0.5
    xdotool mouseup 1
    wait "$zieher"
}
ziehe "$d/Türen und Wände.E1S"
pruefe "a dropped file: a page is opened" eine_mehr
pruefe "blanks and umlauts: beside the file" test -s "$d/Türen und Wände.E1S.bericht.html"
pruefe "no second question for the catalogue" test -z "$(ordnerdialog)"
pruefe "its outcome" warte zeigt 'Türen und Wände.E1S: 38 Fehler, 6 Warnungen'
ziehe "$d/mauern.01S" "$d/sauber.01S"
pruefe "two dropped files: one page is opened" eine_mehr
pruefe "that over both" test -s "$d/Berichte.html"
pruefe "with a way to each" test "$(grep -c '<a href="./' "$d/Berichte.html")" -eq 2

los="$d/Büro Süd/Los 1"
mkdir -p "$los"
cp samples/sauber.E1S "$los/Wände.E1S"
ziehe "$los/Wände.E1S"
pruefe "a folder with blanks and umlauts: a page is opened" eine_mehr
pruefe "it lies beside the file" test -s "$los/Wände.E1S.bericht.html"
pruefe "its outcome" warte zeigt 'Wände.E1S: Keine Fehler'
echo '<p>mine' >"$los/Wände.E1S.bericht.html"
ziehe "$los/Wände.E1S"
pruefe "a page of somebody else: another is opened" eine_mehr
pruefe "it has a name of its own" test -s "$los/Wände.E1S.bericht-2.html"
pruefe "that of somebody else stays" test "$(cat "$los/Wände.E1S.bericht.html")" = '<p>mine'
rm "$los"/*.html "$los"/*.xml
chmod 555 "$los"
ziehe "$los/Wände.E1S"
pruefe "dropped out of a read-only folder: a page is opened" eine_mehr
pruefe "it lies in the user's folder" im_benutzerordner 'nde.E1S.bericht.html' # as an address it has no umlaut
pruefe "and nothing beside the file" test "$(ls "$los")" = Wände.E1S
chmod 755 "$los"

# --- Buttons
klick "$w" 80 75
pruefe "the button opens the dialog for files" warte dateidialog
taste Escape
pruefe "Escape closes it" warte_weg dateidialog
cp samples/sauber.01S "$d/Los 2.01S"
klick "$w" 80 75
warte dateidialog
tippe "$(wpfad "$d/Los 2.01S")"
pruefe "a file that is chosen there: a page is opened" eine_mehr
pruefe "its outcome" warte zeigt 'Los 2.01S: Keine Fehler'
klick "$w" 410 148
pruefe "the other button opens the dialog for the catalogue" warte ordnerdialog
taste Escape
pruefe "Escape closes it" warte_weg ordnerdialog
pruefe "the catalogue stays" gemerkt "$(wpfad "$katalog")"
mv "$katalog" "$ordner/katalog 2"
katalog="$ordner/katalog 2"
klick "$w" 410 148
warte ordnerdialog
tippe "$(wpfad "$katalog")"
pruefe "another catalogue is remembered" warte gemerkt "$(wpfad "$katalog")"
pruefe "nothing more was opened" offen "$seiten"
xdotool windowactivate "$w"
taste alt+F4
pruefe "the close box ends the program" warte_weg kill -0 "$lauf"

# --- Files on the command line, as an icon gets them and "open with": no window of its own.
rm "$d"/*.html "$d"/*.xml
wine "$programm" "$(wpfad "$d/Türen und Wände.E1S")"
pruefe "a file on the icon, tested with it: a page is opened" eine_mehr
pruefe "it lies beside the file" test -s "$d/Türen und Wände.E1S.bericht.html"
mv "$katalog" "$katalog.neu"
"$wine" "$programm" "$(wpfad "$d/sauber.01S")" </dev/null >/dev/null 2>&1 &
lauf=$!
pruefe "the catalogue is gone: it is asked for" warte ordnerdialog
taste Escape
wait "$lauf"
pruefe "without one nothing is written" test ! -e "$d/sauber.01S.bericht.html"
mv "$katalog.neu" "$katalog"

# --- A folder that can't be written; a file that is missing.
chmod 555 "$d"
wine "$programm" "$(wpfad "$d/sauber.01S")"
pruefe "read-only: a page is opened" eine_mehr
pruefe "it lies in the user's folder" im_benutzerordner 'sauber.01S.bericht.html'
pruefe "and nothing beside the file" test ! -e "$d/sauber.01S.bericht.html"
chmod 755 "$d"
"$wine" "$programm" "$(wpfad "$d/fehlt.01S")" </dev/null >/dev/null 2>&1 &
lauf=$!
pruefe "a file that is missing is told" warte zeigt 'Die Austauschdatei gibt es nicht'
taste Return
wait "$lauf"

# --- The same report from the program of Linux and from that of Windows.
linux=$(dirname "$ziehen")/zepholt-bericht
python3 tests/bericht/beispiele.py "$ordner" 3000
cp samples/fehlerhaft.01S samples/fehlerhaft.E1S samples/sauber.01S "$ordner"
for datei in fehlerhaft.01S fehlerhaft.E1S sauber.01S abgewiesen.01S feindlich.E1S gross.01S; do
    "$(dirname "$ziehen")/zepholt" "file=$ordner/$datei" dialog=fr- "errorfile=$ordner/$datei.xml" catalog=samples/katalog
    for art in html csv jsonl sarif; do
        "$linux" "$art" "$ordner/$datei.xml" "$ordner/$datei" -l it -o "$ordner/linux"
        wine "$bau/zepholt-bericht.exe" "$art" "$(wpfad "$ordner/$datei.xml")" "$(wpfad "$ordner/$datei")" -l it \
            -o "$(wpfad "$ordner/windows")"
        pruefe "$art of $datei is the same on both" cmp "$ordner/linux" "$ordner/windows"
        rm -f "$ordner/linux" "$ordner/windows"
    done
done

wine reg delete "$browser" /f
wine reg delete 'HKCU\Software\ZEPHOLT' /f
echo "$gut passed, $schlecht failed"
[ "$schlecht" -eq 0 ]
