#!/usr/bin/env bash
# Runs the tests of a build folder through ctest; the last line counts them. Further arguments go to ctest.
set -uo pipefail
ordner=$1
shift
bericht=$(mktemp)
ctest --test-dir "$ordner" --output-on-failure --parallel "$(nproc)" --no-tests=error "$@" | tee "$bericht" |
    grep -vE '^ *[0-9]+/[0-9]+ Test .* Passed |^ +Start +[0-9]+:'
ergebnis=${PIPESTATUS[0]}
alle=$(grep -oE 'out of [0-9]+' "$bericht" | grep -oE '[0-9]+' || echo 0)
rot=$(grep -oE '[0-9]+ tests? failed out of' "$bericht" | grep -oE '^[0-9]+' || echo 0)
rm -f "$bericht"
echo "$((alle - rot)) passed, $rot failed"
exit "$ergebnis"
