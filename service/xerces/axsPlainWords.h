#pragma once

#include <string>

/// What the parser says of documents that are not well-formed or not valid, in words for those who write documents:
/// what is wrong and, where it helps, how it is written right.
namespace axsPlainWords
{
/// For the parser's error `code` (XMLErrs) with its `text`. `open_since` is the line in which the innermost element that
/// is open began, 0 if that is not known.
std::string of(unsigned int code, std::string const& text, int open_since);

/// The same for the validator's error `code` (XMLValid).
std::string of_validity(unsigned int code, std::string const& text);

/// The same for an exception `code` (XMLExcepts) of the parser's.
std::string of_exception(unsigned int code, std::string const& text);

/// What such a text has in quotes, the first ones or those of another `number`.
std::string quoted_in(std::string const& text, int number);
}
