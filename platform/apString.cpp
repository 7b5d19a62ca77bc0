#include <apString.h>

#include <apAscii.h>

#include <algorithm>
#include <cstring>
#include <cwchar>
#include <utility>

namespace
{
char32_t const replacement_character = 0xFFFD;

bool is_surrogate(char32_t c)
{
  return c >= 0xD800 && c <= 0xDFFF;
}

// Reads one code point of UTF-8 at `at`, or the longest beginning of one that can be, and moves `at` behind it.
char32_t read_utf8(unsigned char const*& at, unsigned char const* end)
{
  unsigned char const first = *at++;
  if (first < 0x80)
    return first;

  int more = 0;
  char32_t c = 0;
  unsigned char low = 0x80;
  unsigned char high = 0xBF;
  if (first >= 0xC2 && first <= 0xDF)
  {
    more = 1;
    c = first & 0x1Fu;
  }
  else if (first >= 0xE0 && first <= 0xEF)
  {
    more = 2;
    c = first & 0x0Fu;
    if (first == 0xE0)
      low = 0xA0; // what is below has a shorter form
    if (first == 0xED)
      high = 0x9F; // what is above is a surrogate
  }
  else if (first >= 0xF0 && first <= 0xF4)
  {
    more = 3;
    c = first & 0x07u;
    if (first == 0xF0)
      low = 0x90; // what is below has a shorter form
    if (first == 0xF4)
      high = 0x8F; // what is above is beyond U+10FFFF
  }
  else
    return replacement_character;

  for (; more > 0; --more)
  {
    if (at == end || *at < low || *at > high)
      return replacement_character;
    c = (c << 6) | (*at++ & 0x3Fu);
    low = 0x80;
    high = 0xBF;
  }
  return c;
}

bool is_continuation(unsigned char byte)
{
  return (byte & 0xC0) == 0x80;
}

// The same as read_utf8(), faster for most of what texts consist of.
inline char32_t next_of_utf8(unsigned char const*& at, unsigned char const* end)
{
  unsigned char const first = *at;
  if (first < 0x80)
  {
    ++at;
    return first;
  }
  if (first >= 0xC2 && first <= 0xDF && end - at >= 2 && is_continuation(at[1]))
  {
    char32_t const c = (first & 0x1Fu) << 6 | (at[1] & 0x3Fu);
    at += 2;
    return c;
  }
  // Without 0xE0 and 0xED, not all of whose sequences are right.
  if (first >= 0xE1 && first <= 0xEF && first != 0xED && end - at >= 3 && is_continuation(at[1]) &&
      is_continuation(at[2]))
  {
    char32_t const c = (first & 0x0Fu) << 12 | (at[1] & 0x3Fu) << 6 | (at[2] & 0x3Fu);
    at += 3;
    return c;
  }
  // Not `at` itself, which a reference would keep in memory.
  unsigned char const* behind = at;
  char32_t const c = read_utf8(behind, end);
  at = behind;
  return c;
}

// Reads one code point of wide text at `at` and moves `at` behind it.
char32_t read_wide(wchar_t const*& at, wchar_t const* end)
{
  auto const first = static_cast<char32_t>(*at++);
  if constexpr (sizeof(wchar_t) == 2)
  {
    char32_t const unit = first & 0xFFFFu;
    if (unit >= 0xD800 && unit <= 0xDBFF && at != end)
    {
      char32_t const second = static_cast<char32_t>(*at) & 0xFFFFu;
      if (second >= 0xDC00 && second <= 0xDFFF)
      {
        ++at;
        return 0x10000 + ((unit - 0xD800) << 10) + (second - 0xDC00);
      }
    }
    return is_surrogate(unit) ? replacement_character : unit;
  }
  return is_surrogate(first) || first > 0x10FFFF ? replacement_character : first;
}

int wide_units(char32_t c)
{
  return sizeof(wchar_t) == 2 && c > 0xFFFF ? 2 : 1;
}

wchar_t* write_wide(wchar_t* to, char32_t c)
{
  if (wide_units(c) == 2)
  {
    *to++ = static_cast<wchar_t>(0xD800 + ((c - 0x10000) >> 10));
    *to++ = static_cast<wchar_t>(0xDC00 + ((c - 0x10000) & 0x3FF));
  }
  else
    *to++ = static_cast<wchar_t>(c);
  return to;
}

// Writes the text of the UTF-8 and returns the end of what was written.
wchar_t* widen(unsigned char const* at, unsigned char const* end, wchar_t* to)
{
  while (at != end)
    to = write_wide(to, next_of_utf8(at, end));
  return to;
}

std::size_t utf8_bytes(char32_t c)
{
  return c < 0x80 ? 1 : c < 0x800 ? 2 : c < 0x10000 ? 3 : 4;
}

char* write_utf8(char* to, char32_t c)
{
  auto const tail = [&](int shift) { *to++ = static_cast<char>(0x80 | ((c >> shift) & 0x3F)); };
  switch (utf8_bytes(c))
  {
  case 1:
    *to++ = static_cast<char>(c);
    break;
  case 2:
    *to++ = static_cast<char>(0xC0 | (c >> 6));
    tail(0);
    break;
  case 3:
    *to++ = static_cast<char>(0xE0 | (c >> 12));
    tail(6);
    tail(0);
    break;
  default:
    *to++ = static_cast<char>(0xF0 | (c >> 18));
    tail(12);
    tail(6);
    tail(0);
  }
  return to;
}

// More characters than a length can say do not fit into memory.
int checked_length(std::size_t characters)
{
  return coSharedText<wchar_t>::checked_length(characters);
}
}

template <class Write>
apString::apString(std::size_t length, Write const& write) : text(checked_length(length), write)
{
}

apString::apString(wchar_t const* wide) : apString(std::wstring_view(wide == nullptr ? L"" : wide)) {}

apString::apString(wchar_t const* wide, int length)
  : apString(std::wstring_view(wide, wide == nullptr ? 0 : static_cast<std::size_t>(std::max(length, 0))))
{
}

apString::apString(std::wstring_view wide)
  : apString(wide.size(), [&](wchar_t* to) { std::copy_n(wide.data(), wide.size(), to); })
{
}

apString::apString(char const* utf8) : apString(from_utf8(utf8 == nullptr ? std::string_view() : utf8)) {}

apString::apString(utString const& utf8) : apString(from_utf8(utf8.view())) {}

apString apString::from_utf8(std::string_view utf8)
{
  // Most texts are short: by themselves they take a few instructions.
  if (utf8.size() > most_inside || !apAscii::is_ascii(utf8.data(), utf8.size()))
    return from_any_utf8(utf8);
  return apString(utf8.size(), [&](wchar_t* to) { apAscii::widen(utf8.data(), utf8.size(), to); });
}

void apString::assign_utf8(std::string_view utf8)
{
  if (utf8.size() > most_inside || !apAscii::is_ascii(utf8.data(), utf8.size()))
    *this = from_any_utf8(utf8);
  else
    text.assign(static_cast<int>(utf8.size()), [&](wchar_t* to) { apAscii::widen(utf8.data(), utf8.size(), to); });
}

apString apString::from_any_utf8(std::string_view utf8)
{
  if (apAscii::is_ascii(utf8.data(), utf8.size()))
    return apString(utf8.size(), [&](wchar_t* to) { apAscii::widen(utf8.data(), utf8.size(), to); });

  auto const* const begin = reinterpret_cast<unsigned char const*>(utf8.data());
  auto const* const end = begin + utf8.size();
  // No text has more units wide than bytes. A text of usual length is read once, into a place from which it is copied;
  // a longer one twice, for its length and for itself.
  std::size_t const usual = 1024;
  if (utf8.size() <= usual)
  {
    wchar_t wide[usual];
    wchar_t* const wide_end = widen(begin, end, wide);
    return apString(std::wstring_view(wide, static_cast<std::size_t>(wide_end - wide)));
  }

  std::size_t length = 0;
  for (auto const* at = begin; at != end;)
    length += static_cast<std::size_t>(wide_units(next_of_utf8(at, end)));
  return apString(length, [&](wchar_t* to) { widen(begin, end, to); });
}

utString apString::to_utf8() const
{
  if (apAscii::is_ascii(c_str(), view().size()))
    return utString::written(length(), [&](char* to) { apAscii::narrow(c_str(), view().size(), to); });

  wchar_t const* const end = c_str() + length();
  std::size_t bytes = 0;
  for (wchar_t const* at = c_str(); at != end;)
    bytes += utf8_bytes(read_wide(at, end));

  return utString::written(checked_length(bytes),
    [&](char* to)
    {
      for (wchar_t const* at = c_str(); at != end;)
        to = write_utf8(to, read_wide(at, end));
    });
}

bool apString::operator==(apString const& other) const noexcept
{
  return view() == other.view();
}

bool apString::operator!=(apString const& other) const noexcept
{
  return view() != other.view();
}

bool apString::operator<(apString const& other) const noexcept
{
  return view() < other.view();
}

int apString::find(apString const& wanted, int from) const noexcept
{
  std::size_t const found = view().find(wanted.view(), static_cast<std::size_t>(std::max(from, 0)));
  return found == std::wstring_view::npos ? -1 : static_cast<int>(found);
}

int apString::replace_all(apString const& wanted, apString const& replacement)
{
  if (wanted.empty())
    return 0;
  int occurrences = 0;
  for (int at = find(wanted); at >= 0; at = find(wanted, at + wanted.length()))
    ++occurrences;
  if (occurrences == 0)
    return 0;

  std::size_t const replaced = static_cast<std::size_t>(occurrences);
  *this = apString(view().size() - replaced * wanted.view().size() + replaced * replacement.view().size(),
    [&](wchar_t* to)
    {
      std::wstring_view rest = view();
      for (std::size_t i = 0; i < replaced; ++i)
      {
        std::size_t const at = rest.find(wanted.view());
        to = std::copy_n(rest.data(), at, to);
        to = std::copy_n(replacement.c_str(), replacement.view().size(), to);
        rest.remove_prefix(at + wanted.view().size());
      }
      std::copy_n(rest.data(), rest.size(), to);
    });
  return occurrences;
}

apString& apString::operator+=(apString const& other)
{
  return *this = *this + other;
}

apString operator+(apString const& left, apString const& right)
{
  if (left.empty())
    return right;
  if (right.empty())
    return left;
  return apString(left.view().size() + right.view().size(), [&](wchar_t* to)
    { std::copy_n(right.c_str(), right.view().size(), std::copy_n(left.c_str(), left.view().size(), to)); });
}
