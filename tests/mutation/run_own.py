"""Puts the changes of schemata.py through our own tests, one after the other.

run_own.py SOURCES RESULTS TEST_PROGRAM...

SOURCES has mutants.json, RESULTS is as run.py has it, with nothing of the suite. A program that does not come by a change is
not run on it; the first that sees it is the last one for it. One that takes five times as long as without a change sees it.
"""

import json
import pathlib
import sys
import time

from run import passes, what_failed


def test(program, environment, folder, time_limit):
    return passes([program, "--gtest_fail_fast", "--gtest_brief=1"], environment, time_limit, folder)


def seen_by(program, results):
    path = results / f"{pathlib.Path(program).name}.seen"
    if not path.exists():
        unfinished = path.with_suffix(".part")
        start = time.time()
        if not test(program, {"AXM_MUTANTS_SEEN": str(unfinished.resolve())}, results, 1800):
            print(f"{path.stem} fails without a change: {what_failed(results)}", flush=True)
        if not unfinished.exists():
            unfinished.write_bytes(bytes(1 << 16))
        path.with_suffix(".seconds").write_text(f"{time.time() - start:.1f}")
        unfinished.rename(path)
    return path.read_bytes(), max(20.0, 5 * float(path.with_suffix(".seconds").read_text()))


def main():
    sources, results, *programs = sys.argv[1:]
    results = pathlib.Path(results)
    results.mkdir(parents=True, exist_ok=True)
    mutants = json.loads((pathlib.Path(sources) / "mutants.json").read_text())
    seen = {program: seen_by(program, results) for program in programs}
    path = results / "results.txt"
    known = {json.loads(line)["number"] for line in path.read_text().splitlines()} if path.exists() else set()
    for mutant in mutants:
        number = mutant["number"]
        if mutant["is_refused"] or number in known:
            continue
        row = {key: mutant[key] for key in ("number", "file", "line", "before", "after")}
        row |= {"suite": "", "tests": "", "reached_by_tests": False}
        for program in programs:
            reached, time_limit = seen[program]
            if not reached[number]:
                continue
            row["reached_by_tests"] = True
            if not test(program, {"AXM_MUTANT": str(number)}, results, time_limit):
                row["tests"] = f"{pathlib.Path(program).name}: {what_failed(results) or 'ends'}"
                break
        with path.open("a") as out:
            out.write(json.dumps(row) + "\n")


main()
