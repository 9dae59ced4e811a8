#!/usr/bin/env bash
# What the tests reach: builds with --coverage, runs the test programs of the rooms and the cases by code, and prints the
# lines and the branches of each room that were taken. abdeckung.sh [--offen ROOM]... [FOLDER] (build/abdeckung)
#
# --offen prints besides, for a room, each line with a branch that was never taken; docs/haerte.md says of those of
# errors, intake, doctest, items and catalogue why no test takes them. Branches that only an exception takes don't count,
# and a run that is killed records nothing.
set -euo pipefail
cd "$(dirname "$0")/.."
offen=()
while [ "${1:-}" = --offen ]; do
    offen+=("$2")
    shift 2
done
bau=${1:-build/abdeckung}
command -v gcovr >/dev/null || tools/einrichten.sh gcovr

# Assertions are branches that never fail: without them.
cmake -S . -B "$bau" -G Ninja -Wno-dev -DCMAKE_BUILD_TYPE=Debug -DZEPHOLT_TESTS=ON \
    -DCMAKE_CXX_FLAGS="--coverage -DNDEBUG" -DCMAKE_CXX_FLAGS_DEBUG=-O0 >/dev/null
raeume="support state errors intake doctest catalogue items run"
# shellcheck disable=SC2086
ninja -C "$bau" zepholt $(printf 'tests_%s ' $raeume) >/dev/null
find "$bau" -name '*.gcda' -delete

for raum in $raeume; do
    (cd "$bau" && "./tests_$raum" --gtest_brief=1 >abdeckung.log 2>&1) || { tail -n 5 "$bau/abdeckung.log"; exit 1; }
done
/usr/bin/python3 -B -m pytest -q -p no:cacheprovider tests/codes --programm="$PWD/$bau/zepholt" >"$bau/abdeckung.log" 2>&1 ||
    { tail -n 5 "$bau/abdeckung.log"; exit 1; }

gcovr -r . --object-directory "$bau/src" --filter src/ --exclude-throw-branches --exclude-unreachable-branches \
    --gcov-ignore-parse-errors --json "$bau/abdeckung.json" >"$bau/abdeckung.log" 2>&1 ||
    { tail -n 5 "$bau/abdeckung.log"; exit 1; }
/usr/bin/python3 - "$bau/abdeckung.json" "${offen[@]}" <<'ENDE'
import collections
import json
import sys

with open(sys.argv[1], encoding="utf-8") as datei:
    dateien = json.load(datei)["files"]
summe = collections.defaultdict(lambda: [0, 0, 0, 0])
luecken = collections.defaultdict(list)
for datei in dateien:
    raum = datei["file"].split("/")[1]
    for zeile in datei["lines"]:
        if zeile["gcovr/noncode"]:
            continue
        zweige = [zweig["count"] > 0 for zweig in zeile["branches"]]
        neu = (1, zeile["count"] > 0, len(zweige), sum(zweige))
        summe[raum] = [alt + dazu for alt, dazu in zip(summe[raum], neu)]
        if zeile["count"] == 0 or not all(zweige):
            luecken[raum].append(f"{datei['file']}:{zeile['line_number']}: {sum(zweige)} of {len(zweige)}")
print(f"{'room':12} {'lines':>12} {'':>6} {'branches':>12}")
for raum, (zeilen, getroffen, zweige, genommen) in sorted(summe.items()):
    anteile = [f"{100 * wert / max(1, von):5.1f} %" for wert, von in ((getroffen, zeilen), (genommen, zweige))]
    print(f"{raum:12} {getroffen:5} of {zeilen:5} {anteile[0]}  {genommen:5} of {zweige:5} {anteile[1]}")
for raum in sys.argv[2:]:
    print("\n".join(luecken[raum]))
ENDE
