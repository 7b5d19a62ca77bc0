#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

class axmElement;
class axmNode;
class axsDocument;
class axsName;

enum class axsKind : std::uint8_t
{
  document,
  element,
  attribute,
  text,
  comment,
  processing_instruction,
  doctype
};

/// What every node of the tree has: its kind, its links, and the count that keeps it alive. The classes that implement
/// the node interfaces are derived from this record and from their interface.
///
/// Lifetime: a node is busy while somebody holds it or one of its children, or attributes, is busy. Busy passes up from
/// node to parent and from the root of a detached tree to the document. A detached tree goes when its root is no longer
/// busy, the document with all that is left when it is no longer busy itself. Nothing else frees a node.
/// Links and counts are plain: a document belongs to one thread at a time.
class axsNode
{
public:
  axsNode(axsNode const&) = delete;
  axsNode& operator=(axsNode const&) = delete;

  /// The node behind the interface, be it a node or the view of one; null if it is none of this engine.
  static axsNode* of(axmNode const& node) noexcept;

  axsKind kind() const noexcept { return node_kind; }
  bool is_element() const noexcept { return node_kind == axsKind::element; }
  bool is_attribute() const noexcept { return node_kind == axsKind::attribute; }
  bool is_document() const noexcept { return node_kind == axsKind::document; }

  /// Whether it can have children: the document and elements.
  bool is_parent() const noexcept { return node_kind <= axsKind::element; }

  /// Whether it is a text that stood in a CDATA section, and will again.
  bool is_cdata() const noexcept { return node_kind == axsKind::text && is_marked; }

  axsDocument& document() const noexcept;

  /// The node that has this one as a child or, if this is an attribute, as an attribute; null at a root.
  axsNode* parent() const noexcept { return up; }

  /// The next child of the parent or, if this is an attribute, its next attribute; null behind the last one.
  axsNode* next_sibling() const noexcept { return next; }

  /// The previous child of the parent; null before the first one and for attributes.
  axsNode* previous_sibling() const noexcept;

  /// Null where there are none, as for every node that is not a parent.
  axsNode* first_child() const noexcept;
  axsNode* last_child() const noexcept;
  axsNode* first_attribute() const noexcept;

  /// The root of the tree that the node is in: the document, if it is not detached.
  axsNode& root() noexcept;

  /// The node behind this one in document order, within the tree below `top`, which holds this one; null at the end.
  /// Attributes are not part of that order.
  axsNode* next_in_tree(axsNode const& top) const noexcept;

  /// The same without the nodes below this one.
  axsNode* next_behind(axsNode const& top) const noexcept;

  /// The name of an element or attribute, null for other nodes.
  axsName const* name() const noexcept;

  /// The name as the interface gives it, for every kind (DOM Core, nodeName).
  std::string_view node_name() const noexcept;

  /// The value of an attribute, the data of a text, comment or processing instruction; empty for other nodes.
  std::string_view value() const noexcept;

  /// Adds the texts of the node and all below it, in document order.
  void append_text_to(std::string& text) const;

  /// A pointer to the node for the caller, as its interface and as an item of a list, where a node that is no element is
  /// handed out as a view. Throw std::bad_alloc when memory runs out.
  std::shared_ptr<axmNode> handle();
  std::shared_ptr<axmElement> item_handle();

  /// Holds the node, and no longer: it may be gone afterwards.
  void acquire() noexcept
  {
    for (axsNode* node = this; node->busy++ == 0; node = node->up)
      if (node->up == nullptr)
        return node->root_acquired();
  }

  void release() noexcept
  {
    for (axsNode* node = this; --node->busy == 0; node = node->up)
      if (node->up == nullptr)
        return node->root_released();
  }

  bool is_busy() const noexcept { return busy != 0; }

protected:
  explicit axsNode(axsKind kind) noexcept : node_kind(kind), is_marked(false), room_start(0) {}
  ~axsNode() = default;

private:
  std::string_view value_of_instruction() const noexcept;

  void root_acquired() noexcept;
  void root_released() noexcept;

  friend class axsDocument;
  friend class axsTree;
  friend class axsAttribute;
  friend class axsElement;
  friend class axsLeaf;
  friend class axsChildList;

  std::uint32_t busy = 0;
  axsKind node_kind : 3;
  // Of a parent: child lists of it may be out. Of a text: it stood in a CDATA section.
  bool is_marked : 1;
  // Of a leaf: where the room for its text begins, in units behind the start of this record; the units of room; and the
  // length of the text, if it stands there.
  std::uint8_t room_start : 4;
  std::uint8_t room_units = 0;
  union
  {
    std::uint16_t length_within = 0;
    // Of an element: the number of its name.
    std::uint16_t name_number;
  };
  axsNode* up = nullptr;
  axsNode* next = nullptr;
  // The previous child, which of the first child is the last one. Unused by attributes, which have their name there.
  union
  {
    axsNode* previous = nullptr;
    axsName const* attribute_name;
  };
};

/// A node with children.
class axsParent : public axsNode
{
protected:
  using axsNode::axsNode;
  ~axsParent() = default;

private:
  friend class axsNode;
  friend class axsTree;
  friend class axsDocument;

  axsNode* first = nullptr;
};

/// A node that consists of a text: of an attribute the value, of a text or comment the data. A processing instruction
/// has its target there, too, before the first space; a document type its whole declaration.
class axsLeaf : public axsNode
{
public:
  std::string_view text() const noexcept
  {
    return is_apart() ? std::string_view(apart()->bytes(), apart()->length) : std::string_view(room(), length_within);
  }

  /// Throws std::bad_alloc, with the text as it was, when memory runs out or the text is too long for an apString.
  void set_text(std::string_view text);

  /// Room for a text behind a leaf comes in units of so many bytes, of which there is at least one.
  static constexpr std::size_t unit = 8;

  static constexpr std::size_t units_for(std::size_t length) noexcept
  {
    return length <= unit ? 1 : (length + unit - 1) / unit;
  }

protected:
  /// `end` is where the object ends, behind which the units of room are.
  axsLeaf(axsKind kind, void* end, std::uint8_t units) noexcept : axsNode(kind)
  {
    auto const bytes = static_cast<std::size_t>(static_cast<char*>(end) - reinterpret_cast<char*>(this));
    room_start = static_cast<std::uint8_t>(bytes / unit) & 0xFu;
    room_units = units;
  }
  ~axsLeaf() = default;

private:
  friend class axsDocument;

  // A text that is too long for the room, which holds its address.
  struct Apart
  {
    std::size_t length;

    std::size_t size() const noexcept { return sizeof(Apart) + length; }
    char* bytes() noexcept { return reinterpret_cast<char*>(this + 1); }
  };

  static constexpr std::uint16_t length_of_apart = 0xFFFF;

  char* room() const noexcept { return reinterpret_cast<char*>(const_cast<axsLeaf*>(this)) + room_start * unit; }

  bool is_apart() const noexcept { return length_within == length_of_apart; }
  Apart* apart() const noexcept { return *reinterpret_cast<Apart**>(room()); }
  Apart* make_apart(std::string_view text);
};

inline axsNode* axsNode::previous_sibling() const noexcept
{
  return is_attribute() || up == nullptr || up->first_child() == this ? nullptr : previous;
}

inline axsNode* axsNode::first_child() const noexcept
{
  return is_parent() ? static_cast<axsParent const*>(this)->first : nullptr;
}

inline axsNode* axsNode::last_child() const noexcept
{
  axsNode* const child = first_child();
  return child == nullptr ? nullptr : child->previous;
}

inline axsNode* axsNode::next_in_tree(axsNode const& top) const noexcept
{
  axsNode* const child = first_child();
  return child != nullptr ? child : next_behind(top);
}

inline axsNode* axsNode::next_behind(axsNode const& top) const noexcept
{
  for (axsNode const* node = this; node != &top; node = node->up)
    if (node->next != nullptr)
      return node->next;
  return nullptr;
}

inline std::string_view axsNode::value() const noexcept
{
  switch (node_kind)
  {
  case axsKind::document:
  case axsKind::element:
  case axsKind::doctype:
    return {};
  case axsKind::attribute:
  case axsKind::text:
  case axsKind::comment:
    return static_cast<axsLeaf const*>(this)->text();
  case axsKind::processing_instruction:
    return value_of_instruction();
  }
  return {};
}
