#!/usr/bin/env bash
# Many exchange files by Slurm: an array of tasks, one for each shard, and behind it a job that does what is left over and
# makes the table.
#
#   stapel/slurm.sh SHARDS FOLDER -o OUTPUT -c CATALOGUE [OPTIONS OF zepholt-stapel...]
#
# All nodes see the folders under the same paths. Prints the numbers of both jobs; options of sbatch stand in
# SBATCH_... variables, the processors of a task in ZEPHOLT_CPUS (1). Called again, it goes on. ZEPHOLT_STAPEL is the script's
# path on the nodes where it isn't on the search path.
set -euo pipefail
[ "${1:-}" != --help ] && [ $# -ge 5 ] || {
    sed -n '2,/^set/{/^set/d;s/^# \?//;p}' "$0"
    exit 64
}
teile=$1
if [ -z "${SLURM_JOB_ID:-}" ]; then
    feld=$(sbatch --parsable --requeue --job-name=zepholt --cpus-per-task="${ZEPHOLT_CPUS:-1}" --array=1-"$teile" "$0" "$@")
    echo "$feld"
    exec sbatch --parsable --job-name=zepholt-rest --cpus-per-task="${ZEPHOLT_CPUS:-1}" --dependency=afterany:"$feld" "$0" "$@"
fi
shift
teil=()
[ -z "${SLURM_ARRAY_TASK_ID:-}" ] || teil=(--shard="$SLURM_ARRAY_TASK_ID/$teile")
exec "${ZEPHOLT_STAPEL:-zepholt-stapel}" "${teil[@]}" --jobs="${SLURM_CPUS_PER_TASK:-1}" "$@"
