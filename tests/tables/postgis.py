"""Tables in a database and back: `postgis.py COUNT TILES-PROGRAM INSPECT-PROGRAM`.

Two processes write the features of COUNT tiles into one database with PostGIS, which is made in a temporary folder for
the test and run by a user without rights. A query over them becomes new attributes of the documents. Ends with 77 where
PostgreSQL is not installed.
"""
import glob
import os
import pwd
import shutil
import subprocess
import sys
import tempfile


class Server:
    """A server of its own, which listens in a folder alone."""

    def __init__(self, folder, programs):
        self.folder = folder
        self.programs = programs
        self.data = os.path.join(folder, "data")
        self.user = "nobody" if os.geteuid() == 0 else pwd.getpwuid(os.geteuid()).pw_name
        if os.geteuid() == 0:
            shutil.chown(folder, self.user)

    def call(self, program, *arguments):
        command = [os.path.join(self.programs, program), *arguments]
        if os.geteuid() == 0:
            command = ["setpriv", "--reuid", self.user, "--clear-groups", *command]
        return subprocess.run(command, check=True, text=True, stdout=subprocess.PIPE, cwd=self.folder).stdout

    def sql(self, text, database="city"):
        return self.call("psql", "-h", self.folder, "-U", "city", "-At", "-c", text, database).strip()

    def __enter__(self):
        self.call("initdb", "-D", self.data, "-U", "city", "--auth=trust", "--encoding=UTF8", "--no-sync")
        options = f"-k {self.folder} -c listen_addresses= -c fsync=off"
        self.call("pg_ctl", "-D", self.data, "-o", options, "-l", os.path.join(self.folder, "log"), "-w", "start")
        self.sql("CREATE DATABASE city", "postgres")
        self.sql("CREATE EXTENSION postgis")
        return self

    def __exit__(self, *_):
        self.call("pg_ctl", "-D", self.data, "-m", "immediate", "stop")


def main():
    count, tiles_program, inspect = sys.argv[1:]
    found = sorted(glob.glob("/usr/lib/postgresql/*/bin"))
    if not found or not glob.glob("/usr/share/postgresql/*/extension/postgis.control"):
        print("there is no PostgreSQL with PostGIS")
        return 77
    with tempfile.TemporaryDirectory() as folder:
        os.chmod(folder, 0o755)
        tiles, place = os.path.join(folder, "tiles"), os.path.join(folder, "server")
        os.mkdir(tiles)
        os.mkdir(place)
        subprocess.run([tiles_program, count, tiles], check=True)
        files = sorted(glob.glob(tiles + "/*.gml"))
        columns = os.path.join(folder, "columns.json")
        subprocess.run([inspect, "table", *files, "--columns-from", columns], check=True)
        with Server(place, found[-1]) as server:
            target = f"PG:host={place} dbname=city user=city"
            command = [inspect, "table", "--columns-from", columns, "--append", "--out", target]
            # pylint: disable=consider-using-with
            writers = [subprocess.Popen([*command, *part]) for part in (files[::2], files[1::2])]
            assert [writer.wait() for writer in writers] == [0, 0]

            houses = 2 * int(count)
            assert server.sql('SELECT count(*) FROM "Building"') == str(houses)
            assert server.sql('SELECT count(DISTINCT "file") FROM "Building"') == count
            assert server.sql('SELECT bool_and(ST_Area(geometry) > 10) FROM "Building"') == "t"
            assert server.sql("SELECT DISTINCT ST_SRID(geometry) FROM \"Building\"") == "25832"
            means = server.sql('SELECT "Fields/RoofType", avg("Fields/MeasuredHeight") FROM "Building" GROUP BY 1')
            assert 2 <= len(means.splitlines()) <= 5, means

            query = ('SELECT "gml:id", round(avg("Fields/MeasuredHeight") OVER (PARTITION BY "Fields/RoofType")::numeric, 3)'
                     '::float8 AS "gen:mean height [m]" FROM "Building"')
            back = os.path.join(folder, "back")
            subprocess.run([inspect, "apply", target, *files, "--sql", query, "--create", "--out-dir", back], check=True)
            table = os.path.join(folder, "table.csv")
            subprocess.run([inspect, "table", "--recursive", back, "--type", "Building", "--columns",
                            "Fields/RoofType,gen:mean height", "--out", table], check=True)
            expected = {roof: round(float(mean), 3) for roof, mean in (line.split("|") for line in means.splitlines())}
            with open(table, encoding="utf-8") as lines:
                rows = [line.rstrip("\n").rsplit(",", 2)[1:] for line in lines][1:]
            assert len(rows) == houses
            for roof, mean in rows:
                assert abs(expected[roof] - float(mean)) < 0.0011, (roof, mean, expected)
    return 0


if __name__ == "__main__":
    sys.exit(main())
