#pragma once

#include <utString.h>

// The name of a tag, where it stands in the document. Not installed.
struct axmTagName
{
  char const* begin;
  char const* end;

  static axmTagName of(utString const& name) { return {name.view().data(), name.view().data() + name.view().size()}; }

  int length() const noexcept { return static_cast<int>(end - begin); }

  utString text() const { return utString(begin, length()); }

  bool operator==(axmTagName const& other) const noexcept
  {
    if (end - begin != other.end - other.begin)
      return false;
    // Most names are so short that a call of the C library is too much.
    for (char const *one = begin, *two = other.begin; one != end; ++one, ++two)
      if (*one != *two)
        return false;
    return true;
  }
  bool operator!=(axmTagName const& other) const noexcept { return !(*this == other); }
};
