#!/usr/bin/env bash
# Takes the pictures of docs/browser: bilder.sh TARGET. Runs behind seiten_pruefen.sh, which lays down what it needs.
set -euo pipefail
quelle=$(cd "$(dirname "$0")/../.." && pwd)
ziel=$(realpath -m "$1")
cd "$quelle/build/modul/seiten"
cp "$quelle"/tests/web/*.mjs .
node bilder.mjs "$quelle/build/web" "$quelle/samples" "$ziel"
pngquant --force --ext .png --speed 1 "$ziel"/*.png
