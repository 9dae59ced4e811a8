#!/usr/bin/env bash
# Makes all packages of the last commit twice, in folders of other names and depth and without the compiler's cache, and
# compares them: reproduzierbar.sh [-DSETTING=VALUE...]. Takes some minutes.
set -euo pipefail
cd "$(dirname "$0")/.."
ort=$(mktemp -d)
trap 'rm -rf "$ort"' EXIT
SOURCE_DATE_EPOCH=$(git log -1 --format=%ct)
export SOURCE_DATE_EPOCH CCACHE_DISABLE=1
for ordner in eins "ein anderer/Ordner, tiefer"; do
    mkdir -p "$ort/$ordner"
    git archive HEAD | tar -C "$ort/$ordner" -x
    sleep 2 # the files of the second folder are younger
    "$ort/$ordner/package.sh" "$@" >"$ort/log" 2>&1 || {
        tail -n 20 "$ort/log"
        exit 1
    }
done
schlecht=0
while read -r _ datei; do
    if cmp "$ort/eins/build/pakete/$datei" "$ort/ein anderer/Ordner, tiefer/build/pakete/$datei"; then
        echo "the same: $datei"
    else
        schlecht=1
    fi
done <"$ort/eins/build/pakete/SHA256SUMS"
exit "$schlecht"
