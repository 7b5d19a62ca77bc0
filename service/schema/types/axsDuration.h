#pragma once

#include "axsValue.h"

#include <string>
#include <string_view>

/// Spans of time (XML Schema Part 2, 3.2.6): months and seconds, of any number of digits.
namespace axsDuration
{
/// Reads the lexical form and appends the span to `bytes`, in a form that is the same exactly for the same span. False,
/// with nothing appended that counts, if the text is none.
bool append(std::string_view text, std::string& bytes);

/// The order of two spans appended (3.2.6.2): that of the four points of time that they lead to, where those agree. Of two
/// spans of which one has more months and the other more seconds, one or both beyond 12 digits, none where they differ by
/// less than a millionth.
axsValue::Order compare(std::string_view left, std::string_view right);
}
