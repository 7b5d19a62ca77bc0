#pragma once

#include "axsXPathAxis.h"
#include "axsXPathMeter.h"
#include "axsXPathNode.h"
#include "axsXPathNodeTest.h"
#include "axsXPathScopes.h"
#include "axsXPathVisitor.h"

#include "axsElement.h"
#include "axsName.h"
#include "axsNode.h"

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

/// The tree as the data model of XPath 1.0 (section 5):
///
/// - Adjacent texts, CDATA sections included, are one text node, which the first of them represents. A text node has at
///   least one character.
/// - The document type declaration is no node, and attributes that declare namespaces are no attributes.
/// - Each element has a namespace node for every prefix in scope, made when a path asks for it.
/// - A tree that is detached from its document has a root node of its own above its topmost node, so that an absolute path
///   finds the same there as it will once the tree is the content of a document.
///
/// Belongs to one evaluation; valid as long as the document does not change. Nothing recurses.
class axsXPathModel
{
public:
  enum Kind
  {
    root_kind,
    element_kind,
    attribute_kind,
    namespace_kind,
    text_kind,
    comment_kind,
    instruction_kind
  };

  /// The tree that `context` is in. Every look at a node or text of it is a step for `counted`, which may end it by throwing
  /// axsXPathMeter::End.
  axsXPathModel(axsNode& context, axsXPathMeter& counted);
  axsXPathModel(axsXPathModel const&) = delete;
  axsXPathModel& operator=(axsXPathModel const&) = delete;

  /// The node of the data model that represents `node`; none for a document type declaration and for texts without a
  /// character.
  axsXPathNode wrapped(axsNode& node) const noexcept;

  axsXPathNode root() const noexcept { return tree_root; }

  /// The node at which a walk over the whole tree starts; of a detached tree its topmost node.
  axsNode& top() const noexcept { return *topmost; }

  Kind kind(axsXPathNode node) const noexcept;
  axsXPathNode parent(axsXPathNode node) const noexcept;

  /// The node of the tree: of a namespace node its element, of the root above a detached tree the topmost node.
  static axsNode& anchor(axsXPathNode node) noexcept
  {
    return node.is_virtual() ? *node.virtual_node().base : *node.node();
  }

  /// The string-value (section 5); a view into the tree or, where it consists of several texts, into `scratch`.
  std::string_view string_value(axsXPathNode node, std::string& scratch) const;

  /// The parts of the expanded-name, and the name as written; empty where there is none.
  std::string_view local_name(axsXPathNode node) const noexcept;
  std::string_view namespace_uri(axsXPathNode node);
  std::string_view name(axsXPathNode node) const noexcept;

  /// Passes the nodes on an axis that pass the node test to `visit`, in the order of the axis, until that returns true.
  /// Returns whether it did. `from` may be none.
  bool walk(axsXPathAxis axis, axsXPathNode from, axsXPathNodeTest const& test, axsXPathVisitor visit);

  /// Whether a node of the tree that is no attribute is a node of the data model that passes the test.
  bool passes(axsNode& node, axsXPathNodeTest const& test)
  {
    using Test = axsXPathExpression::NodeTest;
    meter.spend();
    switch (test.kind)
    {
    case Test::name:
      return node.is_element() && is_named(static_cast<axsElement&>(node), test);
    case Test::any_name:
      return node.is_element();
    default:
      return passes_other(node, test);
    }
  }

  /// The same for any node, on an axis whose principal node type is element: there the root, attributes and namespaces
  /// pass node() only.
  bool passes_any(axsXPathNode node, axsXPathNodeTest const& test);

  /// The first node below, be it one of the data model or not; null if there is none.
  axsNode* first_below(axsXPathNode node) const noexcept;

  axsXPathScopes& scopes() noexcept { return namespaces; }

private:
  bool is_named(axsElement& element, axsXPathNodeTest const& test)
  {
    if (test.has_prefix)
      return element.element_name().local() == test.local && namespaces.uri_of_element(element) == test.uri;
    return test.name != nullptr && element.is_named(*test.name) && namespaces.is_without_namespace(element);
  }

  std::string_view read_string_value(axsXPathNode node, std::string& scratch) const;
  bool passes_other(axsNode& node, axsXPathNodeTest const& test);
  bool passes_attribute(axsElement const& owner, axsAttribute const& attribute, axsXPathNodeTest const& test);

  bool walk_self(axsXPathNode from, axsXPathNodeTest const& test, axsXPathVisitor visit);
  bool walk_ancestors(axsXPathNode from, axsXPathNodeTest const& test, axsXPathVisitor visit);
  bool walk_attributes(axsXPathNode from, axsXPathNodeTest const& test, axsXPathVisitor visit);
  bool walk_namespaces(axsXPathNode from, axsXPathNodeTest const& test, axsXPathVisitor visit);
  bool walk_children(axsXPathNode from, axsXPathNodeTest const& test, axsXPathVisitor visit);
  bool walk_descendants(axsXPathNode from, axsXPathNodeTest const& test, axsXPathVisitor visit);
  bool walk_following(axsXPathNode from, axsXPathNodeTest const& test, axsXPathVisitor visit);
  bool walk_following_siblings(axsXPathNode from, axsXPathNodeTest const& test, axsXPathVisitor visit);
  bool walk_preceding(axsXPathNode from, axsXPathNodeTest const& test, axsXPathVisitor visit);
  bool walk_preceding_siblings(axsXPathNode from, axsXPathNodeTest const& test, axsXPathVisitor visit);

  struct Range
  {
    std::size_t first;
    std::size_t count;
  };

  Range collect_namespaces(axsElement& element);

  axsXPathMeter& meter;
  axsNode* topmost;
  axsXPathVirtualNode detached_root;
  axsXPathNode tree_root;
  axsXPathScopes namespaces;
  // The namespace nodes made so far, and which of them belong to which element.
  std::deque<axsXPathVirtualNode> namespace_nodes;
  std::unordered_map<axsElement const*, Range> scope_ranges;
};
