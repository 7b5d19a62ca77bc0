#!/usr/bin/env python3
"""Writes axsSingleByteSets.cpp beside itself: what each byte from 0x80 on stands for, out of Python's converters."""

import pathlib

SETS = (
    [(f"ISO-8859-{n}", f"iso8859_{n}") for n in (*range(1, 12), 13, 14, 15, 16)]
    + [(f"windows-{n}", f"cp{n}") for n in range(1250, 1259)]
    + [("KOI8-R", "koi8_r"), ("KOI8-U", "koi8_u")]
)

BEGIN = """#include "axsSingleByteSets.h"

#include <algorithm>
#include <iterator>

namespace
{
struct Set
{
  std::string_view name;
  axsSingleByteSets::Characters characters;
};

// Made by make_single_byte_sets.py.
// clang-format off
constexpr Set sets[] = {
"""

END = """};
// clang-format on
}

axsSingleByteSets::Characters const* axsSingleByteSets::find(std::string_view name) noexcept
{
  Set const* const found =
    std::find_if(std::begin(sets), std::end(sets), [name](Set const& set) { return set.name == name; });
  return found == std::end(sets) ? nullptr : &found->characters;
}
"""


def characters(codec):
    return [ord(bytes([byte]).decode(codec, "replace")) % 0xFFFD for byte in range(0x80, 0x100)]


def rows(codes):
    for begin in range(0, len(codes), 16):
        yield "    " + ", ".join(f"0x{code:04X}" for code in codes[begin : begin + 16]) + ",\n"


def main():
    text = BEGIN
    for name, codec in SETS:
        text += f'  {{"{name}", {{\n' + "".join(rows(characters(codec))) + "  }},\n"
    (pathlib.Path(__file__).parent / "axsSingleByteSets.cpp").write_text(text + END)


main()
