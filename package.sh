#!/usr/bin/env bash
# Makes all packages into build/pakete/: package.sh [-DSETTING=VALUE...]
#
#   zepholt_VERSION_amd64.deb           programs, man pages, completion, samples
#   zepholt-fenster_VERSION_amd64.deb   the window on Linux, with what a desktop needs
#   zepholt-doc_VERSION_all.deb         documents, the pages of the codes
#   zepholt-VERSION-windows-x64.zip     for Windows, to be unpacked anywhere
#   zepholt-VERSION-linux-x86_64.tar.gz for any Linux, to be unpacked anywhere; without a window
#   zepholt-VERSION-web.zip             the page that tests in a browser
#   SHA256SUMS                          the sums of all of them
#
# The version is the one in CMakeLists.txt. Who publishes packages gives the settings of the build, for example
#
#   ./package.sh -DZEPHOLT_HERSTELLER="Beispiel SA" -DZEPHOLT_ORT=Lausanne -DZEPHOLT_INHABER="Beispiel SA" \
#       -DZEPHOLT_JAHR=2026 -DZEPHOLT_KONTAKT="Beispiel SA <zepholt@beispiel.example>"
#
# HERSTELLER is the supplier, ORT his town, INHABER the holder of the rights and JAHR their year: the info window, the
# version resource and the copyright of the packages name them. KONTAKT is the maintainer of the Debian packages.
#
# The same commit gives the same bytes, in whatever folder: its time is the time of all files. Another publisher's clock
# is given as SOURCE_DATE_EPOCH.
set -euo pipefail
cd "$(dirname "$0")"
. tools/pakete.sh
# shellcheck disable=SC2086
tools/einrichten.sh $PAKETE_PAKETE

SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct)}
export SOURCE_DATE_EPOCH LC_ALL=C.UTF-8 TZ=UTC
umask 022
ziel=$PWD/build/pakete

# The builds, each a preset, with what it makes. CPack packs all but the page, which packs itself; another archive joins
# here.
bauen() {
    local bau=$1
    shift
    echo "== $bau"
    cmake --preset "$bau" -Wno-dev "${einstellungen[@]}" >/dev/null
    cmake --build --preset "$bau" --target "$@"
}
packen() {
    rm -rf "build/$1/pakete"
    cmake -E chdir "build/$1" cpack >"build/$1/cpack.log" || {
        cat "build/$1/cpack.log"
        exit 1
    }
    find "build/$1/pakete" -maxdepth 1 -type f ! -name '*.json' -exec cp {} "$ziel" \;
}

einstellungen=("$@")
rm -rf "$ziel"
mkdir -p "$ziel"
bauen release zepholt zepholt-bericht zepholt_fenster_qt hilfe_seiten
packen release
bauen statisch zepholt zepholt-bericht hilfe_seiten
packen statisch
bauen windows-release zepholt zepholt-bericht zepholt-pruefen
packen windows-release
rm -f build/modul/web/seite.stempel # an older archive would have the time of its commit
bauen web zepholt_web
cp build/modul/zepholt-*-web.zip "$ziel"

cd "$ziel"
sha256sum -- * >SHA256SUMS
echo "== build/pakete"
wc -c -- *
