#pragma once

#include <utString.h>

#include <cstring>

// The name of a tag, where it stands in the document. Not installed.
struct axmTagName
{
  char const* begin;
  char const* end;

  static axmTagName of(utString const& name) { return {name.c_str(), name.c_str() + name.length()}; }

  int length() const noexcept { return static_cast<int>(end - begin); }

  utString text() const { return utString(begin, length()); }

  bool operator==(axmTagName const& other) const noexcept
  {
    return end - begin == other.end - other.begin &&
           std::memcmp(begin, other.begin, static_cast<std::size_t>(end - begin)) == 0;
  }
  bool operator!=(axmTagName const& other) const noexcept { return !(*this == other); }
};
