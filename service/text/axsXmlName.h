#pragma once

#include <apString.h>

/// What is a name (XML 1.0, fifth edition, 2.3, [5] Name).
namespace axsXmlName
{
bool is_name(apString const& text) noexcept;
}
