#!/usr/bin/env bash
# How long the page of a large exchange file takes to open in Chromium: bench/oeffnen.sh [build folder] [lines]
#
# First what bench/bericht.py tells of making it; then, from the call of the page and as the middle of five openings, when
# its first screen is shown, when its controls answer, what all of it costs its thread, and how long the first choice of
# one code and the search for a text take, for which all findings are gone through. Needs chromium and node with npm. Fails
# when a page takes a second to show its first screen or to answer.
set -euo pipefail
quelle=$(cd "$(dirname "$0")/.." && pwd)
bau=$(realpath "${1:-$quelle/build/release}")
. "$quelle/tests/bericht/seiten.sh"
browser_bereiten "$bau"
mkdir -p gross
"$quelle/bench/bericht.py" "$bau" "${2:-390000}" gross
cp "$quelle/bench/oeffnen.mjs" .
node oeffnen.mjs gross/gross.html
