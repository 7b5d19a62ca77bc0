#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// What XPath does with text: UTF-8 seen as a row of characters (code points), and the white space of XML.
///
/// All texts are valid UTF-8 without exception: the tree holds no other, and expressions are checked before.
/// Stateless; safe from several threads.
namespace axsXPathText
{
/// The character at `at`, which moves to its end; where the bytes are not UTF-8, no code point (utCodePoint).
char32_t next_character(std::string_view text, std::size_t& at) noexcept;

std::string_view trim(std::string_view text) noexcept;

/// White space at both ends taken away, inside each run of it replaced by one space (XPath 1.0, normalize-space).
std::string normalize_space(std::string_view text);

/// The characters whose position, counted from 1, is at least round(start) and, with a length, less than round(start) +
/// round(length) (XPath 1.0, substring, whose results for NaN and infinities follow from this arithmetic).
std::string_view substring(std::string_view text, double start) noexcept;
std::string_view substring(std::string_view text, double start, double length) noexcept;

/// Where `wanted` stands in `text` first, std::string_view::npos if nowhere. Costs O(text + wanted), whatever the texts are.
/// Throws std::bad_alloc when memory runs out.
std::size_t find(std::string_view text, std::string_view wanted);

/// Each character of `text` that occurs in `from` replaced by the one at the same place in `to`, or taken away where
/// `to` is shorter; the first occurrence in `from` counts (XPath 1.0, translate).
std::string translate(std::string_view text, std::string_view from, std::string_view to);

/// Whether a name without a colon may start or go on with `c` (XML 1.0, productions 4 and 4a, without the colon).
bool is_name_start(char32_t c) noexcept;
bool is_name_character(char32_t c) noexcept;
}
