#pragma once

#include <string>
#include <string_view>

/// What is done with white space before a value is looked at (XML Schema Part 2, 4.3.6 whiteSpace), from the least to the
/// most.
enum class axsWhiteSpace : unsigned char
{
  preserve,
  replace,
  collapse
};

namespace axsWhiteSpaces
{
/// "preserve", "replace" or "collapse".
std::string_view name(axsWhiteSpace kind) noexcept;

/// The text after what `kind` asks for: a part of `text` if that is enough, else `buffer`, which then holds it.
std::string_view normalised(std::string_view text, axsWhiteSpace kind, std::string& buffer);

/// The text without white space at both ends.
std::string_view trimmed(std::string_view text) noexcept;

/// Takes the first item off a list (Part 2, 2.5.1.2): what stands between white space. False when there is none left.
bool next_item(std::string_view& list, std::string_view& item) noexcept;
}
