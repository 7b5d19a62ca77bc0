#pragma once

/// The types of XPath 1.0. Without variables, every expression shows its type before it is evaluated.
enum class axsXPathType
{
  node_set,
  boolean,
  number,
  string
};
