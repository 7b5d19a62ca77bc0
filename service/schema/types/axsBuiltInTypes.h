#pragma once

#include <string_view>

class axsSimpleType;

/// The built-in types (XML Schema Part 2, chapter 3): anySimpleType, the 19 primitive and the 25 derived ones. Made at the
/// first use, which may fail with std::bad_alloc, after which the next use makes them; they live as long as the process.
namespace axsBuiltInTypes
{
inline constexpr std::string_view name_space = "http://www.w3.org/2001/XMLSchema";

/// The type of that local name; null if there is none.
axsSimpleType const* find(std::string_view local_name);

/// The type of that local name, which is one.
axsSimpleType const& get(std::string_view local_name);

axsSimpleType const& any_simple_type();
}
