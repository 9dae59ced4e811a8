#!/usr/bin/env bash
# The windows of the Windows program under Wine on a display without a screen, by real clicks and keys.
#
#     tests/fenster/wine_fenster.sh [PROGRAM]
#
# Needs xvfb, openbox, xdotool, wine64 and python3.
set -uo pipefail
cd "$(dirname "$0")/../.."
programm=$(realpath "${1:-build/windows/zepholt.exe}")
praefix=${WINEPREFIX:-$PWD/build/windows/wp}
. tests/fenster/anzeige.sh
wine_bereiten "$praefix"

mkdir "$ordner/k" "$ordner/aus"
bench/erzeugen.py dokument "$ordner/gross.01S" "${ZEPHOLT_MEGABYTE:-60}" --falsch
wpfad() { echo "Z:${1//\//\\}"; }
parameter=("file=$(wpfad "$ordner/gross.01S")" "errorfile=$(wpfad "$ordner/aus/p.xml")" "catalog=$(wpfad "$ordner/k")")

starte() { # dialog
    rm -f "$ordner/aus/p.xml"
    "$wine" "$programm" "dialog=$1" "${parameter[@]}" </dev/null >"$ordner/out" 2>&1 &
    lauf=$!
}
titel='QVM-Test: SIA451'
haupt() { fenster "$titel"; }
info() { [ "$(zahl "$titel")" -eq 2 ]; }
frage() { fenster '^ZEPHOLT$'; }
nichts_da() { [ -z "$(ls -A "$ordner/aus")" ]; }
gleich() { [ "$(ohne_zeit "$ordner/aus/p.xml" | sha256sum)" = "$protokoll" ]; }

beginn=$(date +%s%N)
starte de-
wait "$lauf"
dauer=$((($(date +%s%N) - beginn) / 1000000))
pruefe "a silent run writes its protocol" test -s "$ordner/aus/p.xml"
protokoll=$(ohne_zeit "$ordner/aus/p.xml" | sha256sum)

# Each way to the question, answered with No: the run goes on as if nothing had happened. While a window is open the run
# stands still, so that the next step finds it where it was.
beginne() {
    starte de
    pruefe "the window opens for: $1" warte haupt
    w=$(haupt)
    klick "$w" 300 90 # no control stands here: the window has the keys
}
nein_und_zu_ende() {
    pruefe "$1" warte frage
    taste Return
    pruefe "Enter is No: $1" warte_weg frage
    wait "$lauf"
    pruefe "nothing on standard output or standard error: $1" test ! -s "$ordner/out"
    pruefe "the protocol is the same: $1" gleich
}

beginne "Info"
klick "$w" 470 24
pruefe "Info opens the info window" warte info
taste Return
pruefe "Enter is its OK" warte_weg info
wait "$lauf"
pruefe "the protocol is the same after Info" gleich

beginne "Tab and Enter"
xdotool key Tab Return
nein_und_zu_ende "Tab and Enter press the cancel button"
beginne "Escape"
xdotool key Escape
nein_und_zu_ende "Escape asks"
beginne "close box"
xdotool key alt+F4
nein_und_zu_ende "the close box asks"

# Yes at growing distances from the start, spread over a run: in reading, testing, comparing, writing.
for achtel in 0 1 2 3 4 5 6 7; do
    sekunden=$(printf '%d.%03d' $((dauer * achtel / 8000)) $((dauer * achtel / 8 % 1000)))
    starte fr
    warte haupt
    sleep "$sekunden"
    if w=$(haupt) && klick "$w" 470 52 && warte frage; then
        taste Left Return
        wait "$lauf"
        pruefe "no file is left after Yes at $sekunden s" nichts_da
    else
        wait "$lauf"
        pruefe "the run was over before $sekunden s: its protocol stands" test -s "$ordner/aus/p.xml"
    fi
done

# The parameter box: for each code a window with the program's title, whose OK ends the run without a protocol.
for falsch in "" "datei=x" "file=fehlt.01S dialog=de" "file=${parameter[0]#*=} dialog=en" \
    "file=${parameter[0]#*=} dialog=fr" "file=${parameter[0]#*=} dialog=it ${parameter[1]}" \
    "file=${parameter[0]#*=} dialog=de ${parameter[1]} ${parameter[2]} mode=X"; do
    rm -f "$ordner/aus/p.xml"
    # shellcheck disable=SC2086
    "$wine" "$programm" $falsch </dev/null >"$ordner/out" 2>&1 &
    lauf=$!
    pruefe "a box for: $falsch" warte frage
    taste Return
    wait "$lauf"
    pruefe "no protocol for: $falsch" nichts_da
done

echo "$gut passed, $schlecht failed"
[ "$schlecht" -eq 0 ]
