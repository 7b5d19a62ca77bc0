#pragma once

/// The axes of XPath 1.0 (section 2.2).
enum class axsXPathAxis
{
  ancestor,
  ancestor_or_self,
  attribute,
  child,
  descendant,
  descendant_or_self,
  following,
  following_sibling,
  namespace_,
  parent,
  preceding,
  preceding_sibling,
  self
};
