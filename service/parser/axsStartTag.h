#pragma once

#include "axsAttributeType.h"

#include <cstddef>
#include <string_view>
#include <vector>

class axsName;
class axsPrefixScope;

/// An attribute as a parser tells of it.
struct axsTagAttribute
{
  axsName const* name = nullptr;

  /// Empty for none; of "xmlns" and "xmlns:p" that of the declarations of namespaces.
  std::string_view name_space;

  /// Normalised as its type demands (XML 1.0, 3.3.3).
  std::string_view value;

  axsAttributeType type = axsAttributeType::cdata;

  /// Whether it stands in the start tag, and is no default.
  bool is_specified = true;

  /// Whether it declares a namespace (Namespaces in XML 1.0, 3).
  bool is_declaration = false;
};

/// A start tag, or the tag of an empty element, as a parser tells of it: with what the document type adds. A filter that
/// adds more passes on one of its own.
struct axsStartTag
{
  axsName const* name;

  /// Empty for none.
  std::string_view name_space;

  /// In their order, the defaults last.
  std::vector<axsTagAttribute> const* attributes;

  /// What is bound inside the element. Lives as long as the parser: asked during a later event, what is bound there.
  axsPrefixScope const* prefixes;
};
