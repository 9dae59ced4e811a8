#!/usr/bin/env bash
# Runs the tests of a build folder through ctest; the last line counts them, each case by code as a test. Further arguments
# go to ctest.
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
# A module of cases is one of ctest's tests: its cases stand in its place.
read -r gut schlecht < <(awk -v alle="$alle" -v rot="$rot" '
    /^[0-9]+ (passed|failed).* in [0-9.]+s/ {
        g = s = 0
        for (i = 1; i < NF; i++) {
            if ($(i + 1) ~ /^passed/) g = $i
            if ($(i + 1) ~ /^failed/) s = $i
        }
        alle += g + s - 1
        rot += s ? s - 1 : 0
    }
    END { print alle - rot, rot }' "$ordner/Testing/Temporary/LastTest.log")
echo "$gut passed, $schlecht failed"
exit "$ergebnis"
