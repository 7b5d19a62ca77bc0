"""Writes how many lines and branches of folders have been run by programs that were built with --coverage.

coverage.py BUILD_FOLDER FOLDER...    to be called in the root of the sources

A line counts once, however many programs and instances of templates have it, and so does each of its branches. Three kinds of
branches are left out: those that only an exception takes, together with the one that is taken without it (a call that may
throw is no decision of ours); those of blocks that only an exception reaches and none has reached, mostly the clearing up that
the compiler adds; and those of assert(), of which one ends the program.
"""

import collections
import concurrent.futures
import os
import pathlib
import re
import subprocess
import sys

FILE = re.compile(r" +-: +0:Source:(.*)")
PLACE = re.compile(r" *([-#=$%0-9]+)\*?: *([1-9][0-9]*)(:|-block)")
BRANCH = re.compile(r"branch +([0-9]+) (?:taken ([0-9]+)|never executed)(.*)")


def report_of(data):
    """What one object file's run says, as gcov has it: lines, and after each of their blocks its branches."""
    root = pathlib.Path.cwd()
    command = ["gcov", "--all-blocks", "--branch-probabilities", "--branch-counts", "--stdout", "--relative-only"]
    command += ["--source-prefix", str(root), data.name]
    return subprocess.run(command, cwd=data.parent, capture_output=True, text=True, errors="replace").stdout


class Counts:
    def __init__(self, folders):
        self.folders = folders
        self.lines = collections.defaultdict(dict)
        self.branches = collections.defaultdict(dict)
        self.name = None
        self.number = 0
        self.block = []
        self.is_call = False
        self.is_left_out = False
        self.unclear = collections.defaultdict(set)

    def add(self, report):
        for text in report.splitlines():
            if branch := BRANCH.match(text):
                self.block.append((int(branch[1]), int(branch[2]) if branch[2] else None, "(throw)" in branch[3]))
            elif text.startswith("call"):
                self.end_block()
                self.is_call = True
            elif place := PLACE.match(text):
                self.end_block()
                self.number = int(place[2])
                # gcov marks with it a block that has not run and that only an exception reaches.
                self.is_left_out = place[1] == "$$$$$"
                is_clearing_up = place[1] == "=====" and text[place.end() :].strip() == "}"
                if place[3] == ":" and place[1] != "-" and not is_clearing_up:
                    self.count(self.lines, self.number, int(place[1]) if place[1].isdigit() else 0)
            elif file := FILE.match(text):
                self.end_block()
                self.name = file[1] if file[1].split("/")[0] in self.folders else None
        self.end_block()
        self.name = None

    def end_block(self):
        # The ways out of a call that may throw come first; what follows decides on its result.
        ways = self.block[2:] if any(throws for *_, throws in self.block[:2]) else self.block
        # gcov does not tell them from a decision where the call was never made.
        is_unclear = self.is_call and len(ways) == 2 and ways[0][1] is None
        if not self.is_left_out and self.name:
            for index, count, throws in ways:
                if is_unclear:
                    self.unclear[self.name].add((self.number, index))
                elif not throws:
                    self.count(self.branches, (self.number, index), count or 0)
        self.block = []
        self.is_call = False

    def count(self, table, place, count):
        if self.name:
            table[self.name][place] = table[self.name].get(place, 0) + count

    def end(self):
        """Takes what may be a decision for one where its whole line has not run."""
        for name, places in self.unclear.items():
            for place in places:
                if self.lines[name].get(place[0], 0) == 0:
                    self.branches[name].setdefault(place, 0)


def read(build, folders):
    counts = Counts(folders)
    data = sorted(build.resolve().rglob("*.gcda"))
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for report in pool.map(report_of, data):
            counts.add(report)
    counts.end()
    for name, branches in counts.branches.items():
        text = pathlib.Path(name).read_text().splitlines()
        for place in [place for place in branches if text[place[0] - 1].lstrip().startswith("assert(")]:
            del branches[place]
    return counts.lines, counts.branches


def room_of(name):
    parts = name.split("/")
    return "/".join(parts[:2]) if parts[0] in ("source", "service") and len(parts) > 2 else parts[0]


def known_reasons():
    """By file and line of source, why no test can run all of it."""
    reasons, reason = {}, ""
    for row in pathlib.Path(__file__).with_name("coverage_left.txt").read_text().splitlines():
        if row.startswith("# "):
            reason = row[2:]
        elif row:
            reasons[row] = reason
    return reasons


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
    reasons = known_reasons()
    explained, unexplained = [], []
    for name in sorted(lines):
        text = pathlib.Path(name).read_text().splitlines()
        missing = collections.defaultdict(list)
        for number, count in lines[name].items():
            if count == 0:
                missing[number].append("line")
        for (number, _), count in branches[name].items():
            if count == 0 and lines[name].get(number, 0) > 0:
                missing[number].append("branch")
        for number in sorted(missing):
            source = text[number - 1].strip()
            reason = reasons.get(f"{name}: {source}")
            row = f"{name}:{number}: {' '.join(missing[number])}: {source}"
            (explained if reason else unexplained).append(row + f"  ({reason})" * bool(reason))
    (build / "not_run.txt").write_text("\n".join(unexplained + explained) + "\n")
    print(f"{len(unexplained)} places in {build}/not_run.txt, and {len(explained)} with a reason")


main()
