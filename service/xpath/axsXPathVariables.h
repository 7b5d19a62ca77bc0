#pragma once

#include "axsXPathType.h"

#include <map>
#include <string>
#include <string_view>
#include <type_traits>

/// The value of a variable of an expression: a boolean, a number or a string in UTF-8 (XPath 1.0, 3.1). A plain value, made
/// from those of C++: `{{"year", 2000}, {"name", "Bell"}, {"all", true}}`.
struct axsXPathVariable
{
  template <class T, std::enable_if_t<std::is_arithmetic_v<T>, int> = 0>
  axsXPathVariable(T value)
    : type(std::is_same_v<T, bool> ? axsXPathType::boolean : axsXPathType::number),
      number(static_cast<double>(value))
  {
  }
  axsXPathVariable(std::string_view value) : type(axsXPathType::string), text(value) {}
  axsXPathVariable(std::string const& value) : type(axsXPathType::string), text(value) {}
  axsXPathVariable(char const* value) : type(axsXPathType::string), text(value == nullptr ? "" : value) {}

  axsXPathType type;
  /// Of a boolean 0 or 1.
  double number = 0;
  std::string text;
};

/// Variables by their names, which have no prefixes.
using axsXPathVariables = std::map<std::string, axsXPathVariable>;
