#pragma once

#include <string>
#include <string_view>

/// Binary floating-point numbers (XML Schema Part 2, 3.2.4 and 3.2.5), whatever the locale.
namespace axsFloat
{
/// Reads the lexical form and appends the nearest float or double in a form that is the same exactly for the same number and
/// that memcmp orders; of NaN, which is in no order, nothing. Numbers too large become INF. Whether the text is one.
bool append32(std::string_view text, std::string& bytes);
bool append64(std::string_view text, std::string& bytes);
}
