#!/usr/bin/env bash
# Takes the pictures of the report's pages: bilder.sh [build folder] [docs]
#
# Each page at 1280 and 390 pixels, light and dark, in three languages, into seiten/bilder of the build folder; with "docs"
# those that docs/bericht.md and the READMEs show into docs/bericht, in few colours. Needs what seiten_pruefen.sh needs, and pngquant.
set -euo pipefail
quelle=$(cd "$(dirname "$0")/../.." && pwd)
bau=$(realpath "${1:-$quelle/build/debug}")
. "$quelle/tests/bericht/seiten.sh"
seiten_bereiten "$bau" 100000
cp "$quelle/tests/bericht/bilder.mjs" .
mkdir -p bilder
if [ "${2:-}" != docs ]; then
    node bilder.mjs bilder
    exit
fi
# shellcheck disable=SC2046
set -- $(grep -hoE 'bericht/[^)]*\.png' "$quelle/docs/bericht.md" "$quelle"/README*.md | sort -u | xargs -n 1 basename -s .png)
node bilder.mjs bilder "$@"
mkdir -p "$quelle/docs/bericht"
for name in "$@"; do
    pngquant --force --strip --quality 60-90 64 --output "$quelle/docs/bericht/$name.png" "bilder/$name.png"
done
