#pragma once

/// The characters of XML 1.0 (2.2 and 2.3) that every floor has to know. Safe from several threads at once.
namespace utXmlCharacter
{
/// White space: [3] S.
constexpr bool is_space(char32_t code) noexcept
{
  return code == ' ' || code == '\t' || code == '\n' || code == '\r';
}

constexpr bool is_space(char byte) noexcept
{
  return byte == ' ' || byte == '\t' || byte == '\n' || byte == '\r';
}

/// What a document may have in it: [2] Char.
constexpr bool is_character(char32_t code) noexcept
{
  if (code < 0x20)
    return code == '\t' || code == '\n' || code == '\r';
  return code <= 0xD7FF || (code >= 0xE000 && code <= 0xFFFD) || (code >= 0x10000 && code <= 0x10FFFF);
}
}
