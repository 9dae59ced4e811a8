#!/usr/bin/env bash
# What the real program says on standard error, and that a command line which asks for silence says nothing at all: it
# ends by itself, whatever is wrong with it.
#
#     tests/fenster/meldungen.sh SAMPLES PROGRAM [ARG...]
#
# The program may be an emulator and the program. With a display, a box that nobody answers shows as a run that never ends.
set -uo pipefail
export LC_ALL=C.UTF-8
samples=$(realpath "$1")
programm=("${@:2}")
ort=$(mktemp -d)
trap 'rm -rf "$ort"' EXIT
cd "$ort"
cp "$samples/sauber.01S" a.01S
cp -r "$samples/katalog" k
touch da.xml
schlecht=0 gut=0
pruefe() { # what, command...
    if "${@:2}"; then
        gut=$((gut + 1))
    else
        schlecht=$((schlecht + 1))
        echo "FAILED: $1"
        cat fehler
    fi
}

lauf() { # parameters; sets $status
    timeout 60 "${programm[@]}" "$@" </dev/null >ausgabe 2>fehler
    status=$?
    # Wine itself fails or hangs now and then while it starts a program: there a second run decides.
    if [ "${#programm[@]}" -gt 1 ] && [ "$status" -gt 1 ] && [ -z "${zweiter:-}" ]; then
        zweiter=1 lauf "$@"
    fi
}
# Nothing is shown and nothing written, and the run ends.
still() { # exit status, parameters
    lauf "${@:2}"
    pruefe "ends with $1 (now $status): ${*:2}" test "$status" -eq "$1"
    pruefe "says nothing: ${*:2}" test ! -s ausgabe -a ! -s fehler
    pruefe "writes nothing: ${*:2}" test ! -e p.xml
}
# The twin with a dialog: here it is said what is wrong. Under an emulator a box would wait.
laut() { # parameters
    [ "${#programm[@]}" -eq 1 ] || return
    env -u DISPLAY -u WAYLAND_DISPLAY timeout 60 "${programm[@]}" "$@" </dev/null >ausgabe 2>fehler
    pruefe "says what is wrong: $*" test -s fehler
}

rest=(errorfile=p.xml catalog=k)
for wunsch in dialog=de- dialog=FR- Dialog=iT-; do
    still 0 "$wunsch" xyz                                                # 1001
    still 0 "$wunsch"                                                    # 1001, no file=
    still 0 "$wunsch" fille=x                                            # 1002
    still 0 fille=x "$wunsch"                                            # 1002 before the language is met
    still 0 "$wunsch" file=fehlt.01S "${rest[@]}"                        # 1003
    still 0 "$wunsch" dialog=en file=a.01S "${rest[@]}"                  # 1004
    still 0 "$wunsch" dialog=de file=fehlt.01S "${rest[@]}"              # 1003, another language given later
    still 0 "$wunsch" file=a.01S errorfile=da.xml catalog=k              # 1005
    still 0 "$wunsch" file=a.01S errorfile=p.xml catalog=fehlt           # 1006
    still 0 "$wunsch" file=a.01S "${rest[@]}" mode=x                     # 1007
done
if [ "${#programm[@]}" -eq 1 ]; then # an emulator changes quotation marks
    still 0 'dialog="de-"' fille=x
    still 0 '"dialog=de-"'
    still 0 'dialog=" de- "' file=a.01S "${rest[@]}"
    still 1 dialog=de- file=a.01S "${rest[@]}" 'mode="' # one quotation mark
fi

laut dialog=de xyz
laut dialog=de
laut dialog=de fille=x
laut fille=x dialog=de
laut dialog=de file=fehlt.01S "${rest[@]}"
laut dialog=en- file=a.01S "${rest[@]}"
laut dialog=de file=a.01S errorfile=da.xml catalog=k
laut dialog=de file=a.01S errorfile=p.xml catalog=fehlt
laut dialog=de file=a.01S "${rest[@]}" mode=x
laut 'dialog="de"' fille=x
laut fille=dialog=de-
laut dialog=de file=a.01S "${rest[@]}" 'mode="'

# A run-time failure is one line in the dialog language, in a silent run too.
for datei in k/*; do printf 'CF11abcd' >"$datei"; done
laufzeitfehler() { # dialog, the line
    lauf "dialog=$1" file=a.01S "${rest[@]}"
    pruefe "ends with 1: a damaged catalogue, dialog=$1" test "$status" -eq 1
    pruefe "the line in the language of dialog=$1" test "$(tr -d '\r' <fehler)" = "$2"
    pruefe "no protocol: a damaged catalogue, dialog=$1" test ! -e p.xml
}
trenner=/
[ "${#programm[@]}" -eq 1 ] || trenner='\'
laufzeitfehler de- "ZEPHOLT: Laufzeitfehler: Katalogdatei beschädigt, ein Feld des Kopfes ist keine Zahl: k${trenner}N201241.qvm"
laufzeitfehler fr- "ZEPHOLT: erreur d’exécution : fichier du catalogue endommagé, un champ de l’en-tête n’est pas un nombre: k${trenner}N201241.qvm"
laufzeitfehler it- "ZEPHOLT: errore di esecuzione: file del catalogo danneggiato, un campo dell’intestazione non è un numero: k${trenner}N201241.qvm"

echo "$gut passed, $schlecht failed"
[ "$schlecht" -eq 0 ]
