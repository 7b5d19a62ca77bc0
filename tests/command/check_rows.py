#!/usr/bin/env python3
"""Holds the rows of `axm table` against Python's own parser, and the rows of all parts of `axm split` against the whole.

    check_rows.py AXM [--sets N] [--seed N] FILE_OR_FOLDER...

Of each document (of a folder: *.xml, *.xsd), N sets of a path and columns are chosen by chance, the same ones for one seed:
attributes, texts of the record, of children and of their children, what is there, and what is not; names as they are
written or, with --ns, by their namespaces; each way of --repeat. What xml.etree cannot read, axm has to refuse, too.
"""

import json
import os
import random
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree
from xml.parsers import expat


class Document:
    """What xml.etree reads of a file, with the names as they are written, which expat tells by itself."""

    def __init__(self, file):
        self.file = file
        self.root = ElementTree.parse(file).getroot()
        self.written = {}
        self.written_attributes = {}
        self.parents = {child: parent for parent in self.root.iter() for child in parent}
        elements = self.root.iter()

        def start(name, attributes):
            element = next(elements)
            self.written[element] = name
            self.written_attributes[element] = attributes

        parser = expat.ParserCreate()
        parser.StartElementHandler = start
        with open(file, "rb") as stream:
            parser.ParseFile(stream)
        self.elements = list(self.root.iter())


class Names:
    """How names are given to axm: as they are written or, where they are in a namespace, with prefixes of ours."""

    def __init__(self, document, by_namespace):
        self.document = document
        self.by_namespace = by_namespace
        self.given = {}

    def of_element(self, element):
        return self.name(element.tag) or self.document.written[element]

    def name(self, tag):
        if not self.by_namespace or not tag.startswith("{"):
            return None
        uri, local = tag[1:].split("}")
        self.given.setdefault(uri, "axm" + str(len(self.given)))
        return self.given[uri] + ":" + local

    def tag(self, name):
        prefix, colon, local = name.partition(":")
        for uri, given in self.given.items():
            if colon and prefix == given:
                return "{" + uri + "}" + local
        return None

    def children(self, elements, name):
        tag = self.tag(name)
        for element in elements:
            for child in element:
                if child.tag == tag if tag else self.document.written[child] == name:
                    yield child

    def attribute(self, element, name):
        tag = self.tag(name)
        return element.get(tag) if tag else self.document.written_attributes[element].get(name)

    def options(self):
        return [argument for uri, prefix in self.given.items() for argument in ("--ns", prefix + "=" + uri)]


def text_of(element):
    return (element.text or "") + "".join(child.tail or "" for child in element)


class Column:
    """Steps from the record: names of elements and, at the end, of an attribute or none, for the text."""

    def __init__(self, names, steps, attribute):
        self.names = names
        self.steps = steps
        self.attribute = attribute

    def __str__(self):
        return "/".join(self.steps + (["@" + self.attribute] if self.attribute is not None else [])) or "."

    def values(self, element, steps):
        found = [element]
        for step in steps:
            found = list(self.names.children(found, step))
        if self.attribute is None:
            return [text_of(one) for one in found]
        values = [self.names.attribute(one, self.attribute) for one in found]
        return [value for value in values if value is not None]

    def value(self, record, join):
        values = self.values(record, self.steps)
        return (values[0] if join is None else join.join(values)) if values else None


def rows_of(records, columns, repeat):
    for record in records:
        if repeat == "rows":
            yield from rows_of_children(record, columns)
        else:
            yield [column.value(record, repeat[5:] if repeat.startswith("join=") else None) for column in columns]


def layout(element, columns, depth):
    """How many rows an element has whose columns lie `depth` steps down, and its values with the rows in which they stand:
    the first, and the one after the last; None for the last of whatever it lies in."""
    values = [(column, 0, None, column.values(element, [])) for column in columns if len(column.steps) == depth]
    groups = {}
    for column in columns:
        if len(column.steps) > depth:
            groups.setdefault(column.steps[depth], []).append(column)
    height = 1
    for name, inside in groups.items():
        children = list(columns[0].names.children([element], name))
        top = 0
        for child in children:
            rows, found = layout(child, inside, depth + 1)
            if len(children) > 1:
                found = [(column, top + begin, top + (rows if end is None else end), value) for column, begin, end, value in found]
            values += found
            top += rows
        height = max(height, top)
    return height, values


def rows_of_children(record, columns):
    height, found = layout(record, columns, 0)
    rows = [{} for _ in range(height)]
    for column, begin, end, values in found:
        for row in rows[begin:end]:
            row[column] = values[0] if values else None
    return [[row.get(column) for column in columns] for row in rows]


def choose_attribute(chance, names, element):
    tags = list(element.keys())
    if not tags:
        return "absent"
    tag = chance.choice(tags)
    written = [name for name in names.document.written_attributes[element] if not name.startswith("xmlns")]
    return names.name(tag) or written[tags.index(tag)]


def choose_columns(chance, names, records):
    columns = {}
    for _ in range(chance.randint(1, 6)):
        at = chance.choice(records)
        steps = []
        for _ in range(chance.choice([0, 0, 1, 1, 2])):
            if len(at) > 0:
                at = chance.choice(at)
                steps.append(names.of_element(at))
        attribute = choose_attribute(chance, names, at) if chance.random() < 0.6 else None
        if chance.random() < 0.1:
            steps.append("absent")
        column = Column(names, steps, attribute)
        columns[str(column)] = column
    return list(columns.values())


def choose_path(chance, names):
    document = names.document
    element = chance.choice(document.elements)
    path = [names.of_element(element)]
    while element in document.parents:
        element = document.parents[element]
        path.insert(0, names.of_element(element))
    found = [document.root]
    for name in path[1:]:
        found = list(names.children(found, name))
    return path, found


def run(arguments):
    return subprocess.run(arguments, stdout=subprocess.PIPE, stderr=subprocess.PIPE, check=False)


def rows_given(output):
    return [list(json.loads(line).values()) for line in output.decode().splitlines()]


class Check:
    def __init__(self, axm, sets, seed):
        self.axm = axm
        self.sets = sets
        self.seed = seed
        self.checked = 0
        self.rows = 0
        self.wrong = []

    def file(self, file):
        try:
            document = Document(file)
        except ElementTree.ParseError as error:
            result = run([self.axm, "table", file, "*", "."])
            if result.returncode != 1:
                self.wrong.append(f"{file}: is taken; xml.etree says: {error}")
            self.checked += 1
            return
        chance = random.Random(f"{self.seed} {os.path.basename(file)}")
        for number in range(self.sets):
            self.set(Names(document, number % 2 == 1), ["first", "join=|", "rows", "first"][number % 4], chance)

    def set(self, names, repeat, chance):
        path, records = choose_path(chance, names)
        columns = choose_columns(chance, names, records)
        file = names.document.file
        arguments = [self.axm, "table", file, "/".join(path)] + [str(column) for column in columns]
        arguments += names.options() + ["--repeat", repeat, "--format", "jsonl"]
        self.compare(arguments, list(rows_of(records, columns, repeat)), run(arguments))
        self.parts(file, "/".join(path), names, arguments)

    def compare(self, arguments, expected, result):
        self.checked += 1
        self.rows += len(expected)
        shown = " ".join(arguments[1:])
        if result.returncode != 0:
            self.wrong.append(f"{shown}\n  {result.stderr.decode(errors='replace')}")
            return
        given = rows_given(result.stdout)
        if len(given) != len(expected):
            self.wrong.append(f"{shown}\n  {len(given)} rows in place of {len(expected)}")
        for number, (left, right) in enumerate(zip(given, expected)):
            if left != right:
                self.wrong.append(f"{shown}\n  row {number}: {left}\n  in place of {right}")
                break

    def parts(self, file, path, names, arguments):
        with tempfile.TemporaryDirectory() as folder:
            index = os.path.join(folder, "index.json")
            split = run([self.axm, "split", file, path, "--parts", "3", "--output", index] + names.options())
            if split.returncode != 0:
                if b"only a document in UTF-8 can be split" not in split.stderr:
                    self.wrong.append(f"split {file} {path}\n  {split.stderr.decode(errors='replace')}")
                return
            with open(index, encoding="utf-8") as stream:
                count = len(json.load(stream)["parts"])
            parts = [run(arguments + ["--index", index, "--part", str(number)]) for number in range(count)]
        if b"".join(part.stdout for part in parts) != run(arguments).stdout:
            self.wrong.append(f"{' '.join(arguments[1:])}\n  the rows of the {count} parts are others than the whole's")


def documents_in(names):
    for name in names:
        if not os.path.isdir(name):
            yield name
            continue
        for entry in sorted(os.listdir(name)):
            if entry.endswith((".xml", ".xsd")):
                yield os.path.join(name, entry)


def main():
    arguments = sys.argv[1:]
    options = {"--sets": 4, "--seed": 1}
    names = []
    while arguments:
        argument = arguments.pop(0)
        if argument in options and arguments:
            options[argument] = int(arguments.pop(0))
        else:
            names.append(argument)
    if len(names) < 2:
        sys.exit(__doc__)
    check = Check(names[0], options["--sets"], options["--seed"])
    for file in documents_in(names[1:]):
        check.file(file)
    for wrong in check.wrong:
        print(wrong)
    print(f"{check.checked} sets of columns, {check.rows} rows, {len(check.wrong)} wrong")
    sys.exit(1 if check.wrong or check.checked == 0 else 0)


if __name__ == "__main__":
    main()
