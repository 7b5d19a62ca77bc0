#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// What attributes of schema documents say, by their types (Part 1, appendix A). White space is collapsed beforehand.
namespace axsSchemaText
{
bool is_ncname(std::string_view text) noexcept;
bool is_boolean(std::string_view text) noexcept;

/// A name with or without prefix (Namespaces in XML, 4).
bool is_qname(std::string_view text) noexcept;

/// A number of occurrences. Those beyond 64 bits are taken for the largest but one; nothing for what is no number.
std::optional<std::uint64_t> count(std::string_view text) noexcept;

/// Without white space at both ends.
std::string_view trimmed(std::string_view text) noexcept;

/// Takes the first of the items off a list, empty at its end.
std::string_view next_item(std::string_view& list) noexcept;

/// The parts of a name; the prefix is empty where there is none.
std::string_view prefix(std::string_view qname) noexcept;
std::string_view local(std::string_view qname) noexcept;

/// In single quotes, for a message.
std::string quoted(std::string_view text);

/// The message that a declaration, an "attribute" or "element", has a type that lacks notations (axsSimpleType).
std::string lacks_notations(std::string_view what, std::string_view name);
}
