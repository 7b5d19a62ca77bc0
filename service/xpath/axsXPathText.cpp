#include <axsXPathText.h>

#include <axsXPathNumber.h>

#include <algorithm>
#include <limits>
#include <unordered_map>

namespace
{
constexpr char32_t not_a_character = 0xFFFFFFFF;

struct Range
{
  char32_t first;
  char32_t last;
};

bool lies_in(char32_t c, Range const* begin, Range const* end) noexcept
{
  Range const* const behind = std::upper_bound(begin, end, c, [](char32_t v, Range const& r) { return v < r.first; });
  return behind != begin && c <= behind[-1].last;
}

// XML 1.0 (fifth edition), NameStartChar and NameChar beyond ASCII.
Range const start_ranges[] = {{0xC0, 0xD6}, {0xD8, 0xF6}, {0xF8, 0x2FF}, {0x370, 0x37D}, {0x37F, 0x1FFF},
  {0x200C, 0x200D}, {0x2070, 0x218F}, {0x2C00, 0x2FEF}, {0x3001, 0xD7FF}, {0xF900, 0xFDCF}, {0xFDF0, 0xFFFD},
  {0x10000, 0xEFFFF}};
Range const further_ranges[] = {{0xB7, 0xB7}, {0x300, 0x36F}, {0x203F, 0x2040}};

bool is_letter(char32_t c) noexcept
{
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/// The characters at the positions first <= p < behind; none where one of the two is NaN.
std::string_view between(std::string_view text, double first, double behind) noexcept
{
  double position = 1;
  std::size_t begin = 0;
  for (; begin < text.size() && !(position >= first); ++position)
    begin += axsXPathText::character_bytes(text[begin]);
  std::size_t end = begin;
  for (; end < text.size() && position < behind; ++position)
    end += axsXPathText::character_bytes(text[end]);
  return text.substr(begin, end - begin);
}
}

std::size_t axsXPathText::count_characters(std::string_view text) noexcept
{
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), starts_character));
}

std::size_t axsXPathText::character_bytes(char first) noexcept
{
  auto const byte = static_cast<unsigned char>(first);
  if (byte < 0xC0)
    return 1;
  if (byte < 0xE0)
    return 2;
  return byte < 0xF0 ? 3 : 4;
}

char32_t axsXPathText::next_character(std::string_view text, std::size_t& at) noexcept
{
  auto const first = static_cast<unsigned char>(text[at]);
  if (first < 0x80)
  {
    ++at;
    return first;
  }
  std::size_t const bytes = character_bytes(text[at]);
  if (bytes == 1 || first > 0xF4 || text.size() - at < bytes)
  {
    ++at;
    return not_a_character;
  }
  auto c = static_cast<char32_t>(first & (0x7Fu >> bytes));
  for (std::size_t i = 1; i < bytes; ++i)
  {
    if (starts_character(text[at + i]))
    {
      ++at;
      return not_a_character;
    }
    c = (c << 6) | (static_cast<unsigned char>(text[at + i]) & 0x3Fu);
  }
  char32_t const least[] = {0, 0, 0x80, 0x800, 0x10000};
  if (c < least[bytes] || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF))
  {
    ++at;
    return not_a_character;
  }
  at += bytes;
  return c;
}

bool axsXPathText::is_utf8(std::string_view text) noexcept
{
  for (std::size_t at = 0; at < text.size();)
    if (next_character(text, at) == not_a_character)
      return false;
  return true;
}

std::string_view axsXPathText::trim(std::string_view text) noexcept
{
  while (!text.empty() && is_space(text.front()))
    text.remove_prefix(1);
  while (!text.empty() && is_space(text.back()))
    text.remove_suffix(1);
  return text;
}

std::string axsXPathText::normalize_space(std::string_view text)
{
  std::string result;
  text = trim(text);
  result.reserve(text.size());
  for (char const c : text)
  {
    if (!is_space(c))
      result.push_back(c);
    else if (result.back() != ' ')
      result.push_back(' ');
  }
  return result;
}

std::string_view axsXPathText::substring(std::string_view text, double start) noexcept
{
  return between(text, axsXPathNumber::round(start), std::numeric_limits<double>::infinity());
}

std::string_view axsXPathText::substring(std::string_view text, double start, double length) noexcept
{
  double const first = axsXPathNumber::round(start);
  return between(text, first, first + axsXPathNumber::round(length));
}

std::string axsXPathText::translate(std::string_view text, std::string_view from, std::string_view to)
{
  std::unordered_map<char32_t, std::string_view> replacements;
  std::size_t to_at = 0;
  for (std::size_t at = 0; at < from.size();)
  {
    std::string_view replacement;
    if (to_at < to.size())
    {
      replacement = to.substr(to_at, character_bytes(to[to_at]));
      to_at += replacement.size();
    }
    replacements.emplace(next_character(from, at), replacement);
  }

  std::string result;
  result.reserve(text.size());
  for (std::size_t at = 0; at < text.size();)
  {
    std::size_t const begin = at;
    auto const found = replacements.find(next_character(text, at));
    result.append(found == replacements.end() ? text.substr(begin, at - begin) : found->second);
  }
  return result;
}

bool axsXPathText::is_name_start(char32_t c) noexcept
{
  if (c < 0x80)
    return is_letter(c) || c == '_';
  return lies_in(c, std::begin(start_ranges), std::end(start_ranges));
}

bool axsXPathText::is_name_character(char32_t c) noexcept
{
  if (c < 0x80)
    return is_letter(c) || (c >= '0' && c <= '9') || c == '_' || c == '-' || c == '.';
  return is_name_start(c) || lies_in(c, std::begin(further_ranges), std::end(further_ranges));
}
