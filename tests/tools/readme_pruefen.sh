#!/usr/bin/env bash
# What the documents show is true: README's calls run, the protocol that it shows comes out of the call above it, and
# what the documents link to or name as a path of the repository exists. readme_pruefen.sh BAUORDNER
set -uo pipefail
programme=$(cd "$1" && pwd)
quelle=$(cd "$(dirname "$0")/../.." && pwd)
ort=$(mktemp -d)
trap 'rm -rf "$ort"' EXIT
fehler=0

klage() {
    echo "$*"
    fehler=1
}

# --- The calls, in a folder where what they name is the same, and the protocols are new
mkdir "$ort/build"
ln -s "$programme" "$ort/build/release"
ln -s "$quelle/samples" "$ort/samples"
aufrufe=$(grep -E '^    build/release/zepholt ' "$quelle/README.md")
[ -n "$aufrufe" ] || klage "README shows no call"
cd "$ort" || exit 1
while read -r aufruf; do
    eval "$aufruf" >ausgabe.txt 2>&1 || klage "'$aufruf' ends with status $?"
    [ -s ausgabe.txt ] && klage "'$aufruf' says: $(cat ausgabe.txt)"
done <<<"$aufrufe"

# --- The protocol of the call, but for the clock and what README leaves out behind "..."
maske='s|<Date>[^<]*</Date><Time>[^<]*</Time>|<Date/><Time/>|'
protokoll=$(iconv -f latin1 -t utf8 protokoll.xml | sed -E "$maske")
gezeigt=0
while IFS= read -r zeile; do
    gezeigt=$((gezeigt + 1))
    [[ "$protokoll" == *"$zeile"* ]] || klage "README shows what no protocol holds: $zeile"
    protokoll=${protokoll#*"$zeile"} # the next line stands behind it
done < <(sed -nE '/^## The protocol/,/^\|/s/^    (<.*)/\1/p' "$quelle/README.md" | sed -E "$maske")
[ $gezeigt -gt 5 ] || klage "README shows no protocol"

# --- Links and paths
cd "$quelle" || exit 1
for text in README.md CONTRIBUTING.md CHANGELOG.md docs/*.md hilfe/*.md; do
    for ziel in $(grep -oE '\]\([^)#:]+\)' "$text" | sed -E 's/^\]\(|\)$//g'); do
        [ -e "$(dirname "$text")/$ziel" ] || klage "$text links to $ziel, which does not exist"
    done
    for pfad in $(grep -oE '`(src|tests|tools|docs|bench|samples|cmake|hilfe)/[A-Za-z0-9_./*-]*' "$text" | tr -d '`'); do
        compgen -G "$pfad" >/dev/null || klage "$text names $pfad, which does not exist"
    done
done
exit $fehler
