# For the scripts of this folder, which source it: a display without a screen with a window manager, a folder for files,
# and what a person does with windows. All of it is gone with the script.
export LC_ALL=C.UTF-8
ordner=$(mktemp -d)
export XDG_RUNTIME_DIR=$ordner
exec 9>"$ordner/nummer"
Xvfb -displayfd 9 -screen 0 1600x1200x24 -nolisten tcp >/dev/null 2>&1 &
xvfb=$!
until [ -s "$ordner/nummer" ]; do sleep 0.1; done
exec 9>&-
DISPLAY=:$(cat "$ordner/nummer")
export DISPLAY
openbox >/dev/null 2>&1 &
openbox=$!
aufraeumen() {
    kill "$openbox" "$xvfb" 2>/dev/null
    [ -z "${wineserver:-}" ] || "$wineserver" -k </dev/null >/dev/null 2>&1
    rm -rf "$ordner"
}
trap aufraeumen EXIT

# Makes Wine ready with a prefix; a server that was started without this display would show nothing.
wine_bereiten() {
    export WINEPREFIX=$1 WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
    wine=/usr/lib/wine/wine64
    wineserver=/usr/lib/wine/wineserver64
    [ -x "$wineserver" ] || wineserver=/usr/lib/wine/wineserver
    "$wineserver" -k </dev/null >/dev/null 2>&1 || true
    [ -d "$WINEPREFIX" ] || { "$wine" wineboot -i </dev/null >/dev/null 2>&1 && "$wineserver" -w; }
}

# The first visible window whose title matches.
fenster() { xdotool search --onlyvisible --name "$1" 2>/dev/null | head -n 1 | grep .; }
zahl() { xdotool search --onlyvisible --name "$1" 2>/dev/null | wc -l; }

# Waits, thirty seconds at most, until a command succeeds, or until it fails.
warte() { for _ in $(seq 300); do "$@" >/dev/null 2>&1 && return 0; sleep 0.1; done; return 1; }
warte_weg() { for _ in $(seq 300); do "$@" >/dev/null 2>&1 || return 0; sleep 0.1; done; return 1; }

klick() { xdotool mousemove --window "$1" "$2" "$3" click 1; }
taste() { sleep 0.3; xdotool key --delay 150 "$@"; }

# A protocol without its date and time.
ohne_zeit() { sed -E 's|<Date>.*</Time>||' "$1"; }

gut=0 schlecht=0
pruefe() { # what, command...
    if "${@:2}"; then
        gut=$((gut + 1))
    else
        schlecht=$((schlecht + 1))
        echo "FAILED: $1"
    fi
}
