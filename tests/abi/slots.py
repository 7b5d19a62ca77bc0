"""Compares the tables of virtual operations that a compiler of the Microsoft family would lay out with slots.txt.

slots.py CLANG MINGW_COMPILER LIST HEADER...

No such compiler is needed: clang lays classes out as they do over the headers of MinGW. HEADER... are all public headers;
a class that has virtual operations and no table in the list is an error too.
"""

import pathlib
import re
import subprocess
import sys
import tempfile

TABLE = re.compile(r"^VFTable for (.*) \(\d+ entr(?:y|ies)\)\.$")
ENTRY = re.compile(r"^ +\d+ \| (.*)$")
OPERATION = re.compile(r"^(?P<result>.*?)(?<!\S)\w+::(?P<name>operator\(\)|operator[^\s(]+|~?\w+)\((?P<arguments>.*)\)(?P<tail>.*)$")


def type_name(text):
    """The type as the house writes it: `apString const&` where clang has `const apString &`."""
    text = re.sub(r"\bconst ([\w:]+)", r"\1 const", text.strip())
    return re.sub(r"\s+([&*])", r"\1", text)


def operation(text):
    found = OPERATION.match(text)
    if found is None:
        sys.exit(f"an entry that is not understood: {text}")
    pure = " = 0" if "[pure]" in found["tail"] else ""
    if found["name"].startswith("~"):
        return "~" + pure
    arguments = ", ".join(type_name(argument) for argument in found["arguments"].split(", "))
    const = " const" if found["tail"].startswith(" const") else ""
    return f"{type_name(found['result'])} {found['name']}({arguments}){const}{pure}"


def expected_tables(path):
    tables = {}
    for number, line in enumerate(path.read_text().splitlines(), 1):
        line = line.strip()
        if line == "" or line.startswith("#"):
            continue
        if line.startswith("table "):
            title, _, same = line.removeprefix("table ").partition(" as ")
            current = tables[title] = list(tables[same]) if same else []
            continue
        slot, _, entry = line.partition(" ")
        if int(slot) != len(current):
            sys.exit(f"{path}:{number}: slot {slot} where {len(current)} comes next")
        current.append(entry)
    return tables


def actual_tables(dump):
    tables = {}
    current = None
    for line in dump.splitlines():
        title = TABLE.match(line)
        if title:
            current = tables[title[1].replace("'", "")] = []
        elif current is not None and line == "":
            current = None
        elif current is not None and (entry := ENTRY.match(line)) and not entry[1].endswith(" RTTI"):
            current.append(operation(entry[1]))
    return tables


def microsoft_dump(clang, mingw_compiler, headers, classes):
    listing = subprocess.run([mingw_compiler, "-xc++", "-E", "-v", "/dev/null"], capture_output=True, text=True, check=True)
    system = re.search(r"search starts here:\n(.*)\nEnd of search list", listing.stderr, re.S)[1].split("\n")[1:]
    with tempfile.TemporaryDirectory() as folder:
        probe = pathlib.Path(folder) / "probe.cpp"
        # A table is laid out when something needs it.
        probe.write_text("".join(f"#include <{name}.h>\n" for name in classes) +
                         "template <class T> void probe(T* object) { delete object; }\n" +
                         "".join(f"template void probe({name}*);\n" for name in classes))
        command = [clang, "-std=c++17", "--target=x86_64-pc-windows-msvc", "-fno-ms-compatibility", "-fno-ms-extensions",
                   "-fdeclspec", "-D__declspec=__declspec", "-D__MINGW32__", "-D__MINGW64__", "-D_MSC_VER=1930",
                   "-nostdinc++", "-nostdlibinc"]
        for path in system:
            command += ["-isystem", path.strip()]
        for path in sorted({str(header.parent) for header in headers}):
            command += ["-I", path]
        command += ["-Xclang", "-fdump-vtable-layouts", "-Xclang", "-fdump-record-layouts", "-Xclang", "-emit-llvm-only",
                    "-c", str(probe), "-o", "/dev/null"]
        run = subprocess.run(command, capture_output=True, text=True)
        if run.returncode != 0:
            sys.exit(run.stderr)
        return run.stdout


def main():
    clang, mingw_compiler, list_path = sys.argv[1:4]
    headers = [pathlib.Path(argument) for argument in sys.argv[4:]]
    expected = expected_tables(pathlib.Path(list_path))
    classes = sorted({title.split(" in ")[-1] for title in expected})
    failures = []

    for header in headers:
        if re.search(r"^ .*\b(virtual\b.*\(|override\b)", header.read_text(), re.M) and header.stem not in classes:
            failures.append(f"{header.stem} has virtual operations and no table in the list")

    dump = microsoft_dump(clang, mingw_compiler, headers, classes)
    # A class in the middle that overrides more than the destructor gets a hidden field, and every engine breaks.
    failures += [f"a hidden field: {line.strip()}" for line in dump.splitlines() if "vtordisp" in line]
    actual = actual_tables(dump)
    for title in expected.keys() | {title for title in actual if title.split(" in ")[-1] in classes}:
        if title not in actual or title not in expected:
            failures.append(f"table {title} is only {'listed' if title in expected else 'laid out'}")
            continue
        if expected[title] == actual[title]:
            continue
        for slot in range(max(len(expected[title]), len(actual[title]))):
            pair = [entries[slot] if slot < len(entries) else "nothing" for entries in (expected[title], actual[title])]
            if pair[0] != pair[1]:
                failures.append(f"table {title}, slot {slot}: {pair[1]}\n  promised: {pair[0]}")

    for failure in sorted(failures):
        print(failure)
    print(f"{len(expected)} tables, {sum(map(len, expected.values()))} slots, {len(failures)} differences")
    sys.exit(1 if failures else 0)


main()
