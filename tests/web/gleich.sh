#!/usr/bin/env bash
# Holds the module's protocols against the native program's, byte for byte: gleich.sh NATIVE [lang]
# Short: the whole runs, the forms of a protocol, the random suites, random files. `lang`: all cases by code, many random files.
set -euo pipefail
quelle=$(cd "$(dirname "$0")/../.." && pwd)
nativ=$(realpath "$1")
lang=${2:-}
ordner=$(mktemp -d)
mkfifo "$ordner/halt"
node "$quelle/tests/web/dienst.mjs" "$quelle/build/modul" "$ordner/dienst" <"$ordner/halt" &
exec 9>"$ordner/halt" # as long as this stays open, the service runs
trap 'exec 9>&-; wait; rm -rf "$ordner"' EXIT
while [ ! -S "$ordner/dienst" ]; do sleep 0.1; done
export ZEPHOLT_WEB=$ordner/dienst

cd "$quelle/tests/codes"
module=(faelle_test.py protokoll_test.py zufall_test.py gblock_zufall_test.py)
anzahl=600
if [ -n "$lang" ]; then
    module=(*_test.py)
    anzahl=20000
fi
/usr/bin/python3 -B -m pytest -q -p no:cacheprovider --tb=short "${module[@]}" "--programm=$quelle/tests/web/zepholt"
"$quelle/tools/vergleiche.py" "$nativ" "$quelle/tests/web/zepholt" "$anzahl" --saat web
"$quelle/tools/vergleiche.py" "$nativ" "$quelle/tests/web/zepholt" $((anzahl / 3)) --saat web --katalog "$quelle/samples/katalog"
