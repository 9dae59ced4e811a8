#!/usr/bin/env bash
# Looks at what users get: haertung_pruefen.sh PROGRAM... (Linux programs and libraries, and .exe files). Fails when one
# lacks random addresses, a stack that is not executable, the stack protector, or (Linux) a table of functions that is
# read-only from the start.
set -uo pipefail
schlecht=0

# pruefe NAME COMMAND...
pruefe() {
    local was=$1
    shift
    "$@" || {
        echo "$datei: no $was"
        schlecht=1
    }
}

hat() { grep -qE "$1" <<<"$angaben"; }
hat_nicht() { ! hat "$1"; }

for datei in "$@"; do
    case $datei in
    *.exe)
        angaben=$(objdump -p "$datei")
        for eigenschaft in DYNAMIC_BASE NX_COMPAT HIGH_ENTROPY_VA; do
            pruefe "$eigenschaft" hat "$eigenschaft"
        done
        ;;
    *)
        angaben=$(readelf -hldW "$datei"; readelf -W --dyn-syms "$datei")
        pruefe "random addresses" hat 'Type:.*DYN'
        pruefe "read-only table of functions" hat 'GNU_RELRO'
        pruefe "binding at the start" hat 'BIND_NOW|Flags:.*NOW'
        pruefe "stack that is not executable" hat_nicht 'GNU_STACK.* RWE '
        pruefe "stack protector" hat '__stack_chk_fail'
        ;;
    esac
done
[ "$schlecht" -eq 0 ] && echo "hardened: $*"
exit "$schlecht"
