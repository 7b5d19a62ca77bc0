"""Checks that a shared library exports the public interface and nothing else.

exports.py [--renew] OBJDUMP LIBRARY MAJOR LIST HEADER...

Four rules hold. Every exported symbol belongs to a class, or is a function, of a public HEADER (those of the library and
of what it stands on). The set of them is the reviewed one in LIST, which is the same for ELF and DLL but for lines that
begin with "elf " or "dll ". The name under which the system looks for the library bears the MAJOR version. And an ELF
library has its symbols bound when it is loaded, so that the table of them is read-only from then on. With --renew the
list is made to hold what this library exports.
"""

import pathlib
import re
import subprocess
import sys

OBJECT = re.compile(r"^(?:vtable|VTT|typeinfo|construction vtable|virtual thunk|non-virtual thunk|guard variable) (?:for|to) ")

DF_BIND_NOW = 8


def printed(tool, option, library):
    return subprocess.run([tool, option, library], capture_output=True, text=True, check=True).stdout


def kind_of(library):
    return "dll" if library.suffix == ".dll" else "elf"


def name_within(tool, library):
    """What the system looks for when it starts a program that was linked to the library."""
    found = re.search(r"^(?:  SONAME +|Name\s+[0-9a-f]+ )(\S+)$", printed(tool, "-p", library), re.M)
    return found[1] if found else "nothing"


def is_bound_when_loaded(tool, library):
    flags = re.search(r"^  FLAGS +(0x[0-9a-f]+)$", printed(tool, "-p", library), re.M)
    return flags is not None and int(flags[1], 16) & DF_BIND_NOW != 0


def expected_name(list_path, kind, major):
    return f"lib{list_path.stem}-{major}.dll" if kind == "dll" else f"lib{list_path.stem}.so.{major}"


def exported(tool, library):
    if kind_of(library) == "dll":
        names = re.findall(r"^\s*\[ *\d+\] (\S+)$", printed(tool, "-p", library), re.M)
    else:
        names = re.findall(r"^[0-9a-f]+ .{7} (?!\*UND\*)\S+\t.* (\S+)$", printed(tool, "-T", library), re.M)
    readable = subprocess.run(["c++filt"], input="\n".join(names), capture_output=True, text=True, check=True).stdout
    return {normal(line) for line in readable.splitlines() if not line.startswith("typeinfo name for ")}


def normal(line):
    """One spelling for what the two systems name differently."""
    return line.replace("unsigned long long", "unsigned long").replace("_iobuf*", "FILE*").replace("_IO_FILE*", "FILE*")


def owner(symbol):
    """The class that a symbol belongs to, or the free function that it is."""
    if OBJECT.match(symbol):
        return re.match(r"\w+", OBJECT.sub("", symbol))[0]
    name = symbol.partition("(")[0]
    if name.startswith("operator"):
        return name
    name = name.partition("::operator")[0]
    while "<" in name:
        name = re.sub(r"<[^<>]*>", "", name)
    # A template's symbol begins with the type of its result.
    return name.split(" ")[-1].partition("::")[0]


def foreign(symbols, headers):
    """Symbols that no public header has."""
    stems = {header.stem for header in headers}
    text = "\n".join(header.read_text() for header in headers)
    functions = set(re.findall(r"^(?:[A-Z]+_API) .*?(operator\S+?|\w+)\(", text, re.M))
    return sorted(symbol for symbol in symbols if owner(symbol) not in stems | functions)


def read_list(path):
    symbols = {"elf": set(), "dll": set()}
    for line in path.read_text().splitlines() if path.exists() else []:
        kind, _, symbol = line.partition(" ")
        if kind in symbols:
            symbols[kind].add(symbol)
        elif line:
            for either in symbols.values():
                either.add(line)
    return symbols


def write_list(path, symbols):
    lines = [("" if symbol in symbols["elf"] & symbols["dll"] else "elf " if symbol in symbols["elf"] else "dll ") + symbol
             for symbol in sorted(symbols["elf"] | symbols["dll"])]
    path.write_text("\n".join(lines) + "\n")


def main():
    renew = sys.argv[1] == "--renew"
    tool, library, major, list_path, *headers = sys.argv[2 if renew else 1:]
    library, list_path = pathlib.Path(library), pathlib.Path(list_path)
    kind = kind_of(library)
    actual = exported(tool, library)
    failures = [f"of no public header: {symbol}" for symbol in foreign(actual, [pathlib.Path(path) for path in headers])]

    listed = read_list(list_path)
    if renew:
        listed[kind] = actual
        write_list(list_path, listed)
    elif list_path.exists():
        failures += [f"lost: {symbol}" for symbol in sorted(listed[kind] - actual)]
        failures += [f"not in the list: {symbol}" for symbol in sorted(actual - listed[kind])]

    name, expected = name_within(tool, library), expected_name(list_path, kind, major)
    if name != expected:
        failures.append(f"programs would look for {name}, not {expected}")
    if kind == "elf" and not is_bound_when_loaded(tool, library):
        failures.append("its symbols are bound one by one, as they are called")

    print(*failures, f"{library.name}: {len(actual)} symbols exported, {len(failures)} faults", sep="\n")
    sys.exit(1 if failures or not actual else 0)


main()
