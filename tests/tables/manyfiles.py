"""Tables of many tiles, made side by side: `manyfiles.py HOW COUNT TILES-PROGRAM INSPECT-PROGRAM SCRIPTS`.

They are the tables that one process makes of all tiles, although a tile is broken and a process is killed. Ends with
77 where what HOW needs is not installed.
"""
import contextlib
import filecmp
import os
import shutil
import subprocess
import sys
import tempfile

from slurmcluster import ClusterError, SlurmCluster

# Stands in for the program: it dies the first time that it comes to one of the tiles.
MORTAL = """#!/bin/bash
if [[ $* == *tile00003* && ! -e {flag} ]]; then
    touch {flag}
    kill -KILL $$
fi
exec {program} "$@"
"""


def run(command, **options):
    return subprocess.run(command, capture_output=True, text=True, check=False, **options)


def command(how, scripts):
    """The script as a command; none where what it needs is not there."""
    if how == "dask":
        # A package of the system is there for the interpreter of the system alone.
        for python in (sys.executable, "/usr/bin/python3"):
            if run([python, "-c", "import distributed"]).returncode == 0:
                return [python, os.path.join(scripts, "dask_tables.py")]
        return None
    program = {"slurm": "sbatch"}.get(how, how)
    return [os.path.join(scripts, how + ".sh")] if shutil.which(program) else None


@contextlib.contextmanager
def surroundings(how, folder):
    """The environment in which the script runs."""
    if how != "slurm":
        yield os.environ
        return
    with SlurmCluster(folder) as cluster:
        yield cluster.environment


def main():
    how, count, tiles_program, inspect, scripts = sys.argv[1:]
    script = command(how, scripts)
    if script is None:
        print(f"what {how} needs is not installed")
        return 77
    with contextlib.ExitStack() as stack:
        folder = stack.enter_context(tempfile.TemporaryDirectory())
        try:
            environment = stack.enter_context(surroundings(how, os.path.join(folder, "cluster")))
        except ClusterError as error:
            print(error)
            return 77
        tiles, whole, out = (os.path.join(folder, name) for name in ("tiles", "whole", "out"))
        os.mkdir(tiles)
        subprocess.run([tiles_program, count, tiles], check=True)
        with open(os.path.join(tiles, "tile00005.gml"), "w", encoding="utf-8") as broken:
            broken.write("<broken/>")

        mortal = os.path.join(folder, "mortal")
        with open(mortal, "w", encoding="utf-8") as file:
            file.write(MORTAL.format(flag=os.path.join(folder, "flag"), program=inspect))
        os.chmod(mortal, 0o755)

        side_by_side = run([*script, tiles, out], env={**environment, "TOLVIK_INSPECT": mortal})
        one_by_one = run([inspect, "table", "--recursive", tiles, "--out", whole])
        for result in (side_by_side, one_by_one):
            assert result.returncode == 1, result
            assert "tile00005.gml could not be" in result.stderr, result.stderr
        assert os.path.exists(os.path.join(folder, "flag"))
        names = sorted(os.listdir(whole))
        assert "Building.csv" in names and len(names) > 5, names
        different = filecmp.cmpfiles(whole, out, names, shallow=False)[1:]
        assert different == ([], []), f"{different}\n{side_by_side.stderr[-2000:]}"
        with open(os.path.join(whole, "Building.csv"), encoding="utf-8") as table:
            assert len(table.readlines()) == 1 + 2 * (int(count) - 1)
    return 0


if __name__ == "__main__":
    sys.exit(main())
