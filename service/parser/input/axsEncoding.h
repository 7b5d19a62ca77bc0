#pragma once

#include "axsReadError.h"

#include <cstddef>
#include <string>
#include <string_view>

/// In which encoding an entity is, as its first bytes and its declaration tell (XML 1.0, 4.3.3 and appendix F).
struct axsEncoding
{
  /// As axsEncodingName has it; of UTF-16 and UTF-32 with the byte order.
  std::string name;

  /// How many bytes at the beginning are a byte-order mark.
  std::size_t mark_size = 0;

  /// Whether the entity says it, too.
  bool is_declared = false;

  /// Finds it out from `head`, the beginning of the entity `url` up to its end or to more than any declaration takes.
  /// What is no declaration is no matter here, the parser tells of it. Throws axsReadError with its place where an encoding
  /// is declared that is not known or that is not that of the bytes, and where the bytes are of one that has to be
  /// declared; std::bad_alloc when memory runs out.
  static axsEncoding of(std::string_view head, apString const& url);
};
