#!/usr/bin/env python3
"""Makes tables of a folder of tiles with Dask, on the workers of a scheduler or on two of its own.

    dask_tables.py TILES OUT [SCHEDULER]

All machines see the folders under the same names. A tile that cannot be read is told, and the others are done. The
work of a worker that dies is done by another.
"""
import os
import subprocess
import sys

from dask.distributed import Client, LocalCluster, as_completed

STEP = os.path.join(os.path.dirname(os.path.abspath(__file__)), "step.sh")


def run(*arguments):
    """Runs a step. Answers what it said and whether it was done; a killed process is an error, so that Dask tries
    again."""
    done = subprocess.run([STEP, *arguments], capture_output=True, text=True, check=False)
    if done.returncode < 0 or done.returncode > 128:
        raise RuntimeError(f"{' '.join(arguments)} was killed")
    return done.stderr, done.returncode == 0


def each_tile(client, name, out, count):
    """Runs a step for each tile. Answers whether all could be done."""
    numbers = {
        client.submit(run, name, out, str(number), pure=False, retries=3): number for number in range(1, count + 1)
    }
    complete = True
    for future in as_completed(numbers):
        if future.status == "error":
            said, done = f"tile {numbers[future]}: {future.exception()}\n", False
        else:
            said, done = future.result()
        sys.stderr.write(said)
        complete = complete and done
    return complete


def main():
    tiles, out = (os.path.abspath(folder) for folder in sys.argv[1:3])
    cluster = sys.argv[3] if len(sys.argv) > 3 else LocalCluster(n_workers=2, threads_per_worker=1,
                                                                dashboard_address=None)
    subprocess.run([STEP, "list", tiles, out], check=True)
    with open(os.path.join(out, "tiles.txt"), encoding="utf-8") as names:
        count = len(names.readlines())
    with Client(cluster) as client:
        complete = each_tile(client, "columns", out, count)
        subprocess.run([STEP, "merge", out], check=True)
        complete = each_tile(client, "tables", out, count) and complete
    subprocess.run([STEP, "join", out], check=True)
    return 0 if complete else 1


if __name__ == "__main__":
    sys.exit(main())
