#pragma once

#include <cstdint>
#include <string>

/// One thing in which two documents differ. A plain value; texts are UTF-8.
struct axsDifference
{
  enum class Kind
  {
    removed, // it is in the first document only
    added,   // it is in the second one only
    changed  // it has another value
  };

  Kind kind = Kind::changed;

  /// Where it is, as an XPath without prefixes that are bound: of what is only in the second document, in that one. Of what
  /// lies deep, "..." stands for the beginning.
  std::string path;

  /// The line in which it begins in each of the documents, counted from 1; 0 where it is not.
  std::uint64_t line_before = 0;
  std::uint64_t line_after = 0;

  /// The value in each of the documents: of an attribute, text, comment or instruction all of it, of an element the
  /// beginning of it as XML, cut off with "..." where it is long.
  std::string before;
  std::string after;
};
