#pragma once

#include "axsSchemaVocabulary.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>

/// The namespace declarations of one element of a schema document and, through `outer`, of those around it. Lives in the
/// document.
struct axsSchemaScope
{
  struct Binding
  {
    std::string_view prefix;
    std::string_view name_space;
  };

  axsSchemaScope const* outer = nullptr;
  /// Sorted by prefix.
  Binding const* bindings = nullptr;
  std::size_t count = 0;

  /// What the prefix is bound to; for the empty one the default namespace, empty without one. Nothing for a prefix that is
  /// not bound.
  std::optional<std::string_view> find(std::string_view prefix) const noexcept
  {
    for (axsSchemaScope const* scope = this; scope != nullptr; scope = scope->outer)
    {
      Binding const* const end = scope->bindings + scope->count;
      Binding const* const at = std::lower_bound(
        scope->bindings, end, prefix, [](Binding const& left, std::string_view right) { return left.prefix < right; });
      if (at != end && at->prefix == prefix)
        return at->name_space.empty() && !prefix.empty() ? std::nullopt : std::optional(at->name_space);
    }
    if (prefix == "xml")
      return axsSchemaVocabulary::xml_namespace;
    return prefix.empty() ? std::optional(std::string_view()) : std::nullopt;
  }
};
