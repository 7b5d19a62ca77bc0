#!/usr/bin/python3
"""Takes the records of a large document out on several machines: extract.py AXM FILE PATH COLUMN... --output CSV

The document is split once (axm split), each part is read by a task of its own (axm table --part), and the rows are written
in the order of the document. The tasks run on a Dask cluster: on two processes of this machine or, with --scheduler, on
the one whose scheduler has that address. Then axm and the document must be on every machine under the same paths, and
"dask-scheduler" and "dask-worker ADDRESS" are started there as always. A worker that dies costs time only: its parts are
read again by another one.
"""

import argparse
import json
import os
import signal
import subprocess
import sys
import tempfile

# That a worker was killed and that workers end is no news here.
os.environ.setdefault("DASK_LOGGING__DISTRIBUTED", "critical")
from distributed import Client, LocalCluster, as_completed


def read_part(axm, file, path, columns, index, part):
    """The rows of one part, as the command writes them."""
    with tempfile.NamedTemporaryFile("w", suffix=".json", delete=False) as copy:
        json.dump(index, copy)
    try:
        command = [axm, "table", file, path, *columns, "--index", copy.name, "--part", str(part)]
        return subprocess.run(command, check=True, stdout=subprocess.PIPE).stdout
    finally:
        os.remove(copy.name)


def process_id():
    return os.getpid()


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("axm")
    parser.add_argument("file")
    parser.add_argument("path")
    parser.add_argument("columns", nargs="+")
    parser.add_argument("--output", required=True)
    parser.add_argument("--parts", type=int, default=8)
    parser.add_argument("--scheduler", help="the address of a cluster that is there, as tcp://host:8786")
    parser.add_argument("--kill-a-worker", action="store_true", help="to see that nothing is lost")
    request = parser.parse_args()

    file = os.path.abspath(request.file)
    axm = os.path.abspath(request.axm)
    split = subprocess.run([axm, "split", file, request.path, "--parts", str(request.parts)], stdout=subprocess.PIPE)
    if split.returncode != 0:
        return split.returncode
    index = json.loads(split.stdout)

    cluster = None
    if request.scheduler is None:
        cluster = LocalCluster(n_workers=2, threads_per_worker=1, dashboard_address=None)
    with Client(cluster or request.scheduler) as client:
        tasks = [
            client.submit(read_part, axm, file, request.path, request.columns, index, part)
            for part in range(len(index["parts"]))
        ]
        if request.kill_a_worker:
            next(iter(as_completed(tasks)))
            os.kill(next(iter(client.run(process_id).values())), signal.SIGKILL)
        with open(request.output, "wb") as output:
            for rows in tasks:
                output.write(rows.result())
    if cluster is not None:
        cluster.close()
    return 0


if __name__ == "__main__":
    sys.exit(main())
