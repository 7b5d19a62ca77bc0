#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Bytes written as text (XML Schema Part 2, 3.2.15 and 3.2.16).
namespace axsBinary
{
/// Reads the lexical form and appends the bytes, unless `bytes` is null; counts them. Whether the text is one. What it has
/// appended otherwise does not count.
bool read_hex(std::string_view text, std::string* bytes, std::size_t& count);
bool read_base64(std::string_view text, std::string* bytes, std::size_t& count);
}
