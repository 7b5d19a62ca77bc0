#pragma once

#include <apPath.h>
#include <apString.h>
#include <utString.h>

#include <climits>
#include <cstddef>
#include <new>
#include <string>
#include <string_view>

/// Everything that makes the interfaces pleasant in C++ stands in this namespace; the header <axm.h> brings all of it.
namespace axm
{
/// Texts of the interfaces as UTF-8 in a std::string. What is not Unicode becomes U+FFFD. Cost: O(length). Throws
/// std::bad_alloc when memory runs out.
inline std::string utf8(apString const& text)
{
  return std::string(text.to_utf8().view());
}

inline std::string utf8(utString const& text)
{
  return std::string(text.view());
}

inline std::string utf8(apPath const& path)
{
  return std::string(path.path().view());
}

/// The text of `utf8`, which may hold NULs; each longest beginning of a sequence that is not UTF-8 becomes one U+FFFD.
inline apString wide(std::string_view utf8)
{
  return apString::from_utf8(utf8);
}

/// The same as bytes. Throws std::bad_alloc for what is longer than an `int` can say, too.
inline utString narrow(std::string_view utf8)
{
  if (utf8.size() > static_cast<std::size_t>(INT_MAX))
    throw std::bad_alloc();
  return utString(utf8.data() == nullptr ? "" : utf8.data(), static_cast<int>(utf8.size()));
}

/// The path of that name in UTF-8.
inline apPath path(std::string_view utf8)
{
  return apPath(narrow(utf8));
}
}
