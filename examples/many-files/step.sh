#!/usr/bin/env bash
# One step of the work on a folder of tiles. The other scripts here run these steps, on one machine or on many.
#
#   step.sh list TILES OUT     notes the tiles of the folder TILES
#   step.sh columns OUT N      finds the columns of the N-th tile
#   step.sh merge OUT          joins these to the columns of the whole
#   step.sh tables OUT N       makes the tables of the N-th tile
#   step.sh join OUT           joins these to the tables of the whole, in the order of the tiles
#
# TOLVIK_INSPECT names the program where it is not on the path.
set -euo pipefail

inspect=${TOLVIK_INSPECT:-tolvik-inspect}

tile() {
    sed -n "$2p" "$1/tiles.txt"
}

case $1 in
list)
    mkdir -p "$3/columns" "$3/tables"
    find "$2" -name '*.gml' | LC_ALL=C sort >"$3/tiles.txt"
    ;;
columns)
    "$inspect" table "$(tile "$2" "$3")" --columns-from "$2/columns/$3.json"
    ;;
merge)
    find "$2/columns" -name '*.json' | sort -V >"$2/columns.txt"
    "$inspect" columns "$2/columns.json" --files-from "$2/columns.txt"
    ;;
tables)
    "$inspect" table "$(tile "$2" "$3")" --columns-from "$2/columns.json" --out "$2/tables/$3"
    ;;
join)
    # All tiles have the same tables, so that the first tells their names and headers.
    first=$(find "$2/tables" -mindepth 1 -maxdepth 1 -type d | sort -V | sed -n 1p)
    cp "$first/columns.csv" "$2/columns.csv"
    for table in "$first"/*.csv; do
        name=$(basename "$table")
        if [[ $name != columns.csv ]]; then
            head -n 1 "$table" >"$2/$name"
            find "$2/tables" -name "$name" | sort -V | while IFS= read -r part; do
                tail -n +2 "$part" >>"$2/$name"
            done
        fi
    done
    ;;
esac
