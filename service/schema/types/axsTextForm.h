#pragma once

#include <string_view>

/// The forms of text that types derived from string, and anyURI, ask for.
namespace axsTextForm
{
/// XML 1.0, 2.3, [5] Name and [7] Nmtoken; Namespaces in XML, [4] NCName.
bool is_name(std::string_view text) noexcept;
bool is_ncname(std::string_view text) noexcept;
bool is_nmtoken(std::string_view text) noexcept;

/// XML Schema Part 2, 3.3.3.
bool is_language(std::string_view text) noexcept;

/// Part 2, 3.2.17: a reference as RFC 2396 and RFC 2732 have it, once the characters that they do not allow are escaped.
bool is_uri(std::string_view text) noexcept;
}
