#include "utString.h"

#include <algorithm>
#include <cstring>
#include <ostream>

namespace
{
char folded(char c) noexcept
{
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}
}

utString::utString(char const* bytes) : utString()
{
  if (bytes != nullptr)
    *this = utString(bytes, coSharedText<char>::checked_length(std::strlen(bytes)));
}

utString::utString(char const* bytes, int length) : utString()
{
  if (bytes == nullptr)
    return;
  std::size_t const size = static_cast<std::size_t>(std::max(length, 0));
  *this = written(static_cast<int>(size), [&](char* to) { std::memcpy(to, bytes, size); });
}

bool utString::operator==(utString const& other) const noexcept
{
  return has_storage() == other.has_storage() && std::strcmp(c_str(), other.c_str()) == 0;
}

bool utString::operator!=(utString const& other) const noexcept
{
  return !(*this == other);
}

int utString::case_compare(utString const& other) const noexcept
{
  char const* left = c_str();
  char const* right = other.c_str();
  while (*left != '\0' && folded(*left) == folded(*right))
  {
    ++left;
    ++right;
  }
  return static_cast<unsigned char>(folded(*left)) - static_cast<unsigned char>(folded(*right));
}

utString operator+(utString const& left, utString const& right)
{
  if (right.length() == 0 && left.has_storage())
    return left;
  if (left.length() == 0)
    return right;
  auto const left_length = static_cast<std::size_t>(left.length());
  auto const right_length = static_cast<std::size_t>(right.length());
  return utString::written(coSharedText<char>::checked_length(left_length + right_length),
    [&](char* to)
    {
      std::memcpy(to, left.c_str(), left_length);
      std::memcpy(to + left_length, right.c_str(), right_length);
    });
}

std::ostream& operator<<(std::ostream& out, utString const& text)
{
  return out.write(text.c_str(), text.length());
}

utString ut_lit(char const* text)
{
  return utString(text);
}
