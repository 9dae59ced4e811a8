#!/usr/bin/env bash
# zepholt-pruefen on Linux with a desktop of stubs: what it asks, remembers, tests and opens.
#
#     tests/desktop/linux_pruefen.sh ZEPHOLT-BERICHT SOURCE-FOLDER
set -uo pipefail
bericht=$1 quelle=$2
ordner=$(mktemp -d)
trap 'rm -rf "$ordner"' EXIT
export HOME=$ordner/heim XDG_CONFIG_HOME=$ordner/heim/config LC_ALL=C.UTF-8
unset DISPLAY WAYLAND_DISPLAY
mkdir -p "$HOME" "$ordner/bin"
ln -s "$bericht" "$(dirname "$bericht")/zepholt" "$ordner/bin"
cp "$quelle/desktop/zepholt-pruefen" "$ordner/bin"

# The desktop: a dialog that answers with what stands in a file and notes its title, and something that opens pages.
cat >"$ordner/bin/zenity" <<'ENDE'
#!/bin/sh
for a in "$@"; do case $a in --title=* | --text=*) echo "${a#*=}" >>"$ORDNER/gefragt" ;; esac; done
case " $* " in *" --directory "*) cat "$ORDNER/ordner" ;; *" --file-selection "*) cat "$ORDNER/dateien" ;; esac
ENDE
printf '#!/bin/sh\nprintf "%%s\\n" "$1" >>"$ORDNER/geoeffnet"\n' >"$ordner/bin/xdg-open"
chmod +x "$ordner/bin/zenity" "$ordner/bin/xdg-open"
export ORDNER=$ordner PATH=$ordner/bin:$PATH

schlecht=0
pruefe() { # what, command...
    "${@:2}" || { echo "FAILED: $1"; schlecht=1; }
}
gleich() { [ "$1" = "$2" ] || { echo "is '$1', not '$2'"; return 1; }; }
lauf() {
    rm -f "$ordner/gefragt" "$ordner/geoeffnet"
    "$ordner/bin/zepholt-pruefen" "$@" 2>"$ordner/err"
    status=$?
}
gefragt() { cat "$ordner/gefragt" 2>/dev/null; }
geoeffnet() { cat "$ordner/geoeffnet" 2>/dev/null; }

mauern="$ordner/Türen und Mauern.01S"
cp "$quelle/samples/fehlerhaft.01S" "$mauern"
cp "$quelle/samples/sauber.E1S" "$ordner/b.E1S"
: >"$ordner/ordner"
lauf "$mauern"
pruefe "no catalogue: nothing is tested" gleich "$status$(geoeffnet)" 2
echo "$quelle/samples/katalog" >"$ordner/ordner"
lauf "$mauern"
pruefe "asks once for the catalogue" gleich "$(gefragt)" "In welchem Ordner liegt der VLT-Katalog?"
pruefe "status 1 and the page opened" gleich "$status $(geoeffnet)" "1 $mauern.bericht.html"
pruefe "the protocol beside it" xmllint --noout "$mauern.protokoll.xml"
lauf "$ordner/b.E1S" "$mauern"
pruefe "remembers the catalogue" gleich "$(gefragt)" ""
pruefe "one page over several" gleich "$status $(geoeffnet)" "1 $ordner/Berichte.html"
printf '%s\n' "$mauern" "$ordner/b.E1S" >"$ordner/dateien"
LC_ALL=fr_CH.UTF-8 lauf
pruefe "asks for files without any" gleich "$(gefragt)" "Quels fichiers de transfert faut-il tester ?"
pruefe "those that were chosen" gleich "$status $(geoeffnet)" "1 $ordner/Rapports.html"
: >"$ordner/dateien"
lauf
pruefe "nothing chosen, nothing done" gleich "$status$(geoeffnet)" 0
lauf "$ordner/fehlt.01S"
pruefe "what stands in the way is told" gleich "$status $(gefragt)" \
    "2 zepholt-bericht: Die Austauschdatei gibt es nicht: $ordner/fehlt.01S"
exit "$schlecht"
