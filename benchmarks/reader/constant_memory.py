#!/usr/bin/env python3
"""The memory of `axm table` on a document of many gigabytes, as a pipe and as a file: constant_memory.py AXM [GIGABYTES] [FILE]

Writes the peak beside that of `axm table --reader simple` on a small document. With FILE, the document is written there, read
and removed; without, it comes through a pipe only.
"""

import os
import subprocess
import sys
import tempfile

BEGIN = b'<?xml version="1.0"?>\n<r>\n'
END = b"</r>\n"
RECORD = b'<item id="%08d" kind="k"><name>Name of the item</name><value>1234.25</value></item>\n'
BLOCK = b"".join(RECORD % number for number in range(10000))
COLUMNS = ["r/item", "@id", "name", "value"]
LIMIT = 16


def write(stream, blocks):
    stream.write(BEGIN)
    for _ in range(blocks):
        stream.write(BLOCK)
    stream.write(END)
    stream.close()


def peak_of(process):
    """The peak in megabytes and the processor's seconds of a process that has ended by itself."""
    _, status, usage = os.wait4(process.pid, 0)
    process.returncode = os.waitstatus_to_exitcode(status)
    if process.returncode != 0:
        sys.exit(f"axm failed: {process.returncode}")
    return usage.ru_maxrss / 1024, usage.ru_utime + usage.ru_stime


def table(axm, name, *options, stdin=None):
    with open(os.devnull, "wb") as nothing:
        return subprocess.Popen([axm, "table", name] + COLUMNS + list(options), stdin=stdin, stdout=nothing)


def main():
    axm = sys.argv[1]
    gigabytes = float(sys.argv[2]) if len(sys.argv) > 2 else 4
    blocks = int(gigabytes * 1e9 / len(BLOCK)) + 1
    with tempfile.NamedTemporaryFile(suffix=".xml") as small:
        with open(small.name, "wb") as stream:
            write(stream, 1)
        simple, _ = peak_of(table(axm, small.name, "--reader", "simple"))
    print(f"simple reader, {len(BLOCK) / 1e6:.1f} MB: {simple:.1f} MB")
    process = table(axm, "-", stdin=subprocess.PIPE)
    write(process.stdin, blocks)
    peaks = [peak_of(process)]
    print(f"pipe of {blocks * len(BLOCK) / 1e9:.2f} GB: {peaks[-1][0]:.1f} MB, {peaks[-1][1]:.1f} s of the processor")
    if len(sys.argv) > 3:
        try:
            with open(sys.argv[3], "wb") as stream:
                write(stream, blocks)
            peaks.append(peak_of(table(axm, sys.argv[3])))
        finally:
            os.remove(sys.argv[3])
        print(f"file of {blocks * len(BLOCK) / 1e9:.2f} GB: {peaks[-1][0]:.1f} MB, {peaks[-1][1]:.1f} s of the processor")
    more = max(peak for peak, _ in peaks) - simple
    print(f"beyond the simple reader's: {more:.1f} MB, at most {LIMIT}: {'met' if more <= LIMIT else 'MISSED'}")


if __name__ == "__main__":
    main()
