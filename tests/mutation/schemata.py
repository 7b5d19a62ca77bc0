"""One-line changes to sources, all compiled into their libraries, each behind a number.

schemata.py draw FOLDER COUNT SEED ROOM...   draws changes of the rooms and writes them into the sources of the folder FOLDER
schemata.py mend FOLDER BUILD_LOG            takes out what the compiler refused; prints how many changes that were

A room is a folder there, such as dom in service; where it has hardly any source file, as templates have, it is given as
its headers: containers/*.h.

A change becomes `(axm_mutant(7) ? (a <= b) : (a < b))`: an expression has its changed form where the change 7 is chosen, and
its own otherwise. The sources as they were are kept beside them as FILE.original, the changes in mutants.json there.
Changes that need a constant, such as those of template arguments, cannot be written so and are left out.
"""

import json
import pathlib
import random
import re
import shutil
import sys

# What is replaced by what: a pattern, its replacements, of which one is drawn, and how far what is exchanged reaches.
TOKEN, SUM, CONDITION, STATEMENT, ASSIGNMENT = range(5)
CHANGES = [
    (r" == ", [" != "], SUM),
    (r" != ", [" == "], SUM),
    (r" < ", [" <= ", " > "], SUM),
    (r" <= ", [" < "], SUM),
    (r" > ", [" >= ", " < "], SUM),
    (r" >= ", [" > "], SUM),
    (r" && ", [" || "], CONDITION),
    (r" \|\| ", [" && "], CONDITION),
    (r" \+ 1\b", ["", " + 2"], SUM),
    (r" - 1\b", [""], SUM),
    (r"\btrue\b", ["false"], TOKEN),
    (r"\bfalse\b", ["true"], TOKEN),
    (r"(?<=\()!(?!=)", [""], SUM),
    (r"\b0\b", ["1"], TOKEN),
    (r"\b1\b", ["2", "0"], TOKEN),
    (r" \+= ", [" -= "], ASSIGNMENT),
    (r"\+\+", ["--"], SUM),
    (r"\bcontinue;", ["break;"], STATEMENT),
    (r"\bbreak;", ["continue;"], STATEMENT),
    (r"^\s+\w[\w.>()-]*\(.*\);$", [";"], STATEMENT),
    (r"\bnext_sibling\b", ["first_child"], SUM),
    (r"\bfirst\b", ["last"], SUM),
]

OPEN, CLOSED = "([{", ")]}"


def masked(text):
    """The text with comments, literals and preprocessor lines as blanks."""
    pattern = r'//[^\n]*|/\*.*?\*/|R"\((?:.*?)\)"|L?"(?:\\.|[^"\\\n])*"|L?\'(?:\\.|[^\'\\\n])+\'|^[ \t]*#[^\n]*'
    return re.sub(pattern, lambda found: re.sub(r"[^\n]", " ", found[0]), text, flags=re.S | re.M)


def ends_expression(code, at, kind):
    """Whether an expression ends at the sign `at`, which is in no brackets within it."""
    here, two = code[at], code[at : at + 2]
    before = code[at - 1] if at > 0 else " "
    if here in ";,{}":
        return True
    # What is assigned may be a choice.
    if kind == ASSIGNMENT and (here in "?&|" or (here == ":" and before == " ")):
        return False
    if here == "?":
        return True
    if here == ":":
        return two != "::" and before != ":"
    if here == "=":
        return two != "==" and before not in "=!<>+-"
    return kind != CONDITION and (two in ("&&", "||") or before + here in ("&&", "||"))


def left_end(code, at, kind):
    while at > 0:
        previous = code[at - 1]
        if previous in OPEN or ends_expression(code, at - 1, kind):
            break
        if previous in CLOSED:
            end = at
            depth = 0
            while at > 0:
                at -= 1
                depth += (code[at] in CLOSED) - (code[at] in OPEN)
                if depth == 0:
                    break
            if re.search(r"\b(if|while|for|switch)\s*$", code[:at][-20:]):
                at = end
                break
            continue
        at -= 1
    return at + re.match(r"(\s|\b(return|else|do)\b)*", code[at:])[0].__len__()


def right_end(code, at, kind):
    depth = 0
    while at < len(code):
        if depth == 0 and (code[at] in CLOSED or ends_expression(code, at, kind)):
            break
        depth += (code[at] in OPEN) - (code[at] in CLOSED)
        at += 1
    return len(code[:at].rstrip())


def offers_of(code, line_start, line_end):
    for pattern, texts, kind in CHANGES:
        for found in re.finditer(pattern, code[line_start:line_end]):
            yield line_start + found.start(), line_start + found.end(), texts, kind


def region_of(code, start, end, kind):
    if kind == TOKEN:
        return start, end
    if kind == STATEMENT:
        return start + len(re.match(r"\s*", code[start:end])[0]), end
    return left_end(code, start, kind), right_end(code, end, kind)


def draw(service, count, seed, rooms):
    dice = random.Random(seed)
    paths = sorted(path for room in rooms for path in (service.glob(room) if "*" in room else (service / room).rglob("*.cpp")))
    texts = {path: path.read_text() for path in paths}
    codes = {path: masked(text) for path, text in texts.items()}
    places = []
    for path in paths:
        at = 0
        for line in codes[path].splitlines(keepends=True):
            places.append((path, at, at + len(line.rstrip("\n"))))
            at += len(line)
    mutants = {}
    for _ in range(100 * count):
        if len(mutants) == count:
            break
        path, line_start, line_end = dice.choice(places)
        code, text = codes[path], texts[path]
        offers = list(offers_of(code, line_start, line_end))
        if not offers:
            continue
        start, end, replacements, kind = dice.choice(offers)
        replacement = dice.choice(replacements)
        region_start, region_end = region_of(code, start, end, kind)
        if not region_start <= start < end <= region_end:
            region_start, region_end = min(region_start, start), max(region_end, end)
        if kind == STATEMENT:
            start = region_start
        key = (str(path), start, end, replacement)
        after = text[line_start:start] + replacement + text[end:line_end]
        mutants[key] = {
            "file": str(path.relative_to(service)),
            "line": text.count("\n", 0, line_start) + 1,
            "before": text[line_start:line_end].strip(),
            "after": after.strip(),
            "region": [region_start, region_end],
            "change": [start, end, replacement],
            "is_statement": kind == STATEMENT,
            "is_refused": False,
        }
    result = []
    for number, mutant in enumerate(mutants.values()):
        mutant["number"] = number
        result.append(mutant)
    return result


def changed_form(text, code, mutant):
    """The region in its changed form, in one line."""
    (first, last), (start, end, replacement) = mutant["region"], mutant["change"]
    shown = [text[at] if code[at] != " " or text[at] in "\"'" or not in_comment(text, code, at) else " " for at in range(first, last)]
    kept = "".join(shown)
    return (kept[: start - first] + replacement + kept[end - first :]).replace("\n", " ")


def in_comment(text, code, at):
    line_start = text.rfind("\n", 0, at) + 1
    comment = re.search(r"(?<!:)//", "".join(
        text[i] for i in range(line_start, at + 1)))
    return comment is not None and not code[line_start + comment.start() : at + 1].strip()


def written(text, code, mutants):
    """The text with the changes in it, and where each stands in it: lines first to last, columns of its own words."""
    pieces = []

    def put(start, end, inside):
        at = start
        while inside:
            region = inside[0]["region"]
            same = [mutant for mutant in inside if mutant["region"] == region]
            within = [mutant for mutant in inside if mutant["region"] != region and mutant["region"][1] <= region[1]]
            inside = [mutant for mutant in inside if mutant["region"][0] >= region[1] or mutant["region"][1] > region[1]]
            inside = [mutant for mutant in inside if mutant not in same and mutant not in within and mutant["region"][0] >= region[1]]
            pieces.append(text[at : region[0]])
            is_statement = same[0]["is_statement"]
            pieces.append("{ " if is_statement else "(")
            for mutant in same:
                pieces.append(("BEGIN", mutant["number"]))
                form = changed_form(text, code, mutant)
                number = mutant["number"]
                pieces.append(f"if (axm_mutant({number})) {form} else " if is_statement else f"axm_mutant({number}) ? ({form}) : ")
                pieces.append(("END", number))
            pieces.append("" if is_statement else "(")
            put(region[0], region[1], within)
            pieces.append(" }" if is_statement else "))")
            at = region[1]
        pieces.append(text[at:end])

    put(0, len(text), sorted(mutants, key=lambda mutant: (mutant["region"][0], -mutant["region"][1], mutant["number"])))
    line, column, places = 2, 1, {}
    for piece in pieces:
        if isinstance(piece, tuple):
            places.setdefault(piece[1], []).append((line, column))
            continue
        if "\n" in piece:
            line += piece.count("\n")
            column = len(piece) - piece.rfind("\n")
        else:
            column += len(piece)
    return '#include "axmMutant.h"\n' + "".join(piece for piece in pieces if isinstance(piece, str)), places


def without_overlaps(mutants):
    """Regions that cross each other, and expressions around statements of another, are left to the first."""
    kept = []
    for mutant in mutants:
        first, last = mutant["region"]
        def crosses(other):
            start, end = other["region"]
            return first < start < last < end or start < first < end < last or (
                [start, end] == [first, last] and mutant["is_statement"] != other["is_statement"])
        if mutant["is_refused"] or any(crosses(other) for other in kept):
            mutant["is_refused"] = True
            continue
        kept.append(mutant)
    return kept


def write_all(service, mutants, only=None):
    for name in sorted({mutant["file"] for mutant in mutants}):
        if only is not None and name not in only:
            continue
        path = service / name
        original = path.with_name(path.name + ".original")
        if not original.exists():
            shutil.copy(path, original)
        text = original.read_text()
        mine = without_overlaps([mutant for mutant in mutants if mutant["file"] == name])
        result, places = written(text, masked(text), mine)
        for mutant in mine:
            mutant["place"] = places.get(mutant["number"], [])
            mutant["is_refused"] = not mutant["place"]
        path.write_text(result)
    count = max(mutant["number"] for mutant in mutants) + 1
    (service / "mutants.json").write_text(json.dumps(mutants, indent=1))
    return count


def mend(service, log):
    mutants = json.loads((service / "mutants.json").read_text())
    refused, files = set(), set()
    pattern = re.compile(r"(\S+):(\d+):(\d+): (?:fatal )?error: ")
    unplaced = {}
    for found in pattern.finditer(pathlib.Path(log).read_text(errors="replace")):
        # The compiler may have been given paths that are relative to somewhere.
        names = [name for name in {mutant["file"] for mutant in mutants} if found[1].endswith("/" + name)]
        if not names:
            continue
        name, line, column = max(names, key=len), int(found[2]), int(found[3])
        files.add(name)
        here = [mutant for mutant in mutants if mutant["file"] == name and not mutant["is_refused"]]
        guilty = [mutant for mutant in here if in_place(mutant["place"], line, column)]
        guilty = guilty or [mutant for mutant in here if mutant["place"][0][0] == line]
        refused |= {mutant["number"] for mutant in guilty}
        if not guilty:
            unplaced[name] = min(line, unplaced.get(name, line))
    for name, line in unplaced.items():
        if any(mutant["number"] in refused and mutant["file"] == name for mutant in mutants):
            continue
        above = [mutant for mutant in mutants if mutant["file"] == name and not mutant["is_refused"] and mutant["place"][0][0] <= line]
        if above:
            refused.add(max(above, key=lambda mutant: mutant["place"][0])["number"])
    for mutant in mutants:
        mutant["is_refused"] |= mutant["number"] in refused
    write_all(service, mutants, files)
    print(len(refused))


def in_place(place, line, column):
    (first_line, first), (last_line, last) = place[0], place[1]
    return first_line == line == last_line and first <= column <= last


def main():
    service = pathlib.Path(sys.argv[2])
    if sys.argv[1] == "mend":
        mend(service, sys.argv[3])
        return
    mutants = draw(service, int(sys.argv[3]), sys.argv[4], sys.argv[5:])
    print(write_all(service, mutants))


main()
