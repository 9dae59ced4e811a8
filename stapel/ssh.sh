#!/usr/bin/env bash
# Many exchange files on several machines, by GNU parallel over ssh:
#
#   stapel/ssh.sh [--copy] HOST,HOST,... SHARDS FOLDER OUTPUT CATALOGUE [OPTIONS OF zepholt-stapel...]
#
# Each machine does one shard at a time, on all its cores; a shard that fails is given to another machine, three times. At
# the end this machine does what is left over, and makes the table. Take several shards for each machine: the last ones
# are then shared out evenly. Run again, it goes on.
#
# Without --copy all machines see FOLDER, OUTPUT and CATALOGUE under the same paths. With --copy only this one does: the
# files of a shard are copied to a folder of the other machine for temporary files, the protocols back (by rsync, which
# gives a file its name when it is whole); CATALOGUE is then a path on the other machines, and here.
#
# ZEPHOLT_STAPEL is the script's path on the machines where it isn't on the search path, PARALLEL_SSH the command in
# place of ssh.
set -euo pipefail
[ "${1:-}" != --help ] && [ $# -ge 5 ] || {
    sed -n '2,/^set/{/^set/d;s/^# \?//;p}' "$0"
    exit 64
}
kopie=nein
[ "$1" != --copy ] || {
    kopie=ja
    shift
}
rechner=$1 teile=$2 ordner=$(realpath "$3") ziel=$(realpath -m "$4") katalog=$5
shift 5
export stapel=${ZEPHOLT_STAPEL:-zepholt-stapel} ssh=${PARALLEL_SSH:-ssh} rechner teile ordner ziel katalog

# What a shell on another machine makes the same words of.
worte() {
    printf '%q ' "$@"
}

# teil_mit_kopie SLOT SHARD OPTIONS...: one shard on the machine of the slot.
teil_mit_kopie() {
    set -euo pipefail
    local host ort eigenes="$ziel/.zepholt-stapel"
    host=$(cut -d, -f"$1" <<<"$rechner")
    local teil=$2/$teile
    shift 2
    ort=$($ssh "$host" mktemp -d)
    # shellcheck disable=SC2064
    trap "$ssh $host rm -r $ort" EXIT
    "$stapel" "$ordner" -o "$ziel" -c "$katalog" --shard="$teil" --names |
        rsync -a -0 --files-from=- -e "$ssh" "$ordner/" "$host:$ort/ein/"
    local status=0
    # shellcheck disable=SC2029
    $ssh "$host" "mkdir -p $ort/ein && $(printf '%q ' "$stapel" "$ort/ein" -o "$ort/aus" -c "$katalog" "$@") >$ort/summe" || status=$?
    rsync -a -e "$ssh" --exclude=/.zepholt-stapel --exclude='/table.*' --exclude=/index.html --temp-dir="$eigenes" \
        "$host:$ort/aus/" "$ziel/"
    rsync -a -e "$ssh" --include='*.journal' --exclude='*' "$host:$ort/aus/.zepholt-stapel/" "$eigenes/"
    [ "$status" -le 1 ] # with errors in the files, or without
}
export -f teil_mit_kopie

if [ $kopie = ja ]; then
    # A slot of parallel is a machine here.
    seq "$teile" | SHELL=$BASH parallel -q -j "$(tr , '\n' <<<"$rechner" | wc -l)" --retries 3 \
        teil_mit_kopie {%} {} "$@" || true
else
    aufruf=$(worte "$stapel" "$ordner" -o "$ziel" -c "$katalog" "$@")
    seq "$teile" | parallel -I @TEIL@ -j 1 --sshlogin "$rechner" --retries 3 "$aufruf --shard=@TEIL@/$teile" || true
fi
exec "$stapel" "$ordner" -o "$ziel" -c "$katalog" "$@"
