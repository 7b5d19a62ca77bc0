#include "axsSchemaVocabulary.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace
{
// In the order of the enumerations, which is that of the names.
constexpr std::string_view tags[] = {"all", "annotation", "any", "anyAttribute", "appinfo", "attribute",
  "attributeGroup", "choice", "complexContent", "complexType", "documentation", "element", "enumeration", "extension",
  "field", "fractionDigits", "group", "import", "include", "key", "keyref", "length", "list", "maxExclusive",
  "maxInclusive", "maxLength", "minExclusive", "minInclusive", "minLength", "notation", "pattern", "redefine",
  "restriction", "schema", "selector", "sequence", "simpleContent", "simpleType", "totalDigits", "union", "unique",
  "whiteSpace"};

constexpr std::string_view fields[] = {"abstract", "attributeFormDefault", "base", "block", "blockDefault", "default",
  "elementFormDefault", "final", "finalDefault", "fixed", "form", "id", "itemType", "maxOccurs", "memberTypes",
  "minOccurs", "mixed", "name", "namespace", "nillable", "processContents", "public", "ref", "refer", "schemaLocation",
  "source", "substitutionGroup", "system", "targetNamespace", "type", "use", "value", "version", "xml:lang", "xpath"};

static_assert(std::size(tags) == static_cast<std::size_t>(axsSchemaTag::other));
static_assert(std::size(fields) == static_cast<std::size_t>(axsSchemaField::other));

template <class Value, std::size_t count>
Value found(std::string_view const (&names)[count], std::string_view wanted) noexcept
{
  auto const at = std::lower_bound(std::begin(names), std::end(names), wanted);
  bool const is_there = at != std::end(names) && *at == wanted;
  return is_there ? static_cast<Value>(at - std::begin(names)) : Value::other;
}
}

axsSchemaTag axsSchemaVocabulary::tag(std::string_view local) noexcept
{
  return found<axsSchemaTag>(tags, local);
}

axsSchemaField axsSchemaVocabulary::field(std::string_view local) noexcept
{
  return found<axsSchemaField>(fields, local);
}

std::string_view axsSchemaVocabulary::name(axsSchemaTag tag) noexcept
{
  return tag == axsSchemaTag::other ? std::string_view() : tags[static_cast<std::size_t>(tag)];
}

std::string_view axsSchemaVocabulary::name(axsSchemaField field) noexcept
{
  return field == axsSchemaField::other ? std::string_view() : fields[static_cast<std::size_t>(field)];
}
