#pragma once

#include <array>
#include <string_view>

/// The encodings of one byte a character that begin with ASCII: ISO 8859, windows-125x, KOI8. Safe from several threads
/// at once.
namespace axsSingleByteSets
{
/// What the bytes from 0x80 on stand for; 0 where a byte stands for nothing.
using Characters = std::array<char16_t, 128>;

/// Those of the encoding `name`, as axsEncodingName has it; null if it is none of them.
Characters const* find(std::string_view name) noexcept;
}
