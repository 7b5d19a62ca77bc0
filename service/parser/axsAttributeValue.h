#pragma once

#include "axsCharacters.h"

#include <string>
#include <string_view>

class axsEntities;

/// The values of attributes, in memory as axsCharacters wants it.
namespace axsAttributeValue
{
/// Reads the value in quotes at `at`, moves behind it and normalises it as that of an attribute of character data
/// (3.3.3). `value` refers to where it stands, or to the end of `normal`, to which it was appended where it does not
/// stand as it is. Its references are those that axsReference reads and, unless that is null, those to `entities`. False
/// where there is no such value; `at` is then where that shows, unless the entities lack something.
inline bool read(char const*& at, std::string& normal, std::string_view& value, axsEntities* entities);

/// Makes of a value that was read what it is to an attribute of tokens: no spaces at its ends, and one where there are
/// several (3.3.3). `normal` is what it was read with, and nothing was appended to it since.
void collapse(std::string& normal, std::string_view& value);

/// The same as read(), for values in which there is something to be looked at.
bool read_special(char const*& at, std::string& normal, std::string_view& value, axsEntities* entities);
}

// Most values are plain ASCII.
inline bool axsAttributeValue::read(
  char const*& at, std::string& normal, std::string_view& value, axsEntities* entities)
{
  char const* end = at;
  if (!axsCharacters::read_literal(end, value))
    return read_special(at, normal, value, entities);
  at = end;
  return true;
}
