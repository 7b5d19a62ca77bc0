#pragma once

#include "axsDerivation.h"

#include <string_view>

struct axsSchemaElement;

/// What "final" and "block" and their defaults on xs:schema say (Part 1, 3.3.2, 3.4.2, 3.14.2).
namespace axsSchemaFlags
{
/// A boolean (Part 2, 3.2.2).
bool is_true(std::string_view text) noexcept;

/// `schema` is the root of the document.
axsDerivationSet final_of_simple_type(axsSchemaElement const& type, axsSchemaElement const& schema);
axsDerivationSet final_of(axsSchemaElement const& element, axsSchemaElement const& schema);
axsDerivationSet block_of_element(axsSchemaElement const& element, axsSchemaElement const& schema);
axsDerivationSet block_of_complex_type(axsSchemaElement const& type, axsSchemaElement const& schema);
}
