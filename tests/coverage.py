"""Writes how many lines and branches of folders have been run by programs that were built with --coverage.

coverage.py BUILD_FOLDER FOLDER...    to be called in the root of the sources

A line counts once, however many programs and instances of templates have it, and so does each of its branches; branches that
only exceptions take are left out.
"""

import collections
import concurrent.futures
import json
import os
import pathlib
import subprocess
import sys


def counts_of(data):
    """What one object file's run says, as gcov has it."""
    command = ["gcov", "--json-format", "--branch-probabilities", "--stdout", data.name]
    output = subprocess.run(command, cwd=data.parent, capture_output=True, text=True).stdout
    return [json.loads(line) for line in output.splitlines() if line.startswith("{")]


def read(build, folders):
    root = pathlib.Path.cwd()
    lines = collections.defaultdict(dict)
    branches = collections.defaultdict(dict)
    data = sorted(build.resolve().rglob("*.gcda"))
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for reports in pool.map(counts_of, data):
            for report in reports:
                for file in report["files"]:
                    path = pathlib.Path(report["current_working_directory"], file["file"]).resolve()
                    if not path.is_relative_to(root) or path.relative_to(root).parts[0] not in folders:
                        continue
                    name = str(path.relative_to(root))
                    for line in file["lines"]:
                        number = line["line_number"]
                        lines[name][number] = lines[name].get(number, 0) + line["count"]
                        for index, branch in enumerate(line["branches"]):
                            if branch["throw"]:
                                continue
                            place = (number, index)
                            branches[name][place] = branches[name].get(place, 0) + branch["count"]
    return lines, branches


def room_of(name):
    parts = name.split("/")
    return "/".join(parts[:2]) if parts[0] in ("source", "service") and len(parts) > 2 else parts[0]


def share(counts):
    run = sum(count > 0 for count in counts)
    return f"{run:7d} of {len(counts):7d} {100 * run / max(1, len(counts)):6.2f} %"


def main():
    build, folders = pathlib.Path(sys.argv[1]), sys.argv[2:]
    lines, branches = read(build, folders)
    rooms = sorted({room_of(name) for name in lines})
    print(f"{'':22}{'lines':>26}{'branches':>28}")
    for room in rooms + [""]:
        names = [name for name in lines if not room or room_of(name) == room]
        line_counts = [count for name in names for count in lines[name].values()]
        branch_counts = [count for name in names for count in branches[name].values()]
        print(f"{room or 'all':22}{share(line_counts)}  {share(branch_counts)}")
    with (build / "not_run.txt").open("w") as out:
        for name in sorted(lines):
            text = pathlib.Path(name).read_text().splitlines()
            missing = collections.defaultdict(list)
            for number, count in lines[name].items():
                if count == 0:
                    missing[number].append("line")
            for (number, index), count in branches[name].items():
                if count == 0 and lines[name].get(number, 0) > 0:
                    missing[number].append("branch")
            for number in sorted(missing):
                source = text[number - 1].strip() if number <= len(text) else ""
                print(f"{name}:{number}: {' '.join(missing[number])}: {source}", file=out)


main()
