#!/usr/bin/env python3
"""Checks that no function of the libraries and the command passes a cognitive complexity of 25.

check_complexity.py             exit code 1, with each function that does
check_complexity.py --all N     prints every function above N with its number
check_complexity.py --root FOLDER ...   the same of another tree

Counted from the text, as the measure is defined (G. A. Campbell, Cognitive Complexity, 2017): 1 for each if, loop, switch,
catch and conditional operator, and 1 more for each of them that it stands in; 1 for each else and each run of equal logical
operators. clang-tidy (cmake/check_style.sh --tidy) counts the same from the syntax tree, in minutes instead of seconds.
"""

import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
FOLDERS = ["containers", "utilities", "platform", "source", "service", "command"]
MAX = 25

TOKEN = re.compile(r"""
    //[^\n]* | /\*.*?\*/
  | R"(?P<mark>[^()\s]*)\(.*?\)(?P=mark)"
  | "(?:\\.|[^"\\\n])*" | '(?:\\.|[^'\\\n])*'
  | ^[ \t]*\#(?:[^\n\\]|\\.|\\\n)*
  | (?P<token>[A-Za-z_]\w* | \d[\w.']* | && | \|\| | :: | -> | [^\s\w])
  | \n | .
""", re.VERBOSE | re.DOTALL | re.MULTILINE)

NESTING = {"if", "for", "while", "switch", "catch"}


def tokens_of(text):
    """The tokens with their lines, without comments, directives and the contents of literals."""
    line = 1
    for match in TOKEN.finditer(text):
        found = match.group("token")
        if found:
            yield found, line
        elif match.group()[:1] in "\"'R" and len(match.group()) > 1:
            yield "literal", line
        line += match.group().count("\n")


def closing(tokens, at):
    """The index of the bracket that closes the one at `at`."""
    opening = tokens[at][0]
    end = {"(": ")", "{": "}", "[": "]"}[opening]
    depth = 0
    for i in range(at, len(tokens)):
        depth += (tokens[i][0] == opening) - (tokens[i][0] == end)
        if depth == 0:
            return i
    return len(tokens) - 1


class Body:
    """Counts what stands between the braces of a function."""

    def __init__(self, tokens):
        self.tokens = tokens
        self.sum = 0
        self.logical = []

    def count(self, begin, end):
        # Each entry is where a nesting ends.
        nested = []
        # Statements without braces nest up to their semicolon; those that a single one holds are nested in it.
        i = begin
        while i < end:
            token = self.tokens[i][0]
            while nested and nested[-1] <= i:
                nested.pop()
            if token == "else":
                self.sum += 1
                if self.text(i + 1) == "if":
                    nested.append(self.statement_end(i + 2, end))
                    i += 2
                    continue
                nested.append(self.statement_end(i + 1, end))
            elif token in NESTING and not self.is_end_of_do(i):
                self.sum += 1 + len(nested)
                head = i + 2 if self.text(i + 1) == "constexpr" else i + 1
                nested.append(self.statement_end(head, end))
            elif token == "do":
                self.sum += 1 + len(nested)
                nested.append(self.statement_end(i + 1, end))
            elif token == "?":
                self.sum += 1 + len(nested)
            elif token in ("&&", "||") and not self.is_reference(i):
                self.sum += self.begins_run(i)
            elif token == "[" and self.is_lambda(i):
                nested.append(self.lambda_end(i, end))
            i += 1

    def text(self, i):
        return self.tokens[i][0] if i < len(self.tokens) else ""

    def is_end_of_do(self, i):
        return self.text(i) == "while" and self.text(i - 1) == "}" and self.text(closing(self.tokens, i + 1) + 1) == ";"

    def is_reference(self, i):
        return self.text(i - 1) in ("auto", ">", "const") or self.text(i + 1) in (")", ",", ">", "...")

    # Whether no equal operator stands before it in the same expression, at the same level of brackets.
    def begins_run(self, i):
        depth = 0
        for k in range(i - 1, -1, -1):
            token = self.text(k)
            if token in (")", "]", "}"):
                depth += 1
            elif token in ("(", "[", "{"):
                if depth == 0:
                    return True
                depth -= 1
            elif depth == 0 and token in (";", ",", "?", ":", "=", "return"):
                return True
            elif depth == 0 and token in ("&&", "||"):
                return token != self.text(i)
        return True

    def is_lambda(self, i):
        if self.text(i - 1) == "[" or self.text(i + 1) == "[":
            return False
        after = self.text(closing(self.tokens, i) + 1)
        before = self.text(i - 1)
        return after in ("(", "{") and not re.match(r"[\w)\]]", before) or before == "return" and after in ("(", "{")

    def lambda_end(self, i, end):
        k = closing(self.tokens, i) + 1
        while k < end and self.text(k) != "{":
            k = closing(self.tokens, k) + 1 if self.text(k) == "(" else k + 1
        return closing(self.tokens, k) if k < end else end

    # The end of the statement whose head, in round brackets or not, begins at i.
    def statement_end(self, i, end):
        if self.text(i) == "(":
            i = closing(self.tokens, i) + 1
        if self.text(i) == "{":
            return closing(self.tokens, i) + 1
        if self.text(i) in NESTING or self.text(i) == "else":
            k = self.statement_end(i + 1 + (self.text(i + 1) == "constexpr"), end)
            while self.text(k) == "else":
                k = self.statement_end(k + 1 + (self.text(k + 1) == "if"), end)
            return k
        while i < end and self.text(i) != ";":
            i = closing(self.tokens, i) + 1 if self.text(i) in ("(", "{", "[") else i + 1
        return i + 1


def name_before(tokens, at):
    """The name of the function whose parameters open at `at`."""
    name = []
    k = at - 1
    while k >= 0 and re.match(r"\w|::|~", tokens[k][0]) and len(name) < 5:
        if name and re.match(r"\w", name[0]) and tokens[k][0] not in ("::", "~"):
            break
        name.insert(0, tokens[k][0])
        k -= 1
    return "".join(name)


def is_operator(tokens, at):
    """Whether the token ends the name of an operator, such as operator== or operator()."""
    return any(tokens[k][0] == "operator" for k in range(max(0, at - 2), at))


def functions_of(tokens):
    """Name, line, first and last token of each function body."""
    i = 0
    while i < len(tokens):
        if tokens[i][0] == "(" and i > 0 and (re.match(r"[A-Za-z_]", tokens[i - 1][0]) or is_operator(tokens, i - 1)):
            end = closing(tokens, i)
            k = end + 1
            while k < len(tokens) and tokens[k][0] in ("const", "noexcept", "override", "final", "try", "&", "->", ">", "<", "*",
                                                       "::") or k < len(tokens) and tokens[k - 1][0] in ("->", "::", "<"):
                k += 1
            # Members that a constructor begins with, each a name and a bracket.
            if k < len(tokens) and tokens[k][0] == ":":
                k += 1
                while k < len(tokens):
                    while k < len(tokens) and tokens[k][0] not in ("(", "{"):
                        k += 1
                    if k == len(tokens):
                        break
                    k = closing(tokens, k) + 1
                    if k < len(tokens) and tokens[k][0] == "...":
                        k += 1
                    if k >= len(tokens) or tokens[k][0] != ",":
                        break
            name = "operator" if is_operator(tokens, i - 1) else name_before(tokens, i)
            if k < len(tokens) and tokens[k][0] == "{" and name not in NESTING and name:
                last = closing(tokens, k)
                yield name, tokens[i][1], k, last
                i = last
            else:
                i += 1
                continue
        i += 1


def measured(root):
    """Complexity, path, line and name of every function."""
    for folder in FOLDERS:
        for path in sorted((root / folder).rglob("*")):
            if path.suffix not in (".h", ".cpp"):
                continue
            tokens = list(tokens_of(path.read_text(encoding="utf-8")))
            for name, line, begin, end in functions_of(tokens):
                body = Body(tokens)
                body.count(begin + 1, end)
                yield body.sum, path.relative_to(root).as_posix(), line, name


def main(arguments):
    root = ROOT
    if len(arguments) > 1 and arguments[0] == "--root":
        root = pathlib.Path(arguments[1])
        arguments = arguments[2:]
    if arguments and (len(arguments) != 2 or arguments[0] != "--all" or not arguments[1].isdigit()):
        print(__doc__, file=sys.stderr)
        return 2
    limit = int(arguments[1]) if arguments else MAX
    functions = list(measured(root))
    found = sorted((row for row in functions if row[0] > limit), reverse=True)
    for number, path, line, name in found:
        print(f"{path}:{line}: {name} has a cognitive complexity of {number}")
    if arguments:
        return 0
    if found:
        print(f"at most {MAX} is allowed")
        return 1
    print(f"{len(functions)} functions have a cognitive complexity of at most {MAX}")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
