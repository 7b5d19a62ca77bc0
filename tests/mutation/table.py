"""Writes the table of a run of run.py.

table.py RESULTS OUT_OF_SIGHT

OUT_OF_SIGHT has a line for each change that the suite cannot see by its nature, and for each that nobody can:

  REASON | FILE | the line as it was => as it is

A reason is one word: words (messages and places in them), speed (time and memory), inside (classes and files that the
contract does not know), freedom (what it leaves open), equivalent (nothing changes that anybody could see).
"""

import json
import pathlib
import sys


def main():
    rows = {}
    for line in (pathlib.Path(sys.argv[1]) / "results.txt").read_text().splitlines():
        row = json.loads(line)
        rows[row["number"]] = row
    reasons = {}
    for line in pathlib.Path(sys.argv[2]).read_text().splitlines():
        if line and not line.startswith("#"):
            reason, change = line.split(" | ", 1)
            reasons[change] = reason
    order = {"nobody": 0, "tests": 1, "suite": 2}
    table = []
    for row in rows.values():
        seen = "suite" if row["suite"] else "tests" if row["tests"] else "nobody"
        change = f"{row['before']} => {row['after']}"
        reason = "" if row["suite"] else reasons.get(f"{row['file']} | {change}", "")
        table.append((order[seen], seen, f"{row['file']}:{row['line']}", change, row["suite"] or row["tests"] or "", reason))
    for _, seen, place, change, what, reason in sorted(table):
        print(" | ".join([f"{seen} ({reason})" if reason else seen, place, change, what]))
    suite = sum(seen == "suite" for _, seen, *_ in table)
    tests = [reason for _, seen, *_, reason in table if seen == "tests"]
    nobody = [reason for _, seen, *_, reason in table if seen == "nobody"]
    in_sight = suite + sum(not reason for reason in tests)
    print()
    print(f"{len(table)} changes; {suite} are seen by the suite, {len(tests)} by our own tests alone, {len(nobody)} by nobody")
    print(f"of {len(tests)} that our own tests alone see, {sum(bool(reason) for reason in tests)} are out of the suite's sight")
    print(f"of {in_sight} in its sight the suite sees {suite}: {100 * suite / max(1, in_sight):.1f} %")
    print(f"of {len(nobody)} that nobody sees, {sum(bool(reason) for reason in nobody)} are explained")


main()
