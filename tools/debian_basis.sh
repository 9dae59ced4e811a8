#!/usr/bin/env bash
# Prints the path of a fresh, smallest Debian as an archive: debian_basis.sh SUITE. Made by debootstrap, as root, where it is
# missing, outside of the repository: it takes a minute and the network.
set -euo pipefail
suite=$1
vorrat=${XDG_CACHE_HOME:-$HOME/.cache}/zepholt
archiv=$vorrat/debian-$suite.tar
if [ ! -s "$archiv" ]; then
    mkdir -p "$vorrat"
    ordner=$(mktemp -d -p "$vorrat")
    trap 'rm -rf "$ordner"' EXIT
    # From where this system has its packages.
    quelle=$(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' | awk '/debian\/$/ && !n++')
    quelle=${ZEPHOLT_DEBIAN:-${quelle:-http://deb.debian.org/debian}}
    debootstrap --variant=minbase "$suite" "$ordner/system" "$quelle" >"$ordner/log" || {
        tail -n 5 "$ordner/log" >&2
        exit 1
    }
    rm -rf "$ordner"/system/var/cache/apt/archives/*.deb
    tar -C "$ordner/system" -cf "$ordner/fertig.tar" .
    mv "$ordner/fertig.tar" "$archiv"
fi
echo "$archiv"
