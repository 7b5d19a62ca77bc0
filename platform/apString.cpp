#include "apString.h"

#include "apAscii.h"
#include "apWide.h"

#include <utUtf8.h>

#include <algorithm>
#include <cstring>
#include <cwchar>
#include <utility>

namespace
{
// Writes the text of the UTF-8 and returns the end of what was written.
wchar_t* widen(std::string_view utf8, wchar_t* to)
{
  char const* at = utf8.data();
  for (char const* const end = at + utf8.size(); at != end;)
  {
    utCodePoint const found = utUtf8::decode(at, end);
    at += found.length;
    to = apWide::encode(found.or_replacement(), to);
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
  if (utf8.size() > max_inside || !apAscii::is_ascii(utf8.data(), utf8.size()))
    return from_any_utf8(utf8);
  return apString(utf8.size(), [&](wchar_t* to) { apAscii::widen(utf8.data(), utf8.size(), to); });
}

void apString::assign_utf8(std::string_view utf8)
{
  if (utf8.size() > max_inside || !apAscii::is_ascii(utf8.data(), utf8.size()))
    *this = from_any_utf8(utf8);
  else
    text.assign(static_cast<int>(utf8.size()), [&](wchar_t* to) { apAscii::widen(utf8.data(), utf8.size(), to); });
}

apString apString::from_any_utf8(std::string_view utf8)
{
  if (apAscii::is_ascii(utf8.data(), utf8.size()))
    return apString(utf8.size(), [&](wchar_t* to) { apAscii::widen(utf8.data(), utf8.size(), to); });

  // No text has more characters wide than bytes. One of usual length is decoded once, into a place from which it is
  // copied; a longer one twice, for its length and for itself.
  std::size_t const usual = 1024;
  if (utf8.size() <= usual)
  {
    wchar_t wide[usual];
    wchar_t* const wide_end = widen(utf8, wide);
    return apString(std::wstring_view(wide, static_cast<std::size_t>(wide_end - wide)));
  }

  std::size_t length = 0;
  char const* const end = utf8.data() + utf8.size();
  for (char const* at = utf8.data(); at != end;)
  {
    utCodePoint const found = utUtf8::decode(at, end);
    at += found.length;
    length += apWide::encoded_length(found.or_replacement());
  }
  return apString(length, [&](wchar_t* to) { widen(utf8, to); });
}

utString apString::to_utf8() const
{
  if (apAscii::is_ascii(c_str(), view().size()))
    return utString::written(length(), [&](char* to) { apAscii::narrow(c_str(), view().size(), to); });

  auto const for_each = [this](auto const& take)
  {
    wchar_t const* const end = c_str() + length();
    for (wchar_t const* at = c_str(); at != end;)
    {
      utCodePoint const found = apWide::decode(at, end);
      at += found.length;
      take(found.or_replacement());
    }
  };
  std::size_t bytes = 0;
  for_each([&](char32_t code) { bytes += utUtf8::encoded_length(code); });
  return utString::written(
    checked_length(bytes), [&](char* to) { for_each([&](char32_t code) { to = utUtf8::encode(code, to); }); });
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

std::ostream& operator<<(std::ostream& out, apString const& text)
{
  return out << text.to_utf8();
}
