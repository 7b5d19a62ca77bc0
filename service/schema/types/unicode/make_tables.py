#!/usr/bin/env python3
"""Makes axsUnicodeTables.cpp out of the Unicode data files: make_tables.py FOLDER > axsUnicodeTables.cpp

FOLDER has UnicodeData.txt and Blocks.txt, as /usr/share/unicode does where the Debian package unicode-data is installed.
"""
import re
import sys

CATEGORIES = ["Lu", "Ll", "Lt", "Lm", "Lo", "Mn", "Mc", "Me", "Nd", "Nl", "No", "Pc", "Pd", "Ps", "Pe", "Pi", "Pf", "Po",
              "Zs", "Zl", "Zp", "Sm", "Sc", "Sk", "So", "Cc", "Cf", "Co", "Cn", "Cs"]

# Names that blocks had when XML Schema was written (Unicode 3.1); that of the private use areas meant all of them.
OLDER_NAMES = [("Greek", 0x370, 0x3FF), ("CombiningMarksforSymbols", 0x20D0, 0x20FF), ("CyrillicSupplementary", 0x500, 0x52F),
               ("PrivateUse", 0xE000, 0xF8FF), ("PrivateUse", 0xF0000, 0xFFFFD), ("PrivateUse", 0x100000, 0x10FFFD)]


def read_categories(path):
    """Ranges (first, category) from 0 on, each up to the next."""
    category = ["Cn"] * 0x110000
    first = None
    for line in open(path, encoding="utf-8"):
        code, name, kind = line.split(";")[:3]
        code = int(code, 16)
        if name.endswith(", First>"):
            first = code
            continue
        for c in range(code if first is None else first, code + 1):
            category[c] = kind
        first = None
    ranges = []
    for c, kind in enumerate(category):
        if not ranges or ranges[-1][1] != kind:
            ranges.append((c, kind))
    return ranges


def read_blocks(path):
    blocks = list(OLDER_NAMES)
    version = ""
    for line in open(path, encoding="utf-8"):
        version = version or re.search(r"Blocks-([\d.]+)\.txt", line).group(1)
        found = re.match(r"([0-9A-F]+)\.\.([0-9A-F]+); (.*)", line)
        if found:
            blocks.append((re.sub(r"[ _]", "", found.group(3)), int(found.group(1), 16), int(found.group(2), 16)))
    return sorted(blocks), version


def wrap(items, width=118):
    line = "  "
    for item in items:
        if len(line) + len(item) + 1 > width:
            yield line.rstrip()
            line = "  "
        line += item + " "
    yield line.rstrip()


def main():
    folder = sys.argv[1]
    categories = read_categories(folder + "/UnicodeData.txt")
    blocks, version = read_blocks(folder + "/Blocks.txt")
    out = [
        "// Made by unicode/make_tables.py from the data files of Unicode " + version + "; not edited by hand.",
        "// clang-format off",
        '#include "axsUnicodeTables.h"',
        "",
        'char const axsUnicodeTables::version[] = "' + version + '";',
        "",
        "axsUnicodeTables::CategoryStart const axsUnicodeTables::categories[] = {",
        *wrap("{0x%X,%d}," % (c, CATEGORIES.index(kind)) for c, kind in categories),
        "};",
        "std::size_t const axsUnicodeTables::category_count = sizeof categories / sizeof *categories;",
        "",
        "axsUnicodeTables::Block const axsUnicodeTables::blocks[] = {",
        *('  {"%s", 0x%X, 0x%X},' % block for block in blocks),
        "};",
        "std::size_t const axsUnicodeTables::block_count = sizeof blocks / sizeof *blocks;",
    ]
    print("\n".join(out))


main()
