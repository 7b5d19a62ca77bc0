#pragma once

#include <string>

/// The {value constraint} of a declaration or an attribute use (Part 1, 3.2.1, 3.3.1, 3.5.1): a value in its lexical form.
struct axsValueConstraint
{
  enum class Kind
  {
    none,
    default_value,
    fixed
  };

  Kind kind = Kind::none;
  std::string value;
};
