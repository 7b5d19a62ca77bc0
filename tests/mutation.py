"""Changes one line of a folder of C++ sources at random; see mutation.sh.

mutation.py FOLDER SEED NUMBER

The file as it was is kept beside it as FILE.original. Prints "FILE:LINE | before => after", nothing if the line that was
drawn offers no change.
"""

import pathlib
import random
import re
import shutil
import sys

# What is replaced by what: a pattern and its replacements, of which one is drawn.
CHANGES = [
    (r" == ", [" != "]),
    (r" != ", [" == "]),
    (r" < ", [" <= ", " > "]),
    (r" <= ", [" < "]),
    (r" > ", [" >= ", " < "]),
    (r" >= ", [" > "]),
    (r" && ", [" || "]),
    (r" \|\| ", [" && "]),
    (r" \+ 1\b", ["", " + 2"]),
    (r" - 1\b", [""]),
    (r"\btrue\b", ["false"]),
    (r"\bfalse\b", ["true"]),
    (r"\(!", ["("]),
    (r"\b0\b", ["1"]),
    (r"\b1\b", ["2", "0"]),
    (r" \+= ", [" -= "]),
    (r"\+\+", ["--"]),
    (r"\bcontinue;", ["break;"]),
    (r"\breturn nullptr;", ["break;"]),
    (r"^(\s+)(\w[\w.>()-]*\(.*\);)$", [r"\1;"]),
    (r"\bnext_sibling\b", ["first_child"]),
    (r"\bfirst\b", ["last"]),
]


def changed(line, dice):
    offers = [(pattern, found, texts) for pattern, texts in CHANGES for found in re.finditer(pattern, line)]
    if not offers or line.lstrip().startswith(("//", "#", "///")):
        return None
    pattern, found, texts = dice.choice(offers)
    return line[: found.start()] + found.expand(dice.choice(texts)) + line[found.end() :]


def main():
    folder = pathlib.Path(sys.argv[1])
    dice = random.Random(f"{sys.argv[2]} {sys.argv[3]}")
    places = [(path, number) for path in sorted(folder.rglob("*.cpp")) for number in range(len(path.read_text().splitlines()))]
    path, number = dice.choice(places)
    lines = path.read_text().splitlines()
    after = changed(lines[number], dice)
    if after is None:
        return
    before = lines[number]
    shutil.copy(path, f"{path}.original")
    lines[number] = after
    path.write_text("\n".join(lines) + "\n")
    print(f"{path.relative_to(folder)}:{number + 1} | {before.strip()} => {after.strip()}")


main()
