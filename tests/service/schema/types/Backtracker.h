#pragma once

#include <string_view>

/// Matches short values with regular expressions of XML Schema by trying all ways, over the text of the expression itself:
/// slow, and so plain that it is the judge of the automata. It knows ASCII, '.', classes of characters and ranges with
/// subtraction, \d, \s, parentheses, branches and quantifiers, and takes the expression to be right.
namespace backtracker
{
bool matches(std::string_view expression, std::string_view value);
}
