#!/usr/bin/env bash
# Makes all packages into build/pakete/: package.sh [-DSETTING=VALUE...]
#
#   zepholt_VERSION_amd64.deb           programs, man pages, completion, samples
#   zepholt-fenster_VERSION_amd64.deb   the window on Linux, with what a desktop needs
#   zepholt-doc_VERSION_all.deb         documents, the pages of the codes
#   zepholt-VERSION-windows-x64.zip     for Windows, to be unpacked anywhere
#   zepholt-VERSION-linux-x86_64.tar.gz for any Linux, to be unpacked anywhere; without a window
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

# The builds, each a preset of which CPack makes packages. What is packed another way adds its files to $ziel in front of
# the sums.
bauten=(release statisch windows-release)

rm -rf "$ziel"
mkdir -p "$ziel"
for bau in "${bauten[@]}"; do
    echo "== $bau"
    cmake --preset "$bau" -Wno-dev "$@" >/dev/null
    cmake --build --preset "$bau" --target zepholt zepholt-bericht $(
        case $bau in
        release) echo zepholt_fenster_qt hilfe_seiten ;;
        statisch) echo hilfe_seiten ;;
        windows*) echo zepholt-pruefen hilfe_seiten ;;
        esac
    )
    rm -rf "build/$bau/pakete"
    cmake -E chdir "build/$bau" cpack >"build/$bau/cpack.log" || {
        cat "build/$bau/cpack.log"
        exit 1
    }
    find "build/$bau/pakete" -maxdepth 1 -type f \( -name '*.deb' -o -name '*.zip' -o -name '*.tar.gz' \) -exec cp {} "$ziel" \;
done

cd "$ziel"
sha256sum -- * >SHA256SUMS
echo "== build/pakete"
wc -c -- *
