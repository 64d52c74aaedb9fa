#!/usr/bin/env bash
# Makes tables of a folder of tiles, with as many processes as the machine has processors.
#
#   parallel.sh TILES OUT
#
# A tile that cannot be read is told, and the others are done. A process that is killed is started again.
set -uo pipefail

step=$(dirname -- "${BASH_SOURCE[0]}")/step.sh
tiles=$1
out=$2
code=0

each_tile() {
    parallel --will-cite --retries 2 --joblog "$out/$1.log" "$step" "$1" "$out" {} \
        :::: <(seq "$(wc -l <"$out/tiles.txt")") || code=1
}

"$step" list "$tiles" "$out" || exit
each_tile columns
"$step" merge "$out" || exit
each_tile tables
"$step" join "$out" || exit
exit "$code"
