#pragma once

#include <apString.h>

/// What is a name (XML 1.0, 2.3, [5] Name): as the parser has it, so that what can be made can be read again.
namespace axsXmlName
{
bool is_name(apString const& text) noexcept;
}
