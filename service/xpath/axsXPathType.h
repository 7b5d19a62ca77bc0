#pragma once

/// The types of XPath 1.0. As a variable keeps its type, every expression shows its own before it is evaluated.
enum class axsXPathType
{
  node_set,
  boolean,
  number,
  string
};
