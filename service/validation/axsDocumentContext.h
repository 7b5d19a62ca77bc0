#pragma once

#include "axsDtd.h"
#include "axsPrefixScope.h"
#include "axsSchemaComponents.h"
#include "axsValueContext.h"

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// What surrounds the values of a document where the parser is.
class axsDocumentContext final : public axsValueContext
{
public:
  explicit axsDocumentContext(axsSchemaComponents const& given) : schema(given) {}

  void set_doctype(std::shared_ptr<axsDtd const> const& type) { doctype = type; }

  /// The prefixes in scope are those of `scope` now.
  void look_up_in(axsPrefixScope const& scope)
  {
    prefixes = &scope;
    kept.clear();
  }

  /// Keeps what the prefixes in `text` stand for: where its element ends, they are in scope no more.
  void keep(std::string_view text)
  {
    kept.clear();
    keep_prefix({});
    for (std::size_t colon = text.find(':'); colon != std::string_view::npos; colon = text.find(':', colon + 1))
    {
      std::size_t const before = text.find_last_of(" \t\r\n", colon);
      std::size_t const begin = before == std::string_view::npos ? 0 : before + 1;
      keep_prefix(text.substr(begin, colon - begin));
    }
  }

  bool find_namespace(std::string_view prefix, std::string_view& uri) const override
  {
    for (auto const& [known, space] : kept)
      if (known == prefix)
        return is_bound(prefix, uri = space);
    return is_bound(prefix, uri = prefixes->namespace_of(prefix));
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
  static bool is_bound(std::string_view prefix, std::string_view uri) noexcept
  {
    return prefix.empty() || !uri.empty();
  }

  void keep_prefix(std::string_view prefix)
  {
    for (auto const& known : kept)
      if (known.first == prefix)
        return;
    kept.emplace_back(prefix, prefixes->namespace_of(prefix));
  }

  axsSchemaComponents const& schema;
  std::shared_ptr<axsDtd const> doctype;
  axsPrefixScope const* prefixes = nullptr;
  std::vector<std::pair<std::string, std::string>> kept;
};
