#pragma once

#include "axsAttributeType.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

class axsAttributeList;
class axsName;
struct axsPrefix;

/// A name of a document as its parser needs it: the name of the tree, and what namespaces make of it.
struct axsReadName
{
  axsName const* name;

  /// What stands before the colon; null without one.
  axsPrefix const* prefix;

  /// Of "xmlns" and "xmlns:p", which declare a namespace: the prefix that they bind; null of other names.
  axsPrefix* declared;

  /// Whether it is a name without a colon, or two with one between them (Namespaces in XML, 4, [7] QName).
  bool is_qualified;

  /// The number of the last element that had an attribute of that name.
  std::uint64_t last_element = 0;

  /// What is declared of the attributes of elements of that name; null if nothing is.
  axsAttributeList* attributes = nullptr;
};

/// An attribute of the element that is being read.
struct axsReadAttribute
{
  axsReadName const* name;
  std::string_view value;

  /// Where its name stands; null of a default.
  char const* at = nullptr;

  axsAttributeType type = axsAttributeType::cdata;
};
