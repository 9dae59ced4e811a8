#!/usr/bin/env bash
# Makes the files of samples/ from their descriptions in samples/quellen/: samples_bauen.sh BAUORDNER [AUSGABE]
# BAUORDNER holds satzschreiber and kapitelschreiber; AUSGABE is samples/ unless given.
set -euo pipefail
programme=$(cd "$1" && pwd)
samples=$(cd "$(dirname "$0")/../samples" && pwd)
ziel=${2:-$samples}

for name in sauber.01S fehlerhaft.01S sauber.E1S fehlerhaft.E1S; do
    "$programme/satzschreiber" "$samples/quellen/$name.txt" "$ziel/$name"
done
mkdir -p "$ziel/katalog"
"$programme/kapitelschreiber" kapitel "$samples/quellen/katalog.txt" "$ziel/katalog"
export LC_ALL=C # the order of the collected file
"$programme/kapitelschreiber" sammeln "$ziel/katalog.vlt" "$ziel"/katalog/*.qvm
