#pragma once

#include <apString.h>

#include <xercesc/util/XercesDefs.hpp>

#include <string>
#include <string_view>

/// The parser's texts, which are UTF-16, in ours and the other way round.
namespace axsUtf16
{
/// Adds the `length` units at `text` to `utf8`; what is not Unicode becomes U+FFFD.
void append_utf8(XMLCh const* text, std::size_t length, std::string& utf8);

std::string to_utf8(XMLCh const* text);
apString to_string(XMLCh const* text);

std::basic_string<XMLCh> from_utf8(std::string_view utf8);
std::basic_string<XMLCh> from_string(apString const& text);

/// The number of units before the closing 0; 0 if `text` is null.
std::size_t length(XMLCh const* text) noexcept;
}
