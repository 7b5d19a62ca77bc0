#pragma once

#include "axsSchemaDocument.h"

#include <string>
#include <string_view>
#include <vector>

/// A schema document as part of a set: with the namespace that its components are in, which for a document without one is
/// that of the document that includes it (Part 1, 4.2.1).
struct axsSchemaUnit
{
  struct Redefinition
  {
    axsSchemaElement const* element;
    axsSchemaUnit const* redefined;
  };

  struct Import
  {
    std::string_view name_space;
    /// Why nothing was read for it, as "its import names no schema"; empty if something was.
    std::string unread;
  };

  axsSchemaDocument const* document = nullptr;
  std::string target;
  /// Whether the namespace is not the document's own.
  bool is_chameleon = false;
  /// The namespaces that the document imports, beside its own those that it may refer to (src-resolve).
  std::vector<Import> imports;
  std::vector<Redefinition> redefinitions;
  /// What it includes and redefines.
  std::vector<axsSchemaUnit const*> included;

  /// Whether names of that namespace may be referred to in the document.
  bool sees(std::string_view name_space) const noexcept
  {
    return name_space == target || import_of(name_space) != nullptr;
  }

  /// The first import of that namespace; null without one.
  Import const* import_of(std::string_view name_space) const noexcept
  {
    for (Import const& imported : imports)
      if (imported.name_space == name_space)
        return &imported;
    return nullptr;
  }
};
