#pragma once

#include "axsCharacterSet.h"

#include <string_view>

/// The sets of characters that regular expressions of XML Schema name (Part 2, appendix F.1.1), of the version of Unicode that
/// axsUnicodeTables has.
namespace axsUnicode
{
/// Those of a general category, such as "Lu", or of all that begin with a letter, such as "L". Whether there is one.
bool find_category(std::string_view name, axsCharacterSet& set);

/// Those of a block, by its name without spaces, such as "BasicLatin". Whether there is one.
bool find_block(std::string_view name, axsCharacterSet& set);

/// \i and \c: what names begin with, and consist of, as the parser reads them (XML 1.0, fifth edition, [4] NameStartChar, [4a]
/// NameChar), so that every name of a document is matched by \i\c*.
axsCharacterSet name_starts();
axsCharacterSet name_parts();
}
