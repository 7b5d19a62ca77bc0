#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// What the tests of edits know of markup by themselves: a plain scanner, and encodings.
namespace Markup
{
struct Range
{
  std::size_t begin = 0;
  std::size_t end = 0;
};

/// An element of a document: its tags, which are one where it is empty, and whether its parent is the root or above.
struct Element
{
  Range start;
  Range end;
};

/// The elements of a document in UTF-8 that is well-formed, in their order. What entities hold is not looked at.
std::vector<Element> elements(std::string_view document);

enum Units
{
  utf_16_le,
  utf_16_be,
  utf_32_le,
  utf_32_be
};

/// Text in UTF-8 in another encoding.
std::string encoded(std::string_view utf8, Units units);
std::string latin_1(std::string_view utf8);
}
