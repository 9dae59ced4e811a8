#!/usr/bin/env bash
# The same files through GNU parallel over ssh (shared folder, and copied there and back) and through Slurm, on this one
# machine: an sshd of its own, then Slurm with one node. In each a worker's whole group is killed on the way.
#
#   viele_rechner.sh BUILD-FOLDER [FILES] [WAY...]      200 files; the ways are ssh, kopie, slurm
#
# Ends with status 77 where the machine can't run a way. Needs root, for sshd and Slurm.
set -euo pipefail
hier=$(cd "$(dirname "$0")" && pwd)
quelle=$(cd "$hier/../.." && pwd)
bau=$(realpath "$1")
anzahl=${2:-200}
shift $(($# < 2 ? $# : 2))
wege=("${@:-ssh kopie slurm}")
# shellcheck disable=SC2206
wege=(${wege[*]})
[ "$(id -u)" -eq 0 ] || {
    echo "needs root"
    exit 77
}
ort=$(mktemp -d "${TMPDIR:-/tmp}/zepholt-rechner-XXXXXX")
dienste=()

aufraeumen() {
    for dienst in "${dienste[@]}"; do
        kill "$dienst" 2>/dev/null || true
        wait "$dienst" 2>/dev/null || true
    done
    rm -rf "$ort"
}
trap aufraeumen EXIT

freier_port() {
    python3 -c 'import socket; s = socket.socket(); s.bind(("127.0.0.1", 0)); print(s.getsockname()[1])'
}

# warte_auf COMMAND...: until it succeeds, half a minute at most.
warte_auf() {
    for _ in $(seq 150); do
        "$@" >/dev/null 2>&1 && return
        sleep 0.2
    done
    echo "nothing came of: $*" >&2
    return 1
}

# schiesse_ab OUTPUT: kills, without a warning, the first shard that is seen at work on files of this run, with all of its
# processes.
schiesse_ab() {
    for _ in $(seq 2000); do
        arbeiter=$(pgrep -f -- "--arbeiter $1" | head -n 1) || true
        if [ -n "$arbeiter" ]; then
            sitzung=$(ps -o sid= -p "$arbeiter" | tr -d ' ') || true
            haupt=$(ps -o ppid= -p "${sitzung:-0}" | tr -d ' ') || true
            [ -n "$haupt" ] && [ "$haupt" -gt 1 ] || continue
            # shellcheck disable=SC2046
            kill -9 "$haupt" $(pgrep -s "$sitzung") 2>/dev/null || true
            echo "killed" >"$ort/abgeschossen"
            return
        fi
        sleep 0.01
    done
}

# pruefe WAY SECONDS: what lies in the output folder, against what the files demand.
pruefe() {
    [ -f "$ort/abgeschossen" ] || { echo "$1: nothing was killed"; exit 1; }
    rm "$ort/abgeschossen"
    /usr/bin/python3 - "$hier" "$ort/$1" "$anzahl" "$1" "$2" <<'ENDE'
import sys
sys.path.insert(0, sys.argv[1])
import pruefung
klagen = pruefung.abweichungen(sys.argv[2], int(sys.argv[3]))
print("\n".join(klagen[:10]))
print(f"{sys.argv[4]}: {sys.argv[3]} files, one shard killed, {sys.argv[5]} s, {len(klagen)} deviations")
sys.exit(bool(klagen))
ENDE
}

ssh_starten() {
    port=$(freier_port)
    mkdir -p "$ort/sshd" /run/sshd
    ssh-keygen -q -t ed25519 -N '' -f "$ort/sshd/rechner"
    ssh-keygen -q -t ed25519 -N '' -f "$ort/sshd/nutzer"
    cat >"$ort/sshd/sshd_config" <<ENDE
Port $port
ListenAddress 127.0.0.1
HostKey $ort/sshd/rechner
AuthorizedKeysFile $ort/sshd/nutzer.pub
PidFile none
UsePAM no
StrictModes no
PasswordAuthentication no
PermitRootLogin yes
MaxStartups 100
Subsystem sftp internal-sftp
ENDE
    cat >"$ort/sshd/config" <<ENDE
Host *
    Port $port
    IdentityFile $ort/sshd/nutzer
    IdentitiesOnly yes
    StrictHostKeyChecking no
    UserKnownHostsFile $ort/sshd/bekannte
    LogLevel ERROR
ENDE
    /usr/sbin/sshd -D -e -f "$ort/sshd/sshd_config" 2>"$ort/sshd/log" &
    dienste+=($!)
    export PARALLEL_SSH="ssh -F $ort/sshd/config"
    warte_auf $PARALLEL_SSH 127.0.0.1 true
}

# ueber_ssh NAME [--copy]
ueber_ssh() {
    local seit=$SECONDS status=0
    # With a copy the files of a shard lie in a folder of the other machine.
    schiesse_ab "$([ "$1" = ssh ] && echo "$ort/ein" || echo "/tmp/tmp\\.")" &
    "$quelle/stapel/ssh.sh" "${@:2}" 127.0.0.1,localhost 4 "$ort/ein" "$ort/$1" "$quelle/samples/katalog" \
        >"$ort/$1.log" 2>&1 || status=$?
    wait $!
    [ "$status" -eq 1 ] || { cat "$ort/$1.log"; echo "$1: status $status instead of 1"; exit 1; }
    pruefe "$1" $((SECONDS - seit))
}

slurm_starten() {
    local rechner s="$ort/slurm"
    rechner=$(hostname -s)
    mkdir -p "$s/stand" "$s/spool"
    chmod 755 "$ort" # munge wants to know who may get there
    mkdir -m 755 "$s/munge"
    dd if=/dev/urandom of="$s/munge/key" bs=128 count=1 2>/dev/null
    chmod 400 "$s/munge/key"
    /usr/sbin/munged --foreground --force --key-file="$s/munge/key" --socket="$s/munge/socket" --pid-file="$s/munge/pid" \
        --log-file="$s/munge/log" --seed-file="$s/munge/seed" 2>"$s/munge/stderr" &
    dienste+=($!)
    warte_auf test -S "$s/munge/socket"
    cat >"$s/slurm.conf" <<ENDE
ClusterName=pruefung
SlurmctldHost=$rechner(127.0.0.1)
SlurmctldPort=$(freier_port)
SlurmdPort=$(freier_port)
SlurmUser=root
SlurmdUser=root
AuthType=auth/munge
AuthInfo=socket=$s/munge/socket
CredType=cred/munge
StateSaveLocation=$s/stand
SlurmdSpoolDir=$s/spool
SlurmctldPidFile=$s/slurmctld.pid
SlurmdPidFile=$s/slurmd.pid
SlurmctldLogFile=$s/slurmctld.log
SlurmdLogFile=$s/slurmd.log
ProctrackType=proctrack/linuxproc
TaskPlugin=task/none
MpiDefault=none
SelectType=select/cons_tres
SelectTypeParameters=CR_CPU
SchedulerParameters=sched_interval=1,batch_sched_delay=0,defer=0
SchedulerType=sched/builtin
ReturnToService=2
JobRequeue=1
NodeName=$rechner NodeAddr=127.0.0.1 CPUs=$(nproc) State=UNKNOWN
PartitionName=alle Nodes=$rechner Default=YES MaxTime=INFINITE State=UP
ENDE
    export SLURM_CONF="$s/slurm.conf"
    /usr/sbin/slurmctld -D 2>"$s/ctld.stderr" &
    dienste+=($!)
    /usr/sbin/slurmd -D -N "$rechner" 2>"$s/slurmd.stderr" &
    dienste+=($!)
    warte_auf bash -c 'sinfo -h -o %T | grep -q -E "idle|mixed"' || {
        tail -n 5 "$s"/*.log "$s"/*.stderr
        return 77
    }
}

ueber_slurm() {
    local seit=$SECONDS
    schiesse_ab "$ort/ein" &
    (cd "$ort" && SBATCH_OUTPUT="$ort/slurm/aus-%j" "$quelle/stapel/slurm.sh" 4 "$ort/ein" -o "$ort/slurm-aus" \
        -c "$quelle/samples/katalog") >"$ort/slurm.log"
    rest=$(tail -n 1 "$ort/slurm.log")
    for _ in $(seq 3000); do
        zustand=$(scontrol -o show job "$rest" | grep -o 'JobState=[A-Z]*') || true
        case $zustand in *COMPLETED | *FAILED | *CANCELLED) break ;; esac
        sleep 0.2
    done
    wait $!
    mv "$ort/slurm-aus" "$ort/ueber_slurm"
    # The last job's status is that of the table: 1, for a third of the files is faulty.
    scontrol -o show job "$rest" | grep -q 'ExitCode=1:0' || { scontrol show job "$rest"; cat "$ort"/slurm/aus-*; exit 1; }
    pruefe ueber_slurm $((SECONDS - seit))
}

export ZEPHOLT_STAPEL="$bau/zepholt-stapel"
"$hier/dateien.py" "$ort/ein" "$anzahl"
case " ${wege[*]} " in *" ssh "* | *" kopie "*) ssh_starten ;; esac
for weg in "${wege[@]}"; do
    case $weg in
    ssh) ueber_ssh ssh ;;
    kopie) ueber_ssh kopie --copy ;;
    slurm)
        slurm_starten
        ueber_slurm
        ;;
    esac
done
