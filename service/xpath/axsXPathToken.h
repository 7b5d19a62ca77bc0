#pragma once

#include <cstddef>
#include <string_view>

/// A token of an XPath expression (XPath 1.0, section 3.7). A plain value whose views point into the expression.
struct axsXPathToken
{
  enum Kind
  {
    end,
    wrong,
    left_parenthesis,
    right_parenthesis,
    left_bracket,
    right_bracket,
    dot,
    dot_dot,
    at,
    comma,
    slash,
    double_slash,
    bar,
    plus,
    minus,
    equal,
    not_equal,
    less,
    less_equal,
    greater,
    greater_equal,
    operator_and,
    operator_or,
    operator_mod,
    operator_div,
    operator_multiply,
    /// A name test: `local` is a name or "*", with a prefix or without one.
    name_test,
    /// A name that an opening parenthesis follows.
    function_name,
    node_type,
    /// The name of an axis; the two colons after it belong to the token.
    axis_name,
    variable,
    /// `local` holds the text without its quotes.
    literal,
    /// `local` holds the digits.
    number
  };

  Kind kind = end;

  /// Where the token starts, counted in bytes from 0.
  std::size_t position = 0;

  std::string_view prefix;
  std::string_view local;

  /// Of a wrong token, what is wrong with it.
  char const* problem = nullptr;

  /// Whether an operator may not follow: what decides between a name and an operator that is spelt like one.
  bool expects_operand() const noexcept
  {
    switch (kind)
    {
    case left_parenthesis:
    case left_bracket:
    case at:
    case comma:
    case axis_name:
      return true;
    default:
      return kind >= slash && kind <= operator_multiply;
    }
  }
};
