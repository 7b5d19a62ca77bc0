#pragma once

#include <string>

/// The {value constraint} of a declaration or an attribute use (Part 1, 3.2.1, 3.3.1, 3.5.1).
struct axsValueConstraint
{
  enum class Kind
  {
    none,
    default_value,
    fixed
  };

  Kind kind = Kind::none;
  /// In its lexical form, as the schema document has it.
  std::string value;
  /// The value itself (axsValue::bytes) in the type of the declaration, with what it names resolved where it is declared;
  /// the lexical form where the content of that type is mixed.
  std::string bytes;
};
