#pragma once

#include "axsNode.h"

#include <apString.h>
#include <axmDocument.h>
#include <axmNamedNodeMap.h>
#include <axmNodeList.h>

#include <memory>

class axsElement;

/// The operations on the tree: those of the node interface, checked, and those of the reading room, which knows that
/// what it builds is right. None recurses.
class axsTree
{
public:
  // The node interface.
  static apString node_name(axsNode const& node);
  static std::shared_ptr<axmNode> handle(axsNode* node) { return node == nullptr ? nullptr : node->handle(); }
  static std::shared_ptr<axmNodeList> children(axsNode& node);
  static std::shared_ptr<axmDocument> owner_document(axsNode& node);
  static std::shared_ptr<axmNode> insert_before(
    axsNode& node, std::shared_ptr<axmNode> const& new_child, std::shared_ptr<axmNode> const& ref_child);
  static std::shared_ptr<axmNode> replace_child(
    axsNode& node, std::shared_ptr<axmNode> const& new_child, std::shared_ptr<axmNode> const& old_child);
  static std::shared_ptr<axmNode> remove_child(axsNode& node, std::shared_ptr<axmNode> const& old_child);
  static apString text(axsNode const& node);
  static void set_text(axsNode& node, apString const& text);
  static apString xml(axsNode const& node);
  static std::shared_ptr<axmNodeList> select_nodes(axsNode& context, apString const& xpath);
  static std::shared_ptr<axmNode> select_single_node(axsNode& context, apString const& xpath);

  /// Links a detached node that is not busy as the last child of `parent`, unchecked.
  static void append(axsParent& parent, axsNode& child) noexcept;

  /// Frees a tree of which no node is busy, attributes included. Its root must be linked to nothing.
  static void free_tree(axsNode& root) noexcept;

private:
  static void link(axsParent& parent, axsNode& child, axsNode* before) noexcept;
  static void unlink(axsNode& child) noexcept;
  static void detach(axsNode& child) noexcept;
  static void move(axsParent& parent, axsNode& child, axsNode* before) noexcept;
};
