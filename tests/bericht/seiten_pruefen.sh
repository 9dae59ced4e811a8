#!/usr/bin/env bash
# Tests the report's pages in Chromium: seiten_pruefen.sh [build folder]
# Needs chromium and node with npm, which fetches playwright-core and axe-core into the build folder.
set -euo pipefail
quelle=$(cd "$(dirname "$0")/../.." && pwd)
bau=$(realpath "${1:-$quelle/build/debug}")
. "$quelle/tests/bericht/seiten.sh"
seiten_bereiten "$bau" 12000
cp "$quelle/tests/bericht/seiten_pruefen.mjs" .
node seiten_pruefen.mjs
