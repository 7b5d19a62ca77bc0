#pragma once

#include "axsNode.h"

#include <apString.h>
#include <axmDocument.h>
#include <axmNode.h>
#include <axmNodeList.h>

#include <memory>

/// What the node interface does, for nodes of every kind; see axmNode for the contracts. Handles that are given may be
/// null or of another engine. All that return a handle or a text throw std::bad_alloc when memory runs out; none recurses.
namespace axsDomOperations
{
std::shared_ptr<axmNode> parent(axsNode& node);
std::shared_ptr<axmNode> first_child(axsNode& node);
std::shared_ptr<axmNode> last_child(axsNode& node);
std::shared_ptr<axmNode> previous_sibling(axsNode& node);
std::shared_ptr<axmNode> next_sibling(axsNode& node);
std::shared_ptr<axmNodeList> children(axsNode& node);
std::shared_ptr<axmDocument> owner_document(axsNode& node);

/// Null where DOM Core has an exception; otherwise what the interface returns. Inserting a node that has children takes a
/// step for each level above the place.
std::shared_ptr<axmNode> insert_before(
  axsNode& node, std::shared_ptr<axmNode> const& new_child, std::shared_ptr<axmNode> const& ref_child);
std::shared_ptr<axmNode> replace_child(
  axsNode& node, std::shared_ptr<axmNode> const& new_child, std::shared_ptr<axmNode> const& old_child);
std::shared_ptr<axmNode> remove_child(axsNode& node, std::shared_ptr<axmNode> const& old_child);

/// Whether `node` stands for `record`, as the node itself or a view of it.
bool is_node(axmNode const& node, axsNode const& record) noexcept;

/// False for a node of a shared document, which is reported.
bool may_change(axsNode const& node);

/// Makes `utf8` the text that a caller gives for a value. False where it is not Unicode, which is reported.
bool to_utf8(apString const& text, utString& utf8);

apString text(axsNode const& node);

/// Changes nothing where the text is not Unicode or the document is shared, which is reported.
void set_text(axsNode& node, apString const& text);

/// Empty where XML cannot hold the node.
apString xml(axsNode const& node);

/// An expression that is wrong, or gives no node-set, selects nothing.
std::shared_ptr<axmNodeList> select_nodes(axsNode& context, apString const& xpath);
std::shared_ptr<axmNode> select_single_node(axsNode& context, apString const& xpath);
}
