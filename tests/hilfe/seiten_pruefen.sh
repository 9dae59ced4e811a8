#!/usr/bin/env bash
# Tests the HTML pages of the codes in Chromium: seiten_pruefen.sh [build folder] [alle]
# Needs python3-markdown, chromium and node with npm, which fetches playwright-core and axe-core into the build folder.
set -euo pipefail
quelle=$(cd "$(dirname "$0")/../.." && pwd)
bau=$(realpath "${1:-$quelle/build/debug}")
/usr/bin/python3 -B "$quelle/tools/hilfe" --ziel "$bau/hilfe/html" html
. "$quelle/tests/bericht/seiten.sh"
browser_bereiten "$bau"
cp "$quelle/tests/hilfe/seiten_pruefen.mjs" hilfe_pruefen.mjs
node hilfe_pruefen.mjs "$bau/hilfe/html" "${2:-}"
