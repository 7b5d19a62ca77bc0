#pragma once

#include "axsDtd.h"
#include "axsPrefixScope.h"
#include "axsSchemaComponents.h"
#include "axsValueContext.h"

#include <memory>
#include <string>
#include <string_view>

/// What surrounds the values of a document where the parser is.
class axsDocumentContext final : public axsValueContext
{
public:
  explicit axsDocumentContext(axsSchemaComponents const& given) : schema(given) {}

  void set_doctype(std::shared_ptr<axsDtd const> const& type) { doctype = type; }

  /// Prefixes are those that `scope` has when they are asked for.
  void look_up_in(axsPrefixScope const& scope) noexcept { prefixes = &scope; }

  bool find_namespace(std::string_view prefix, std::string_view& uri) const override
  {
    uri = prefixes->namespace_of(prefix);
    return prefix.empty() || !uri.empty();
  }

  bool is_unparsed_entity(std::string_view name) const override
  {
    if (doctype == nullptr)
      return false;
    auto const found = doctype->entities.find(std::string(name));
    return found != doctype->entities.end() && !found->second.notation.empty();
  }

  bool is_notation(std::string_view uri, std::string_view local_name) const override
  {
    return schema.has_notation(uri, local_name);
  }

private:
  axsSchemaComponents const& schema;
  std::shared_ptr<axsDtd const> doctype;
  axsPrefixScope const* prefixes = nullptr;
};
