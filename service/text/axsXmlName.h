#pragma once

#include <apString.h>

#include <string_view>

/// What is a name (XML 1.0, fifth edition, 2.3, [5] Name).
namespace axsXmlName
{
bool is_name(apString const& text) noexcept;

/// Whether a name, in UTF-8, has no colon or one between two names (Namespaces in XML, 4, [7] QName). Throws
/// std::bad_alloc when memory runs out.
bool is_qualified(std::string_view name);
}
