#!/usr/bin/env bash
# Builds ZEPHOLT and runs it. Without arguments: tests the faulty sample of each kind and lists what was found. With
# arguments: passes them to the program as they are.
set -euo pipefail
quelle=$(cd "$(dirname "$0")" && pwd)
. "$quelle/tools/pakete.sh"

# What the set-up and the build say goes to standard error: standard output is the program's.
{
    # shellcheck disable=SC2086
    "$quelle/tools/einrichten.sh" $PAKETE_BAU
    cd "$quelle"
    cmake --preset release -Wno-dev >/dev/null
    cmake --build --preset release
    cd - >/dev/null
} 1>&2

programm="$quelle/build/release/zepholt"
if [ $# -gt 0 ]; then
    exec "$programm" "$@"
fi

mkdir -p "$quelle/lauf"
for art in 01S E1S; do
    protokoll="$quelle/lauf/fehlerhaft.$art.xml"
    rm -f "$protokoll"
    "$programm" "file=$quelle/samples/fehlerhaft.$art" dialog=de- "errorfile=$protokoll" \
        "catalog=$quelle/samples/katalog"
    echo
    echo "== samples/fehlerhaft.$art"
    # Status 1: the file has errors, as these two samples do.
    "$quelle/build/release/zepholt-bericht" table "$protokoll" || [ $? -eq 1 ]
    echo "   Protokoll: $protokoll"
done
