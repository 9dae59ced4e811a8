#!/usr/bin/env bash
# Takes pictures of the page in each of its states: bilder.sh [docs]
# Into seiten/bilder beside the module; with "docs" those that docs/browser shows, in few colours. Runs behind seiten_pruefen.sh,
# which lays down what it needs. Needs pngquant.
set -euo pipefail
quelle=$(cd "$(dirname "$0")/../.." && pwd)
cd "$quelle/build/modul/seiten"
cp "$quelle"/tests/web/*.mjs .
namen=()
if [ "${1:-}" = docs ]; then
    mapfile -t namen < <(grep -hoE '[^(/]*\.png' "$quelle"/docs/browser/*.md | sort -u | xargs -n 1 basename -s .png)
fi
node bilder.mjs "$quelle/build/web" "$quelle/samples" bilder "${namen[@]}"
for name in "${namen[@]}"; do
    pngquant --force --strip --quality 60-90 64 --output "$quelle/docs/browser/$name.png" "bilder/$name.png"
done
