#include "axsXmlName.h"

#include <algorithm>
#include <iterator>

namespace
{
struct Range
{
  char32_t first;
  char32_t last;
};

// [4] NameStartChar
Range const start_ranges[] = {{':', ':'}, {'A', 'Z'}, {'_', '_'}, {'a', 'z'}, {0xC0, 0xD6}, {0xD8, 0xF6}, {0xF8, 0x2FF},
  {0x370, 0x37D}, {0x37F, 0x1FFF}, {0x200C, 0x200D}, {0x2070, 0x218F}, {0x2C00, 0x2FEF}, {0x3001, 0xD7FF},
  {0xF900, 0xFDCF}, {0xFDF0, 0xFFFD}, {0x10000, 0xEFFFF}};

// What [4a] NameChar adds.
Range const further_ranges[] = {{'-', '.'}, {'0', '9'}, {0xB7, 0xB7}, {0x300, 0x36F}, {0x203F, 0x2040}};

template <class Ranges>
bool is_in(Ranges const& ranges, char32_t c)
{
  return std::any_of(
    std::begin(ranges), std::end(ranges), [c](Range range) { return c >= range.first && c <= range.last; });
}

// The character at `at`, which moves behind it; half a pair is itself, and no name has it.
char32_t read(std::wstring_view text, std::size_t& at)
{
  auto const first = static_cast<char32_t>(text[at++]);
  if constexpr (sizeof(wchar_t) == 2)
  {
    char32_t const second = at < text.size() ? static_cast<char32_t>(text[at]) : 0;
    if (first >= 0xD800 && first <= 0xDBFF && second >= 0xDC00 && second <= 0xDFFF)
    {
      ++at;
      return 0x10000 + ((first - 0xD800) << 10) + (second - 0xDC00);
    }
  }
  return first;
}
}

bool axsXmlName::is_name(apString const& text) noexcept
{
  std::wstring_view const characters = text.view();
  std::size_t at = 0;
  if (characters.empty() || !is_start(read(characters, at)))
    return false;
  while (at < characters.size())
    if (!is_part(read(characters, at)))
      return false;
  return true;
}

bool axsXmlName::is_start(char32_t character) noexcept
{
  return is_in(start_ranges, character);
}

bool axsXmlName::is_part(char32_t character) noexcept
{
  return is_start(character) || is_in(further_ranges, character);
}
