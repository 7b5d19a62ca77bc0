#pragma once

#include "axsCharacters.h"

#include <cstddef>
#include <string>
#include <string_view>

class axsEntities;
class axsInputStack;

/// Reads the values of attributes and normalises them (3.3.3).
class axsAttributeValue
{
public:
  /// Refers to both, which must live longer.
  axsAttributeValue(axsInputStack& input, axsEntities& entities) : in(input), all_entities(entities) {}

  /// Reads the value in quotes at `p` of the attribute `name` and moves after it. What comes out is the value as that of an
  /// attribute of character data: it stands where it was read or, where it does not stand there as it is, at the end of
  /// `made()`, which moves when more is read. Throws as the input does.
  std::string_view read(char const*& p, std::string_view name)
  {
    std::string_view value;
    char const* end = p;
    // Most values are plain ASCII.
    if (axsCharacters::read_literal(end, value))
    {
      p = end;
      return value;
    }
    return read_special(p, name);
  }

  /// Makes of a value that was read last what it is to an attribute of tokens: no spaces at its ends, and one where there
  /// are several.
  std::string_view collapsed(std::string_view value);

  /// Whether the value was made, and does not stand where it was read.
  bool is_made(std::string_view value) const noexcept
  {
    return value.data() >= normal.data() && value.data() <= normal.data() + normal.size();
  }

  std::string const& made() const noexcept { return normal; }

  /// Forgets what was made.
  void clear() noexcept { normal.clear(); }

private:
  std::string_view read_special(char const*& p, std::string_view name);
  void expand(char const*& p);
  [[noreturn]] void fail_at_less_than(char const* p, std::string_view name) const;
  void take(char const* from, char const* to) { normal.append(from, static_cast<std::size_t>(to - from)); }

  axsInputStack& in;
  axsEntities& all_entities;
  std::string normal;
};
