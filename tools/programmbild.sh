#!/bin/sh
# Draws the program's icon afresh: src/window/bild/zepholt.png and zepholt.ico. Needs ImageMagick.
set -eu
ziel=$(dirname "$0")/../src/window/bild
ordner=$(mktemp -d)
trap 'rm -r "$ordner"' EXIT

convert -size 256x256 xc:none \
    -fill white -stroke '#1f3a5f' -strokewidth 14 -draw 'roundrectangle 40,12 216,244 14,14' \
    -stroke none -fill '#8aa4c2' -draw 'rectangle 70,52 186,68 rectangle 70,88 186,104 rectangle 70,124 130,140' \
    -fill none -stroke '#2e8b3d' -strokewidth 34 -draw 'stroke-linecap round stroke-linejoin round polyline 92,176 132,216 222,112' \
    "$ordner/256.png"
for seite in 16 24 32 48 64; do
    convert "$ordner/256.png" -filter Box -resize ${seite}x${seite} -depth 8 -strip -define png:exclude-chunks=date,time \
        "$ordner/$seite.png"
done
convert "$ordner/16.png" "$ordner/24.png" "$ordner/32.png" "$ordner/48.png" "$ziel/zepholt.ico"
cp "$ordner/64.png" "$ziel/zepholt.png"
