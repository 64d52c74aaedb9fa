#!/usr/bin/env bash
# Makes tables of a folder of tiles on a cluster with Slurm, with one task of a job array for several tiles.
#
#   slurm.sh TILES OUT [TILES-A-TASK]
#
# A tile that cannot be done is tried once more, for a process that was killed. All machines see the folders under the
# same names. The script waits for the end. What a task says is in OUT/log, and the numbers of the tiles that could not
# be done are in OUT/failed.txt.
set -euo pipefail

step=$(realpath -- "$(dirname -- "${BASH_SOURCE[0]}")/step.sh")
tiles=$(realpath -- "$1")
mkdir -p "$2/log"
out=$(realpath -- "$2")
each=${3:-10}

"$step" list "$tiles" "$out"
rm -f "$out/failed.txt"
count=$(wc -l <"$out/tiles.txt")
tasks=$(((count + each - 1) / each))

# Submits a step for each tile; a second job has what it depends on as a further argument.
each_tile() {
    sbatch --parsable --array="1-$tasks" --output="$out/log/$1-%a.txt" --requeue "${@:2}" <<END
#!/usr/bin/env bash
last=\$((SLURM_ARRAY_TASK_ID * $each < $count ? SLURM_ARRAY_TASK_ID * $each : $count))
for number in \$(seq \$(((SLURM_ARRAY_TASK_ID - 1) * $each + 1)) "\$last"); do
    "$step" $1 "$out" "\$number" || "$step" $1 "$out" "\$number" || echo "\$number" >>"$out/failed.txt"
done
END
}

once() {
    sbatch --parsable --output="$out/log/$1.txt" "${@:2}" --wrap "'$step' $1 '$out'"
}

columns=$(each_tile columns)
merge=$(once merge --dependency="afterany:$columns")
tables=$(each_tile tables --dependency="afterok:$merge")
once join --dependency="afterany:$tables" --wait >/dev/null
if [[ -s $out/failed.txt ]]; then
    sort -nu "$out/failed.txt" | while IFS= read -r number; do
        echo "slurm.sh: $(sed -n "${number}p" "$out/tiles.txt") could not be done" >&2
    done
    exit 1
fi
