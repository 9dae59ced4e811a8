#!/usr/bin/env bash
# Takes pictures of both windows in the three languages, on Linux and under Wine, into docs/.
#
#     tests/fenster/bilder.sh [LINUX-PROGRAM [WINDOWS-PROGRAM]]
#
# Needs xvfb, openbox, xdotool, imagemagick, python3 and, for the Windows program, wine64 and fonts-wine.
set -euo pipefail
cd "$(dirname "$0")/../.."
linux=$(realpath "${1:-build/release/zepholt}")
windows=$(realpath "${2:-build/windows/zepholt.exe}")
praefix=${WINEPREFIX:-$PWD/build/windows/wp}
. tests/fenster/anzeige.sh
wine_bereiten "$praefix"

mkdir "$ordner/k"
bench/erzeugen.py dokument "$ordner/Offerte.01S" 100 --falsch
titel='QVM-Test: SIA451'

# The window with this width of its client area, in pixels.
breit() {
    for w in $(xdotool search --onlyvisible --name "$titel"); do
        xdotool getwindowgeometry "$w" | grep -q "Geometry: $1x" && echo "$w" && return
    done
    return 1
}

# Whether the bar of a window has begun: a pixel of it that is blue.
balken() {
    import -window "$1" -crop 1x1+26+145 -depth 8 rgb:- | od -An -tu1 | awk '{ exit !($3 > $1 + 60) }'
}

bilder() { # toolkit, command...
    for sprache in de fr it; do
        "${@:2}" "dialog=$sprache" >/dev/null 2>&1 </dev/null &
        lauf=$!
        warte breit 520
        haupt=$(breit 520)
        warte balken "$haupt"
        klick "$haupt" 470 24 # the run stands still while the info window is open
        warte breit 497
        xdotool windowmove "$(breit 497)" 20 500 windowmove "$haupt" 20 20
        xdotool mousemove 1500 1100
        sleep 1
        import -frame -window "$haupt" "$ordner/$1_${sprache}_1.png"
        import -frame -window "$(breit 497)" "$ordner/$1_${sprache}_2.png"
        kill "$lauf" 2>/dev/null || true
        [ -z "${wineserver:-}" ] || "$wineserver" -k </dev/null >/dev/null 2>&1 || true
        wait "$lauf" 2>/dev/null || true
    done
    montage "$ordner/$1"_{de,fr,it}_{1,2}.png -tile 2x3 -geometry +6+6 -background white -gravity north \
        -strip -define png:exclude-chunks=date,time "docs/fenster_$1.png"
}

parameter=(catalog="$ordner/k" errorfile="$ordner/p.xml" file="$ordner/Offerte.01S")
bilder linux "$linux" "${parameter[@]}"
bilder windows "$wine" "$windows" "${parameter[@]/=\//=Z:/}"
