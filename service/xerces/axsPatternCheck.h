#pragma once

#include <cstddef>
#include <string_view>

/// Whether the validator can bear a pattern (XML Schema Part 2, appendix F). It goes down by recursion for parentheses,
/// and without end where something repeats that may be empty and repeats in itself.
namespace axsPatternCheck
{
/// How deep parentheses may be nested.
constexpr std::size_t most_levels = 100;

/// What to say of a pattern that it cannot bear; null for any other, be it right or wrong.
char const* fault(std::string_view pattern);
}
