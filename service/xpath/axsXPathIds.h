#pragma once

#include "axsTextHash.h"

#include <string_view>
#include <unordered_map>
#include <unordered_set>

class axsElement;
class axsNode;

/// The elements of one tree by their unique ID (XPath 1.0, section 5.2.1).
///
/// An ID is the value of an attribute xml:id, or of one that an attribute-list declaration in the document's internal
/// subset declares to be of the type ID. External subsets are not read, and parameter entities not expanded. If several
/// elements have one ID, the first in document order has it. Good for as long as the document does not change.
class axsXPathIds
{
public:
  /// Of the tree that `top` is the topmost node of. Throws std::bad_alloc when memory runs out.
  explicit axsXPathIds(axsNode& top);

  /// The element with that ID, null if there is none.
  axsNode* find(std::string_view id) const;

private:
  void read_declarations(std::string_view doctype);
  void read_attribute_list(std::string_view declaration);
  void add(axsElement& element);

  // The declared attributes of the type ID, by the name of the element.
  std::unordered_map<std::string_view, std::unordered_set<std::string_view, axsTextHash>, axsTextHash> declared;
  std::unordered_map<std::string_view, axsNode*, axsTextHash> elements;
};
