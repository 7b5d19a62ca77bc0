#include "axsCharacters.h"

#include <algorithm>
#include <iterator>

namespace
{
struct Range
{
  char32_t first;
  char32_t last;
};

// [4] NameStartChar beyond ASCII.
constexpr Range start_ranges[] = {{0xC0, 0xD6}, {0xD8, 0xF6}, {0xF8, 0x2FF}, {0x370, 0x37D}, {0x37F, 0x1FFF},
  {0x200C, 0x200D}, {0x2070, 0x218F}, {0x2C00, 0x2FEF}, {0x3001, 0xD7FF}, {0xF900, 0xFDCF}, {0xFDF0, 0xFFFD},
  {0x10000, 0xEFFFF}};

// What [4a] NameChar adds to it.
constexpr Range further_ranges[] = {{0xB7, 0xB7}, {0x300, 0x36F}, {0x203F, 0x2040}};

template <class Ranges>
bool is_in(Ranges const& ranges, char32_t c)
{
  auto const range = std::lower_bound(
    std::begin(ranges), std::end(ranges), c, [](Range const& less, char32_t than) { return less.last < than; });
  return range != std::end(ranges) && c >= range->first;
}

// The length of the character at `at`, one beyond ASCII for which `test` holds; 0 of another one.
std::size_t length_in_name(char const* at, bool (*test)(char32_t) noexcept)
{
  if (utUtf8::is_ascii(*at))
    return 0;
  axsCharacters::Character const found = axsCharacters::character(at);
  return test(found.code) ? found.length : 0;
}
}

bool axsCharacters::is_equal_in_any_case(std::string_view text, std::string_view lower_case)
{
  return std::equal(text.begin(), text.end(), lower_case.begin(), lower_case.end(),
    [](char c, char lower) { return (c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c) == lower; });
}

axsCharacters::Character axsCharacters::character(char const* at)
{
  // The zero byte that ends the text cuts a character off by itself.
  utCodePoint const found = utUtf8::decode(at, at + utUtf8::max_bytes);
  return found.is_valid() && utXmlCharacter::is_character(found.code) ? Character{found.code, found.length}
                                                                      : Character{0, 0};
}

bool axsCharacters::is_name_start(char32_t character) noexcept
{
  return character < 0x80 ? is(static_cast<char>(character), name_start) : is_in(start_ranges, character);
}

bool axsCharacters::is_name_part(char32_t character) noexcept
{
  return character < 0x80 ? is(static_cast<char>(character), name)
                          : is_in(start_ranges, character) || is_in(further_ranges, character);
}

char const* axsCharacters::end_of_name(char const* at)
{
  if (is(*at, name_start))
    return end_of_name_characters(at + 1);
  std::size_t const length = length_in_name(at, is_name_start);
  return length == 0 ? at : end_of_name_characters(at + length);
}

char const* axsCharacters::end_of_name_characters(char const* at)
{
  while (true)
  {
    while (is(*at, name))
      ++at;
    std::size_t const length = length_in_name(at, is_name_part);
    if (length == 0)
      return at;
    at += length;
  }
}
