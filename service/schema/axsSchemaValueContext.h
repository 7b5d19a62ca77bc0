#pragma once

#include "axsSchemaScope.h"
#include "axsSchemaSymbols.h"
#include "axsValueContext.h"

/// What surrounds values in schema documents: the namespaces in scope where they stand, and the notations of the set.
class axsSchemaValueContext final : public axsValueContext
{
public:
  axsSchemaValueContext(axsSchemaSymbols& names, axsSchemaScope const* of) : symbols(names), scope(of) {}

  bool find_namespace(std::string_view prefix, std::string_view& uri) const override
  {
    std::optional<std::string_view> const bound = scope->find(prefix);
    uri = bound.value_or(std::string_view());
    return bound.has_value();
  }

  // Which entities there are, a document says.
  bool is_unparsed_entity(std::string_view) const override { return true; }

  bool is_notation(std::string_view uri, std::string_view local_name) const override
  {
    return symbols.find(axsSchemaSymbol::Space::notation, {uri, local_name}) != nullptr;
  }

private:
  axsSchemaSymbols& symbols;
  axsSchemaScope const* scope;
};
