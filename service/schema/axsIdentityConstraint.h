#pragma once

#include "axsSchemaName.h"
#include "axsSchemaPlace.h"

#include <optional>
#include <vector>

/// The restricted XPath of a {selector} or {fields} (Part 1, 3.11.6), its prefixes resolved.
struct axsIdentityPath
{
  struct Step
  {
    enum class Kind
    {
      self,
      child,
      attribute // the last one of a field only
    };

    Kind kind = Kind::child;
    /// Whether every name of the namespace is meant, or of any where that is empty too.
    bool any_local = false;
    bool any_name_space = false;
    axsSchemaName name;
  };

  struct Alternative
  {
    /// Whether it begins with ".//".
    bool from_descendants = false;
    std::vector<Step> steps;
  };

  std::vector<Alternative> alternatives;
  axsSchemaPlace place;
};

/// An identity-constraint definition (Part 1, 3.11.1).
struct axsIdentityConstraint
{
  enum class Category
  {
    unique,
    key,
    keyref
  };

  axsSchemaName name;
  Category category = Category::unique;
  axsIdentityPath selector;
  std::vector<axsIdentityPath> fields;
  /// The {referenced key} of a keyref.
  axsIdentityConstraint const* referenced = nullptr;
  axsSchemaPlace place;
};
