#!/usr/bin/env bash
# The windows of the Windows program under Wine on a display without a screen, by real clicks and keys.
#
#     tests/fenster/wine_fenster.sh [WINDOWS-PROGRAM [LINUX-PROGRAM]]
#
# The Linux program runs once too, with its own window: the protocols must be alike. Needs xvfb, openbox, xdotool, wine64
# and python3.
set -uo pipefail
cd "$(dirname "$0")/../.."
programm=$(realpath "${1:-build/windows/zepholt.exe}")
linux=$(realpath "${2:-build/release/zepholt}")
leser=$(dirname "$programm")/fenstertexte.exe
praefix=${WINEPREFIX:-$PWD/build/windows/wp}
. tests/fenster/anzeige.sh
wine_bereiten "$praefix"

mkdir "$ordner/k" "$ordner/aus"
bench/erzeugen.py dokument "$ordner/gross.01S" "${ZEPHOLT_MEGABYTE:-60}" --falsch
wpfad() { echo "Z:${1//\//\\}"; }
parameter=("file=$(wpfad "$ordner/gross.01S")" "errorfile=$(wpfad "$ordner/aus/p.xml")" "catalog=$(wpfad "$ordner/k")")

starte() { # parameters in addition
    rm -f "$ordner/aus/p.xml"
    "$wine" "$programm" "${parameter[@]}" "$@" </dev/null >"$ordner/out" 2>&1 &
    lauf=$!
}
texte() { "$wine" "$leser" </dev/null 2>/dev/null | tr -d '\r'; }
titel='QVM-Test: SIA451'
haupt() { fenster "$titel"; }
info() { [ "$(zahl "$titel")" -eq 2 ]; }
frage() { fenster '^ZEPHOLT$'; }
nichts_da() { [ -z "$(ls -A "$ordner/aus")" ]; }
gleich() { [ "$(ohne_zeit "$ordner/aus/p.xml" | sha256sum)" = "$protokoll" ]; }

# Waits for the end; fails when Wine itself broke down, as it does now and then while it starts a program.
zu_ende() {
    wait "$lauf"
    status=$?
    [ "$status" -le 1 ]
}

still() { # parameters in addition: runs silently, for $protokoll and the time it takes
    local beginn
    for _ in 1 2; do
        beginn=$(date +%s%N)
        starte dialog=de- "$@"
        zu_ende && break
    done
    dauer=$((($(date +%s%N) - beginn) / 1000000))
    pruefe "a silent run writes its protocol" test -s "$ordner/aus/p.xml"
    protokoll=$(ohne_zeit "$ordner/aus/p.xml" | sha256sum)
}

# Each way to the question, answered with No: the run goes on as if nothing had happened. While a window is open the run
# stands still, so that the next step finds it where it was.
still
"$linux" dialog=de "file=$ordner/gross.01S" "errorfile=$ordner/aus/p.xml.linux" "catalog=$ordner/k" >"$ordner/out" 2>&1
pruefe "the window on Linux was shown: it leaves no line" test ! -s "$ordner/out"
pruefe "the protocol is the same on Linux with its window" cmp <(ohne_zeit "$ordner/aus/p.xml") \
    <(ohne_zeit "$ordner/aus/p.xml.linux")
rm "$ordner/aus/p.xml.linux"

oder_ende() { "$1" || ! kill -0 "$lauf"; } # the window, or the end of the run
# oeffnet TEXT WINDOW COMMAND...: the command opens the window. A run that is over before is begun again.
oeffnet() {
    for _ in 1 2 3 4 5; do
        starte dialog=de
        warte haupt
        w=$(haupt) && klick "$w" 300 90 2>/dev/null && "${@:3}" # no control stands here: the window has the keys
        warte oder_ende "$2"
        "$2" >/dev/null && break
        zu_ende
    done
    pruefe "$1" warte "$2"
}
nein_und_zu_ende() {
    taste Return
    pruefe "Enter is No: $1" warte_weg frage
    zu_ende
    pruefe "nothing on standard output or standard error: $1" test ! -s "$ordner/out"
    pruefe "the protocol is the same (status $status): $1" gleich
}
info_anklicken() { klick "$w" 470 24; }

oeffnet "Info opens the info window" info info_anklicken
taste Return
pruefe "Enter is its OK" warte_weg info
zu_ende
pruefe "the protocol is the same after Info (status $status)" gleich

oeffnet "Tab and Enter press the cancel button" frage xdotool key Tab Return
nein_und_zu_ende "Tab and Enter"
oeffnet "Escape asks" frage xdotool key Escape
nein_und_zu_ende "Escape"
oeffnet "the close box asks" frage xdotool key alt+F4
nein_und_zu_ende "the close box"

# No and Yes at moments of a run. While the question stands, so does the run: the window tells its phase.
nein=Return ja="Left Return"
alle_phasen=("Liest Austauschdatei ein" "Testet Dokument" "Testet VLT-Kapitel" "Schreibt Fehlerprotokoll")
declare -A gesehen
stand= # which of them the last moment met, their number when the run was over
moment() { # answer, milliseconds from when the window stands, parameters in addition
    local antwort=$1 sekunden i offen
    sekunden=$(printf '%d.%03d' $(($2 / 1000)) $(($2 % 1000)))
    starte dialog=de "${@:3}"
    warte haupt
    sleep "$sekunden"
    w=$(haupt) && klick "$w" 470 52 2>/dev/null && warte oder_ende frage
    if frage >/dev/null; then
        offen=$(texte)
        for i in "${!alle_phasen[@]}"; do
            grep -q "^  ${alle_phasen[i]}" <<<"$offen" && gesehen[$i $antwort]=1 && stand=$i
        done
        # shellcheck disable=SC2086
        taste $antwort
        zu_ende
        if [ "$antwort" = "$ja" ]; then
            pruefe "no file is left after Yes at $sekunden s" nichts_da
        else
            pruefe "the protocol is the same after No at $sekunden s" gleich
        fi
    elif zu_ende || [ -n "${zweiter:-}" ]; then
        stand=${#alle_phasen[@]}
        pruefe "the run was over before $sekunden s: its protocol stands (status $status)" gleich
    else
        zweiter=1 moment "$@"
    fi
}
momente() { # parameters in addition
    still "$@"
    for achtel in 0 1 2 3 4 5 6 7; do
        moment "$nein" $((dauer * achtel / 8)) "$@"
        moment "$ja" $((dauer * achtel / 8)) "$@"
    done
}
bench/erzeugen.py katalog "$ordner/kapitel.01S" 250
momente "file=$(wpfad "$ordner/kapitel.01S")" "catalog=$(wpfad "$ordner/kapitel.01S.katalog")"
momente
# The phases that were missed so far. The first and the last one pass in a moment: the one in a file that is refused
# after it, since its lines stand the other way round, the other in a file that is little but findings.
umgekehrt() {
    bench/erzeugen.py dokument "$ordner/lang.01S" 200
    { head -n 1 "$ordner/lang.01S" && sed '1d;$d' "$ordner/lang.01S" | tac && tail -n 1 "$ordner/lang.01S"; } >"$1"
    rm "$ordner/lang.01S"
}
# Halves the time in which the phase begins, as far as the last moments tell it; no two runs take the same.
triff() { # place of the phase, answer, parameters in addition
    local von=0 bis=$dauer mitte
    for _ in $(seq 24); do
        [ -z "${gesehen[$1 $2]:-}" ] || return 0
        mitte=$(((von + bis) / 2))
        moment "$2" "$mitte" "${@:3}"
        if [ "$stand" -lt "$1" ]; then von=$mitte; else bis=$mitte; fi
        [ $((bis - von)) -gt 10 ] || von=0 bis=$((2 * dauer))
    done
}
for i in "${!alle_phasen[@]}"; do
    [ -n "${gesehen[$i $nein]:-}" ] && [ -n "${gesehen[$i $ja]:-}" ] && continue
    mehr=()
    if [ "$i" -eq 0 ]; then
        umgekehrt "$ordner/umgekehrt.01S"
        mehr=("file=$(wpfad "$ordner/umgekehrt.01S")")
    elif [ "$i" -eq 3 ]; then
        bench/erzeugen.py zeichen "$ordner/zeichen.01S" 40000
        mehr=("file=$(wpfad "$ordner/zeichen.01S")")
    fi
    still "${mehr[@]}"
    for antwort in "$nein" "$ja"; do
        triff "$i" "$antwort" "${mehr[@]}"
        pruefe "the question was answered by $antwort in the phase: ${alle_phasen[i]}" test -n "${gesehen[$i $antwort]:-}"
    done
done

# The parameter box: its title, icon, button and exact text; OK ends the run without a protocol.
parameterbox() { # its lines, joined by " | "; the parameters
    rm -f "$ordner/aus/p.xml"
    "$wine" "$programm" "${@:2}" </dev/null >"$ordner/out" 2>&1 &
    lauf=$!
    pruefe "a box for: ${*:2}" warte frage
    texte >"$ordner/box"
    pruefe "title, button and text for: ${*:2}" \
        cmp <(printf 'ZEPHOLT\n  \n  OK\n  %s\n' "$1") <(grep -A 3 -x 'ZEPHOLT' "$ordner/box")
    taste Return
    wait "$lauf"
    pruefe "no protocol for: ${*:2}" nichts_da
}
werte() { # file, dialog, errorfile, catalog
    printf 'file="%s" | dialog="%s" | errorfile="%s" | catalog="%s" | ' "$@"
}
f=${parameter[0]#*=} e=${parameter[1]#*=} k=${parameter[2]#*=}
parameterbox "$(werte "" "" "" "") | Allgemeines Problem bei den Aufrufparametern | \
Problème général concernant les paramètres d’appel | Problema generale nei parametri di chiamata"
parameterbox "$(werte "" "" "" "") | Unerkannter Parameter | Paramètre non reconnu | Parametro non riconosciuto" datei=x
parameterbox "$(werte fehlt.01S de "" "") | Austauschdatei (SIA451-Datei) nicht gefunden" file=fehlt.01S dialog=de
parameterbox "$(werte "$f" en "" "") | Unerkannte Dialogsprache (de/fr/it) | \
Langue de dialogue non reconnue (de/fr/it) | Lingua di dialogo non riconosciuta (de/fr/it)" "file=$f" dialog=en
parameterbox "$(werte "$f" fr "" "") | Fichier d’erreurs non valable ou déjà existant" "file=$f" dialog=fr
parameterbox "$(werte "$f" it "$e" "") | Cartella contenente i files del Catalogo DXM non valida" \
    "file=$f" dialog=it "errorfile=$e"
parameterbox "$(werte "$f" de "$e" "$k")mode=\"X\" |  | Ungültiger Modus (E/I)" \
    "file=$f" dialog=de "errorfile=$e" "catalog=$k" mode=X

# A command line that asks for silence opens no box: the run ends, though nobody answers.
pruefe "silence, whatever the parameter error" tests/fenster/meldungen.sh samples "$wine" "$programm"

# No window opens for the lists: one that did would take the system's time to come up, and be met.
for liste in 1 9; do
    starte "file=*$liste" dialog=de
    while kill -0 "$lauf" 2>/dev/null; do haupt >/dev/null && touch "$ordner/erschienen"; sleep 0.02; done
    pruefe "the list *$liste is written" test -s "$ordner/aus/p.xml"
done
pruefe "no window opens for the lists" test ! -e "$ordner/erschienen"

echo "$gut passed, $schlecht failed"
[ "$schlecht" -eq 0 ]
