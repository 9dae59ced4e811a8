#!/usr/bin/env bash
# Builds the page that tests in a browser: build/web is the folder of its files, build/modul/zepholt-4.0-web.zip the same as
# an archive.
set -euo pipefail
quelle=$(cd "$(dirname "$0")" && pwd)
. "$quelle/tools/pakete.sh"
# shellcheck disable=SC2086
"$quelle/tools/einrichten.sh" $PAKETE_WEB
cd "$quelle"
cmake --preset web -Wno-dev >/dev/null
cmake --build --preset web
du -sb build/web | sed 's/\t.*/ bytes in build\/web/'
