#pragma once

#include "axsPlace.h"

#include <cstddef>

/// The line ends of XML in UTF-8 and what places follow from them.
namespace axsLineEnds
{
/// Which characters end a line, a pair of them counted as one.
enum class Rule
{
  xml_1_0, // line feed, carriage return, the two in that order (XML 1.0, 2.11)
  xml_1_1  // also NEL, LS and a carriage return with NEL (XML 1.1, 2.11)
};

/// How many bytes before a text are looked at: those of the document that stand there, zero bytes at its beginning.
constexpr std::size_t bytes_before = 2;

/// The place of `to` in a document in which `from` has the place `start`. Both are at the beginning of a character. Takes
/// time in proportion to the bytes between them, a small part of what reading them takes.
axsPlace place_after(axsPlace start, char const* from, char const* to, Rule rule) noexcept;

/// The same where it is known that so many lines of XML 1.0 end between them, a pair that they part counted as well. Takes
/// time in proportion to the length of the line in which `to` is.
axsPlace place_after(axsPlace start, char const* from, char const* to, std::uint64_t lines) noexcept;

/// How many lines of XML 1.0 end between them; one of two bytes counts at its first.
std::size_t count(char const* from, char const* to) noexcept;

/// The place of `to`, which stands before `from`. Looks at no byte before `begin`, whose place is `start`. Takes time in
/// proportion to the bytes between them and to the length of the line in which `to` is.
axsPlace place_before(
  axsPlace start, char const* begin, axsPlace place, char const* from, char const* to, Rule rule) noexcept;
}
