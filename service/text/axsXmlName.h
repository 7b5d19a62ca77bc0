#pragma once

#include <apString.h>

/// What is a name (XML 1.0, fifth edition, 2.3, [5] Name).
namespace axsXmlName
{
bool is_name(apString const& text) noexcept;

/// Whether a name may begin with the character ([4] NameStartChar), and whether it may stand further on ([4a] NameChar).
bool is_start(char32_t character) noexcept;
bool is_part(char32_t character) noexcept;
}
