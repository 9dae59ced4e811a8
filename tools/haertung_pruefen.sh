#!/usr/bin/env bash
# Looks at what users get: haertung_pruefen.sh PROGRAM... (Linux programs and libraries, and .exe files). Fails when one
# lacks random addresses, a stack that is not executable, the stack protector, marked targets of jumps, or (Linux) a table
# of functions that is read-only from the start and checked library calls. Prints what each has. Control flow guard is no
# part of it: g++ for Windows can't make it.
set -uo pipefail
schlecht=0

# pruefe NAME COMMAND...
pruefe() {
    local was=$1
    shift
    if "$@"; then
        gut+=", $was"
    else
        echo "$datei: no $was"
        schlecht=1
    fi
}

hat() { grep -qE "$1" <<<"$angaben"; }
hat_nicht() { ! hat "$1"; }
# im_code PATTERN: among the instructions.
im_code() { [ -n "$(objdump -d --no-show-raw-insn "$datei" | grep -m 1 -E "$1")" ]; }
# sagt TEXT: the program has it.
sagt() { grep -qaF "$1" "$datei"; }

for datei in "$@"; do
    gut=""
    case $datei in
    *.exe)
        angaben=$(objdump -p "$datei")
        pruefe "random addresses (ASLR)" hat DYNAMIC_BASE
        pruefe "high entropy" hat HIGH_ENTROPY_VA
        pruefe "no execution of data (DEP)" hat NX_COMPAT
        pruefe "stack protector" sagt "stack smashing detected"
        ;;
    *)
        angaben=$(readelf -hldW "$datei"; readelf -W --dyn-syms "$datei")
        pruefe "random addresses (PIE)" hat 'Type:.*DYN'
        pruefe "table of functions read-only (RELRO)" hat 'GNU_RELRO'
        pruefe "binding at the start" hat 'BIND_NOW|Flags:.*NOW'
        pruefe "no execution of the stack" hat_nicht 'GNU_STACK.* RWE '
        pruefe "stack protector" im_code '%fs:0x28'
        # A program that has its C library inside says what it checks; another asks for checked calls, a library may have none.
        if hat 'INTERP'; then
            pruefe "checked library calls" hat '_chk@'
        elif hat 'Flags:.*PIE'; then
            pruefe "checked library calls" sagt "buffer overflow detected"
        fi
        ;;
    esac
    pruefe "marked targets of jumps (CET)" im_code 'endbr64'
    echo "$datei: ${gut#, }"
done
[ "$schlecht" -eq 0 ] && echo "hardened: $*"
exit "$schlecht"
