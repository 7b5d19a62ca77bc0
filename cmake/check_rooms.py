#!/usr/bin/env python3
"""Checks how the rooms of the house include each other.

check_rooms.py            exit code 1, with each fault, where a room includes what stands above it, rooms include each other
                          in a circle, or a header of the own library is not in quotes or another one's not in angles
check_rooms.py --graph    prints which room includes which, from the lowest room up

The tables below are the plan of the house; a folder that is missing in them is a fault, too.
"""

import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent

# The libraries with the rooms of each, from the lowest up. A room may include those of its own library that it names here,
# and everything of the libraries that its own one names.
LIBRARIES = {
    "containers": [],
    "utilities": ["containers"],
    "platform": ["utilities", "containers"],
    "source": ["platform", "utilities", "containers"],
    "service": ["source", "platform", "utilities", "containers"],
    "command": ["service", "source", "platform", "utilities", "containers"],
}

ROOMS = {
    "containers": [],
    "utilities": [],
    "platform": [],
    "source": [],
    "source/document": ["source"],
    "source/factory": ["source", "source/document"],
    "source/reader": ["source"],
    "source/comfort": ["source", "source/document", "source/factory", "source/reader"],
    "source/utest": ["source", "source/document", "source/factory"],
    "service/text": [],
    "service/parser": ["service/text"],
    "service/schema": ["service/text", "service/parser"],
    "service/validation": ["service/text", "service/parser", "service/schema"],
    "service/tree": ["service/text"],
    "service/xpath": ["service/text", "service/tree"],
    "service/writing": ["service/text", "service/tree"],
    "service/dom": ["service/text", "service/tree", "service/xpath", "service/writing"],
    "service/reader": ["service/text", "service/parser", "service/validation"],
    "service/tools": ["service/text", "service/parser"],
    "service/engine": [
        "service/text", "service/parser", "service/schema", "service/validation", "service/tree", "service/xpath",
        "service/writing", "service/dom", "service/reader"],
    "service/editing": [
        "service/text", "service/parser", "service/tree", "service/xpath", "service/dom", "service/engine"],
    "command": [],
}

# Files that stand beside the rooms of their library: marks for export, and what registers the engine.
ROOM_OF_FILE = {
    "source/axmExport.h": "source",
    "service/axsExport.h": "service/text",
    "service/axsRegister.h": "service/engine",
    "service/axsRegister.cpp": "service/engine",
}

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')


def library_of(path):
    return path.split("/")[0]


def room_of(path):
    if path in ROOM_OF_FILE:
        return ROOM_OF_FILE[path]
    folder = path.rpartition("/")[0]
    while folder and folder not in ROOMS:
        folder = folder.rpartition("/")[0]
    return folder or None


def read_sources(root):
    """The lines of each source file of the libraries and the command, by path."""
    sources = {}
    for library in LIBRARIES:
        for path in sorted((root / library).rglob("*")):
            if path.name.endswith((".h", ".h.in", ".cpp")):
                sources[path.relative_to(root).as_posix()] = path.read_text(encoding="utf-8").splitlines()
    return sources


def find_circle(graph):
    """A list of rooms of which each includes the next, and the last the first; empty if there is none."""
    done = set()
    for start in sorted(graph):
        way = []
        waiting = [(start, iter(sorted(graph[start])))]
        while waiting:
            room, following = waiting[-1]
            if len(way) < len(waiting):
                way.append(room)
            for found in following:
                if found in way:
                    return way[way.index(found):] + [found]
                if found not in done:
                    waiting.append((found, iter(sorted(graph.get(found, ())))))
                    break
            else:
                done.add(room)
                waiting.pop()
                way.pop()
    return []


class Check:
    def __init__(self, root):
        self.sources = read_sources(root)
        self.headers = {}
        for path in self.sources:
            if not path.endswith(".cpp"):
                header = path.removesuffix(".in")
                self.headers.setdefault(header.rpartition("/")[2], []).append(header)
        self.faults = []
        self.graph = {}
        for path, lines in self.sources.items():
            self.check_file(path, lines)
        circle = find_circle(self.graph)
        if circle:
            self.faults.append("rooms include each other in a circle: " + " -> ".join(circle))

    def check_file(self, path, lines):
        room = room_of(path)
        if room is None:
            self.faults.append(f"{path}: its folder is no room of the house")
            return
        self.graph.setdefault(room, set())
        for number, line in enumerate(lines, 1):
            place = f"{path}:{number}"
            included = INCLUDE.match(line)
            if included:
                self.check_include(place, path, room, included.group(1), included.group(2))

    def check_include(self, place, path, room, mark, name):
        target = self.find_header(path, name)
        if target is None:
            if mark == '"':
                self.faults.append(f"{place}: there is no header {name} in the house, so it stands in angles")
            return
        is_own = library_of(path) == library_of(target)
        if is_own != (mark == '"'):
            self.faults.append(f"{place}: {name} stands in {'quotes' if is_own else 'angles'}, as a header of "
                               f"{'the own' if is_own else 'another'} library")
        included = room_of(target)
        if included == room:
            return
        self.graph[room].add(included)
        allowed = included in ROOMS[room] if is_own else library_of(target) in LIBRARIES[library_of(path)]
        if not allowed:
            self.faults.append(f"{place}: {room}/ may not include {name} of {included}/")

    def find_header(self, path, name):
        known = self.headers.get(name.rpartition("/")[2], [])
        beside = path.rpartition("/")[0] + "/" + name
        if beside in known:
            return beside
        return known[0] if known else None


def main(arguments):
    root = ROOT
    if len(arguments) > 1 and arguments[0] == "--root":
        root = pathlib.Path(arguments[1])
        arguments = arguments[2:]
    if arguments not in ([], ["--graph"]):
        print(__doc__, file=sys.stderr)
        return 2
    check = Check(root)
    if arguments:
        for room in ROOMS:
            if room in check.graph:
                print(f"{room}: {', '.join(sorted(check.graph[room])) or '-'}")
        return 0
    for fault in check.faults:
        print(fault)
    if check.faults:
        return 1
    print(f"{len(check.sources)} files in {len(check.graph)} rooms include only what stands below them")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
