#pragma once

#include "axsInputStack.h"

#include <cstddef>
#include <string>
#include <string_view>

class axsEntities;

/// Reads the values of attributes and normalises them (3.3.3).
class axsAttributeValue
{
public:
  /// Refers to both, which must live longer.
  axsAttributeValue(axsInputStack& input, axsEntities& entities) : in(input), all_entities(entities) {}

  /// Reads the value in quotes at `p` and moves after it, if it stands there as it is, in plain characters. Whether it
  /// does; `p` stays where it is otherwise. Most values do.
  bool read_plain(char const*& p, std::string_view& value) const
  {
    char const quote = *p;
    if (quote != '"' && quote != '\'')
      return false;
    char const* const from = p + 1;
    char const* const end = in.end_of_value(from, quote);
    if (*end != quote || in.is_xml_1_1())
      return false;
    value = {from, static_cast<std::size_t>(end - from)};
    p = end + 1;
    return true;
  }

  /// Reads the value in quotes at `p` of the attribute `name` and moves after it. What comes out is the value as that of an
  /// attribute of character data: it stands where it was read or, where it does not stand there as it is, at the end of
  /// `made()`, which moves when more is read. Throws as the input does.
  std::string_view read(char const*& p, std::string_view name);

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
  bool pass(char const*& p, char quote);
  void change_input(char const*& p);
  void expand(char const*& p);
  [[noreturn]] void fail_at_less_than(char const* p, std::string_view name) const;
  void take(char const* from, char const* to) { normal.append(from, static_cast<std::size_t>(to - from)); }

  axsInputStack& in;
  axsEntities& all_entities;
  std::string normal;
};
