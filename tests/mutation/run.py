"""Puts the changes of schemata.py through the conformance suite and through our own tests, one after the other.

run.py SERVICE RESULTS AXM LIBRARY_FOLDER TEST_PROGRAM...

SERVICE has mutants.json; LIBRARY_FOLDER the changed libaxs, which AXM, a program `axm` of the unchanged sources, is given in
the place of its own; the test programs are those of the changed build. RESULTS is a folder: results.txt gets a line of JSON for
each change; those that have one are not run again, so that a run can be taken up.

What a class of checks or a test program does not come by cannot be seen by it and is not run: that is found out first. The
suite runs with few rounds, then with all of them; our own tests only where the suite sees nothing. FRESH in the environment
names classes of checks, with commas between them, that are run again for the changes that the suite did not see before;
COUNT is how many changes are looked at, all by default.
"""

import json
import os
import pathlib
import resource
import subprocess
import sys
import time

CLASSES = [
    "axmDocumentFactoryUtest", "axmNodeUtest", "axmElementUtest", "axmDocumentUtest", "axmNodeListUtest", "axmNamedNodeMapUtest",
    "axmTextNodeUtest", "axmCommentNodeUtest", "axmValidationUtest", "axmContractUtest", "axmTypedUtest", "axmLoadUtest",
    "axmXPathUtest", "axmXmlUtest", "axmSchemaUtest", "axmSearchUtest", "axmModelUtest",
]
WITH_ROUNDS = {"axmModelUtest", "axmSearchUtest", "axmTypedUtest"}


def limited():
    resource.setrlimit(resource.RLIMIT_AS, (4 << 30, 4 << 30))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


def passes(command, environment, time_limit, folder):
    process = subprocess.Popen(
        command, env={**os.environ, **environment}, cwd=folder, preexec_fn=limited, stdin=subprocess.DEVNULL,
        stdout=open(folder / "output.log", "w"), stderr=subprocess.STDOUT, start_new_session=True)
    try:
        return process.wait(time_limit) == 0
    except subprocess.TimeoutExpired:
        os.killpg(process.pid, 9)
        process.wait()
        return False


def what_failed(folder):
    lines = (folder / "output.log").read_text(errors="replace").splitlines()
    shown = [line for line in lines if line.startswith("FAILED") or "[  FAILED  ]" in line]
    return shown[0][:160] if shown else ""


class Runs:
    def __init__(self, service, results, axm, libraries, programs):
        self.results = results
        self.axm = axm
        self.libraries = libraries
        self.programs = programs
        results.mkdir(parents=True, exist_ok=True)
        self.mutants = [mutant for mutant in json.loads((service / "mutants.json").read_text()) if not mutant["is_refused"]]

    def conform(self, classes, environment, rounds=None, time_limit=600):
        command = [self.axm, "conform", "--fail-fast", "--time-limit", "90", *classes]
        if rounds is not None:
            command += ["--rounds", str(rounds)]
        return passes(command, {"LD_LIBRARY_PATH": self.libraries, **environment}, time_limit, self.results)

    def test(self, program, environment, time_limit):
        # What bounds sizes takes long, and sees little else.
        chosen = "--gtest_filter=-*bounds*:*imits*:*Growth*:*any_*:*hreads*:*million*:*rounds_of*:*in_names*:*large_numbers*"
        return passes([program, "--gtest_fail_fast", "--gtest_brief=1", chosen], environment, time_limit, self.results)

    def seen_by(self, name, run):
        """The changes that a run comes by; a run without any change must pass."""
        path = self.results / f"{name}.seen"
        if not path.exists():
            start = time.time()
            unfinished = path.with_suffix(".part")
            if not run({"AXM_MUTANTS_SEEN": str(unfinished)}):
                # Whatever came of the changes then would be worth nothing.
                sys.exit(f"{name} fails without a change: {what_failed(self.results)}")
            print(f"{name}: {time.time() - start:.1f} s", flush=True)
            if not unfinished.exists():
                unfinished.write_bytes(bytes(1 << 16))
            unfinished.rename(path)
        return path.read_bytes()

    def suite_sees(self, number, classes):
        """In words, nothing if it does not."""
        if not classes:
            return ""
        environment = {"AXM_MUTANT": str(number)}
        if not self.conform(classes, environment, rounds=20):
            return what_failed(self.results) or "ends"
        drawn = [name for name in classes if name in WITH_ROUNDS]
        if drawn and not self.conform(drawn, environment):
            return what_failed(self.results) or "ends"
        return ""

    def tests_see(self, number, programs):
        for program in programs:
            if not self.test(program, {"AXM_MUTANT": str(number)}, 900):
                return f"{pathlib.Path(program).name}: {what_failed(self.results) or 'ends'}"
        return ""

    def run(self):
        """First the suite on all changes, then our own tests on those that it does not see."""
        path = self.results / "results.txt"
        known = {}
        if path.exists():
            for line in path.read_text().splitlines():
                row = json.loads(line)
                known[row["number"]] = row

        def keep(row):
            known[row["number"]] = row
            with path.open("a") as out:
                out.write(json.dumps(row) + "\n")

        by_class = {name: self.seen_by(name, lambda environment, name=name: self.conform([name], environment)) for name in CLASSES}
        fresh = [name for name in os.environ.get("FRESH", "").split(",") if name]
        for mutant in self.mutants[: int(os.environ.get("COUNT", len(self.mutants)))]:
            number = mutant["number"]
            row = known.get(number)
            if row is not None and (row["suite"] or not fresh):
                continue
            reaching = [name for name in CLASSES if by_class[name][number]]
            classes = [name for name in reaching if row is None or name in fresh]
            row = {**(row or {"tests": None}), **{key: mutant[key] for key in ("number", "file", "line", "before", "after")}}
            start = time.time()
            row["reached"] = bool(reaching)
            row["suite"] = self.suite_sees(number, classes)
            row["seconds"] = round(time.time() - start, 1)
            keep(row)
        by_program = {
            program: self.seen_by(pathlib.Path(program).name, lambda environment, program=program: self.test(program, environment, 1800))
            for program in self.programs}
        for row in list(known.values()):
            if row["suite"] or row["tests"] is not None:
                continue
            programs = [program for program in self.programs if by_program[program][row["number"]]]
            room = row["file"].split("/")[0]
            of_room = {"dom": "service", "writing": "service", "engine": "service"}.get(room, room)
            programs = [program for program in programs if pathlib.Path(program).name == of_room + "_test"]
            keep({**row, "tests": self.tests_see(row["number"], programs), "reached_by_tests": bool(programs)})


def main():
    service, results, axm, libraries, *programs = sys.argv[1:]
    Runs(pathlib.Path(service), pathlib.Path(results), axm, libraries, programs).run()


if __name__ == "__main__":
    main()
