#pragma once

#include "axmCommentNode.h"
#include "axmDocument.h"
#include "axmElement.h"
#include "axmNamedNodeMap.h"
#include "axmNode.h"
#include "axmProcessingInstruction.h"
#include "axmTextNode.h"

#include <memory>

namespace axm
{
/// What a node is (DOM Core, nodeType).
enum class node_kind
{
  element,
  attribute,
  text,
  comment,
  processing_instruction,
  document,
  document_type
};

/// Whether `node` is an element. Lists hand out every node as an axmElement, texts and attributes too, so that a cast
/// does not tell. Cost: O(1).
inline bool is_element(axmNode const& node)
{
  // Of all nodes, only elements have a map of attributes.
  return dynamic_cast<axmElement const*>(&node) != nullptr && const_cast<axmNode&>(node).getAttributes() != nullptr;
}

/// The element that `node` is, empty if it is none or `node` is empty. Right for items of lists, too.
inline std::shared_ptr<axmElement> as_element(std::shared_ptr<axmNode> const& node)
{
  return node != nullptr && is_element(*node) ? std::dynamic_pointer_cast<axmElement>(node) : nullptr;
}

/// What `node` is, be it held by its own interface or as an item of a list. Cost: O(1).
inline node_kind kind(axmNode& node)
{
  if (is_element(node))
    return node_kind::element;
  apString const name = node.getNodeName();
  if (name == APSTRING("#text") || name == APSTRING("#cdata-section"))
    return node_kind::text;
  if (name == APSTRING("#comment"))
    return node_kind::comment;
  if (name == APSTRING("#document"))
    return node_kind::document;
  if (dynamic_cast<axmProcessingInstruction*>(&node) != nullptr)
    return node_kind::processing_instruction;
  // An item of a list is asked for by its neighbours, who know it by its own interface.
  std::shared_ptr<axmNode> const next = node.getNextSibling();
  std::shared_ptr<axmNode> const previous = node.getPreviousSibling();
  std::shared_ptr<axmNode> const parent = node.getParentNode();
  std::shared_ptr<axmNode> const self = next != nullptr       ? next->getPreviousSibling()
                                        : previous != nullptr ? previous->getNextSibling()
                                        : parent != nullptr   ? parent->getFirstChild()
                                                              : nullptr;
  if (self == nullptr)
    return node_kind::attribute;
  return std::dynamic_pointer_cast<axmProcessingInstruction>(self) != nullptr ? node_kind::processing_instruction
                                                                              : node_kind::document_type;
}
}
