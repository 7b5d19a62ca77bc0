#include "axsSchemaFlags.h"

#include "axsSchemaElement.h"
#include "axsSchemaText.h"

namespace
{
using Field = axsSchemaField;

axsDerivationSet bit_of(std::string_view word)
{
  if (word == "extension")
    return axsDerivationExtension;
  if (word == "restriction")
    return axsDerivationRestriction;
  if (word == "substitution")
    return axsDerivationSubstitution;
  if (word == "list")
    return axsDerivationList;
  return word == "union" ? axsDerivationUnion : 0;
}

// Those of the words, or of those in the default, that are among `allowed`.
axsDerivationSet set_of(axsSchemaElement const& element, Field field, axsSchemaElement const& schema,
  Field default_field, axsDerivationSet allowed)
{
  std::string_view words = element.has(field) ? element.value(field) : schema.value(default_field);
  if (words == "#all")
    return allowed;
  unsigned made = 0;
  for (std::string_view word = axsSchemaText::next_item(words); !word.empty(); word = axsSchemaText::next_item(words))
    made |= bit_of(word);
  return static_cast<axsDerivationSet>(made & allowed);
}
}

bool axsSchemaFlags::is_true(std::string_view text) noexcept
{
  return text == "true" || text == "1";
}

axsDerivationSet axsSchemaFlags::final_of_simple_type(axsSchemaElement const& type, axsSchemaElement const& schema)
{
  return set_of(type, Field::final_value, schema, Field::final_default,
    axsDerivationExtension | axsDerivationRestriction | axsDerivationList | axsDerivationUnion);
}

axsDerivationSet axsSchemaFlags::final_of(axsSchemaElement const& element, axsSchemaElement const& schema)
{
  return set_of(
    element, Field::final_value, schema, Field::final_default, axsDerivationExtension | axsDerivationRestriction);
}

axsDerivationSet axsSchemaFlags::block_of_element(axsSchemaElement const& element, axsSchemaElement const& schema)
{
  return set_of(element, Field::block, schema, Field::block_default,
    axsDerivationExtension | axsDerivationRestriction | axsDerivationSubstitution);
}

axsDerivationSet axsSchemaFlags::block_of_complex_type(axsSchemaElement const& type, axsSchemaElement const& schema)
{
  return set_of(type, Field::block, schema, Field::block_default, axsDerivationExtension | axsDerivationRestriction);
}
