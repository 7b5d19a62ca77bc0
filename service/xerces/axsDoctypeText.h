#pragma once

#include <string>
#include <string_view>

/// Looks at the beginning of a document for its document type declaration, without parsing it.
namespace axsDoctypeText
{
/// Whether a document that begins like this is known to have none: its root element begins in `head`, which is in an
/// encoding that has ASCII at its bottom, and no declaration stands before it.
bool is_absent(std::string_view head) noexcept;

/// The declaration, from "<!DOCTYPE" to ">", of a document in UTF-8 that has a well-formed one; empty without one.
std::string_view find(std::string_view document) noexcept;
}
