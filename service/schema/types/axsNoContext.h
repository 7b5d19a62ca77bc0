#pragma once

#include "axsValueContext.h"

/// Where nothing is declared: no prefix, no entity, no notation; names without a prefix are in no namespace.
class axsNoContext : public axsValueContext
{
public:
  bool find_namespace(std::string_view prefix, std::string_view& uri) const override
  {
    uri = {};
    return prefix.empty();
  }

  bool is_unparsed_entity(std::string_view) const override { return false; }
  bool is_notation(std::string_view, std::string_view) const override { return false; }
};
