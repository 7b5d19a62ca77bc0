#pragma once

#include "axsTextHash.h"

#include <string_view>
#include <unordered_map>

class axsElement;
class axsIdAttributes;
class axsName;
class axsNode;

/// The elements of one tree by their unique ID (XPath 1.0, section 5.2.1).
///
/// An ID is the value of an attribute xml:id, or of one that the document type declares to be of the type ID. If several
/// elements have one ID, the first in document order has it. Good for as long as the document does not change.
class axsXPathIds
{
public:
  /// Of the tree that `top` is the topmost node of. Throws std::bad_alloc when memory runs out.
  explicit axsXPathIds(axsNode& top);

  /// The element with that ID, null if there is none.
  axsNode* find(std::string_view id) const;

private:
  void add(axsElement& element);

  // Null where there is no document type, or none any more.
  axsIdAttributes const* declared;
  axsName const* xml_id;
  std::unordered_map<std::string_view, axsNode*, axsTextHash> elements;
};
