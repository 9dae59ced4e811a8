#!/usr/bin/env bash
# Runs of the real program on Linux around its window: what a silent run loads, what stands where no window can be
# shown, and that the protocol is the same each time.
#
#     tests/fenster/linux_lauf.sh PROGRAM FILE CATALOGUE
set -uo pipefail
programm=$1 datei=$2 katalog=$3
ordner=$(mktemp -d)
trap 'rm -rf "$ordner"' EXIT
export XDG_RUNTIME_DIR=$ordner
chmod 700 "$ordner"
unset DISPLAY WAYLAND_DISPLAY
schlecht=0
pruefe() { # what, command...
    "${@:2}" || { echo "FAILED: $1"; schlecht=1; }
}

lauf() { # name, dialog, variables of the environment...
    env "${@:3}" "$programm" "file=$datei" "dialog=$2" "errorfile=$ordner/$1.xml" "catalog=$katalog" \
        >"$ordner/$1.out" 2>"$ordner/$1.err" </dev/null
}
ohne_zeit() { sed -E 's|<Date>.*</Time>||' "$1"; }
gleich() { cmp <(ohne_zeit "$ordner/$1.xml") <(ohne_zeit "$ordner/still.xml"); }

lauf still de- LD_DEBUG=files LD_DEBUG_OUTPUT="$ordner/lader"
pruefe "a silent run writes its protocol" test -s "$ordner/still.xml"
pruefe "a silent run says nothing" test ! -s "$ordner/still.err"
pruefe "a silent run loads no toolkit" test -z "$(cat "$ordner"/lader* | grep -iE 'qt|xcb')"
rm -f "$ordner"/lader*

lauf ohne de
pruefe "without a display the protocol is the same" gleich ohne
pruefe "nothing on standard output" test ! -s "$ordner/ohne.out"
pruefe "each phase is a line on standard error" test "$(cat "$ordner/ohne.err")" = "Liest Austauschdatei ein
Testet Dokument
Testet VLT-Kapitel
Schreibt Fehlerprotokoll"

lauf falsch de DISPLAY=:9999
pruefe "a display that doesn't answer is none" gleich falsch

lauf fremd de QT_QPA_PLATFORM=gibtesnicht
pruefe "a part of Qt that isn't there is no reason to stop" gleich fremd

cp "$programm" "$ordner/allein"
programm=$ordner/allein lauf allein de QT_QPA_PLATFORM=offscreen
pruefe "without the module the protocol is the same" gleich allein
pruefe "and the phases are lines" grep -q 'Testet Dokument' "$ordner/allein.err"

if [ -e "$(dirname "$1")/zepholt_fenster_qt.so" ]; then
    lauf mit de QT_QPA_PLATFORM=offscreen LD_DEBUG=files LD_DEBUG_OUTPUT="$ordner/lader"
    pruefe "with a window the protocol is the same" gleich mit
    pruefe "a run with a window loads the toolkit" grep -qi 'libQt6Widgets' "$ordner"/lader*
    pruefe "nothing on standard output or standard error" test ! -s "$ordner/mit.out" -a ! -s "$ordner/mit.err"

    for liste in 1 9; do # no window opens for them
        rm -f "$ordner"/lader*
        datei="*$liste" lauf "liste$liste" de QT_QPA_PLATFORM=offscreen LD_DEBUG=files LD_DEBUG_OUTPUT="$ordner/lader"
        pruefe "the list *$liste is written" test -s "$ordner/liste$liste.xml"
        pruefe "the list *$liste loads no toolkit" test -z "$(cat "$ordner"/lader* | grep -iE 'qt|xcb')"
    done
fi

# On a terminal: one line that is written over, and nothing of it on standard output.
script -qec "'$programm' 'file=$datei' dialog=de 'errorfile=$ordner/terminal.xml' 'catalog=$katalog' >'$ordner/terminal.out'" \
    "$ordner/terminal.err" >/dev/null </dev/null
pruefe "on a terminal the protocol is the same" gleich terminal
pruefe "nothing on standard output" test ! -s "$ordner/terminal.out"
pruefe "the phase stands on the terminal's line" grep -q $'\rTestet Dokument' "$ordner/terminal.err"
exit "$schlecht"
