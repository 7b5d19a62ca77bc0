#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

class axsAttribute;
class axsName;
class axsTree;

enum class axsKind : std::uint8_t
{
  document,
  element,
  attribute,
  text,
  /// A text as well, written as a CDATA section.
  cdata_section,
  comment,
  processing_instruction,
  doctype
};

/// What every node of a tree has: its kind, its links, and the number of its holders. A plain record; what implements the
/// node interfaces is derived from it.
///
/// Lifetime: a node is held while a caller holds it or one of its children, or attributes, is held. Holding passes up
/// from node to parent and from the root of a detached tree to the document. A detached tree is freed when its root is no
/// longer held, the document with all that is left when it is no longer held itself. Nothing else frees a node.
///
/// Threads: links and counts are plain numbers, so a document belongs to one thread at a time. In a shared document neither
/// changes: its nodes are not held one by one.
class axsNode
{
public:
  /// A node of the arena begins so many bytes after its block: room for what the class derived from it has before it,
  /// which is the pointer to the table of its interface's operations.
  static constexpr std::size_t lead = sizeof(void*);

  axsNode(axsNode const&) = delete;
  axsNode& operator=(axsNode const&) = delete;

  axsKind kind() const noexcept { return node_kind; }
  bool is_element() const noexcept { return node_kind == axsKind::element; }
  bool is_attribute() const noexcept { return node_kind == axsKind::attribute; }
  bool is_document() const noexcept { return node_kind == axsKind::document; }

  /// Whether it is a text, be it written as it is or as a CDATA section.
  bool is_text() const noexcept { return node_kind == axsKind::text || node_kind == axsKind::cdata_section; }

  /// Whether it can have children: the document and elements.
  bool is_parent() const noexcept { return node_kind <= axsKind::element; }

  /// The tree whose memory the node lies in, attached to its document or not.
  axsTree& tree() const noexcept;

  /// The node that has this one as a child or, if this is an attribute, as an attribute; null at a root.
  axsNode* parent() const noexcept { return parent_link; }

  /// The next child of the parent or, if this is an attribute, its next attribute; null after the last one.
  axsNode* next_sibling() const noexcept { return next_link; }

  /// The previous child of the parent; null before the first one and for attributes.
  axsNode* previous_sibling() const noexcept;

  /// Null where there are none, as for every node that is not a parent.
  axsNode* first_child() const noexcept;
  axsNode* last_child() const noexcept;
  axsAttribute* first_attribute() const noexcept;

  /// The document or, of a detached tree, its topmost node. Costs a step for each level.
  axsNode& root() noexcept;

  /// The next node in document order, within the tree below `top`, which holds this one; null at the end. Attributes are
  /// not part of that order. A walk over n nodes costs O(n) steps.
  axsNode* next_in_tree(axsNode const& top) const noexcept;

  /// The same without the nodes below this one.
  axsNode* next_after_subtree(axsNode const& top) const noexcept;

  /// The name of an element or attribute, null for other nodes.
  axsName const* name() const noexcept;

  /// The name as the interface gives it, for every kind (DOM Core, nodeName).
  std::string_view node_name() const noexcept;

  /// The value of an attribute, the data of a text, comment or processing instruction; empty for other nodes.
  std::string_view value() const noexcept;

  /// Adds the texts of the node and all below it, in document order. Throws std::bad_alloc when memory runs out.
  void append_text_to(std::string& text) const;

  /// Holds the node for a caller. Costs a step for each level up to the first that is held already.
  void acquire() noexcept
  {
    for (axsNode* node = this; node->holders++ == 0; node = node->parent_link)
      if (node->parent_link == nullptr)
        return node->root_acquired();
  }

  /// Gives it back; it may be gone afterwards.
  void release() noexcept
  {
    for (axsNode* node = this; --node->holders == 0; node = node->parent_link)
      if (node->parent_link == nullptr)
        return node->root_released();
  }

  bool is_held() const noexcept { return holders != 0; }
  bool is_held_once() const noexcept { return holders == 1; }

protected:
  explicit axsNode(axsKind kind) noexcept : node_kind(kind) {}

  /// An attribute, which has its name where children have their previous sibling.
  explicit axsNode(axsName const& name) noexcept : attribute_name(&name), node_kind(axsKind::attribute) {}
  ~axsNode() = default;

  // Links are written by what keeps them in order: axsParent those of children, axsElement those of attributes.
  static void set_parent(axsNode& node, axsNode* parent) noexcept { node.parent_link = parent; }
  static void set_next(axsNode& node, axsNode* next) noexcept { node.next_link = next; }
  static void set_previous(axsNode& child, axsNode* previous) noexcept { child.previous_link = previous; }
  static axsNode* previous_of(axsNode const& child) noexcept { return child.previous_link; }

  axsName const& name_of_attribute() const noexcept { return *attribute_name; }

private:
  std::string_view instruction_data() const noexcept;

  void root_acquired() noexcept;
  void root_released() noexcept;

  axsNode* parent_link = nullptr;
  axsNode* next_link = nullptr;
  // The previous child, which of the first child is the last one.
  union
  {
    axsNode* previous_link = nullptr;
    axsName const* attribute_name;
  };
  std::uint32_t holders = 0;
  // The last member, so that derived classes may have their small ones in the bytes that alignment leaves.
  axsKind node_kind;
};
