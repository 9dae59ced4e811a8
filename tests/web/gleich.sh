#!/usr/bin/env bash
# Holds the module's protocols against the native program's, byte for byte: gleich.sh NATIVE [lang]
# Short: the whole runs, the forms of a protocol, the random suites, random files. `lang`: all cases by code, many random files.
# Two parts run side by side, each with a service of its own.
set -euo pipefail
quelle=$(cd "$(dirname "$0")/../.." && pwd)
nativ=$(realpath "$1")
lang=${2:-}
ordner=$(mktemp -d)
trap 'rm -rf "$ordner"' EXIT

# mit_dienst NAME COMMAND...: runs it while a service of the module stands.
mit_dienst() {
    local halt=$ordner/$1.halt port=$ordner/$1.port dienst status=0
    shift
    mkfifo "$halt"
    node "$quelle/tests/web/dienst.mjs" "$quelle/build/modul" "$port" <"$halt" &
    dienst=$!
    exec 9>"$halt" # as long as this stays open, the service runs
    while [ ! -s "$port" ] && kill -0 "$dienst"; do sleep 0.1; done
    export ZEPHOLT_WEB
    ZEPHOLT_WEB=$(cat "$port")
    "$@" || status=$?
    exec 9>&-
    wait "$dienst" || status=$?
    return "$status"
}

# The cases whose expected outcomes are worked out by hand, or by a model of the rules.
faelle() {
    cd "$quelle/tests/codes" &&
        /usr/bin/python3 -B -m pytest -q -p no:cacheprovider --tb=short "$@" "--programm=$quelle/tests/web/zepholt"
}

# The native program and the module on N random files, and on a third as many with a catalogue.
dateien() {
    "$quelle/tools/vergleiche.py" "$nativ" "$quelle/tests/web/zepholt" "$1" --saat web &&
        "$quelle/tools/vergleiche.py" "$nativ" "$quelle/tests/web/zepholt" $(($1 / 3)) --saat web \
            --katalog "$quelle/samples/katalog"
}

module=(faelle_test.py protokoll_test.py zufall_test.py gblock_zufall_test.py)
anzahl=600
if [ -n "$lang" ]; then
    module=("$quelle"/tests/codes/*_test.py)
    anzahl=20000
fi
mit_dienst dateien dateien "$anzahl" >"$ordner/dateien.log" 2>&1 &
daneben=$!
status=0
mit_dienst faelle faelle "${module[@]}" || status=1
wait "$daneben" || status=1
cat "$ordner/dateien.log"
exit "$status"
