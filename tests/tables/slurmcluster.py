"""A cluster of one machine with Slurm, in a folder of its own, without system services."""
import getpass
import os
import shutil
import socket
import subprocess
import time

CONFIGURATION = """
ClusterName=tiles
SlurmctldHost={name}(127.0.0.1)
SlurmUser={user}
SlurmdUser={user}
SlurmctldPort={ports[0]}
SlurmdPort={ports[1]}
AuthType=auth/none
CredType=cred/none
MpiDefault=none
ProctrackType=proctrack/linuxproc
TaskPlugin=task/none
SwitchType=switch/none
JobAcctGatherType=jobacct_gather/none
AccountingStorageType=accounting_storage/none
SchedulerParameters=batch_sched_delay=0,sched_interval=5
SelectType=select/cons_tres
SelectTypeParameters=CR_CPU
StateSaveLocation={folder}/state
SlurmdSpoolDir={folder}/spool
SlurmctldPidFile={folder}/slurmctld.pid
SlurmdPidFile={folder}/slurmd.pid
SlurmctldLogFile={folder}/slurmctld.log
SlurmdLogFile={folder}/slurmd.log
NodeName={name} NodeAddr=127.0.0.1 CPUs={processors} State=UNKNOWN
PartitionName=all Nodes=ALL Default=YES MaxTime=INFINITE State=UP
"""


class ClusterError(Exception):
    """The cluster cannot be started here; the text says why."""


def free_ports(count):
    sockets = [socket.socket() for _ in range(count)]
    for each in sockets:
        each.bind(("127.0.0.1", 0))
    ports = [each.getsockname()[1] for each in sockets]
    for each in sockets:
        each.close()
    return ports


class SlurmCluster:
    """Runs while it is entered; the commands of Slurm find it by `environment`."""

    def __init__(self, folder):
        for name in ("state", "spool"):
            os.makedirs(os.path.join(folder, name))
        self.folder = folder
        configuration = os.path.join(folder, "slurm.conf")
        self.environment = {**os.environ, "SLURM_CONF": configuration}
        with open(configuration, "w", encoding="utf-8") as file:
            file.write(CONFIGURATION.format(name=socket.gethostname().split(".")[0], user=getpass.getuser(),
                                            ports=free_ports(2), folder=folder, processors=os.cpu_count()))
        self.daemons = []

    def __enter__(self):
        for program in ("slurmctld", "slurmd"):
            path = shutil.which(program) or shutil.which(program, path="/usr/sbin")
            if path is None:
                self.stop()
                raise ClusterError(f"there is no {program}")
            with open(os.path.join(self.folder, program + ".out"), "w", encoding="utf-8") as output:
                # pylint: disable=consider-using-with
                self.daemons.append(subprocess.Popen([path, "-D"], env=self.environment, stdout=output, stderr=output))
        state = ""
        for _ in range(60):
            answer = subprocess.run(["sinfo", "--noheader", "--format=%t"], env=self.environment, capture_output=True,
                                    text=True, check=False)
            state = answer.stdout.strip() or answer.stderr.strip()
            if state == "idle":
                return self
            time.sleep(0.5)
        self.stop()
        raise ClusterError(f"Slurm does not start: {state}\n{self.last_lines()}")

    def last_lines(self):
        lines = []
        for name in ("slurmctld.log", "slurmd.log", "slurmd.out"):
            path = os.path.join(self.folder, name)
            if os.path.exists(path):
                with open(path, encoding="utf-8") as file:
                    lines += file.readlines()[-5:]
        return "".join(lines)

    def stop(self):
        for daemon in reversed(self.daemons):
            daemon.terminate()
        for daemon in self.daemons:
            daemon.wait()

    def __exit__(self, *_):
        self.stop()
