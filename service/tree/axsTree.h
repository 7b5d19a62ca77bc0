#pragma once

#include "axsArena.h"
#include "axsAttributeIndex.h"
#include "axsDeclaredAttributes.h"
#include "axsElement.h"
#include "axsIdAttributes.h"
#include "axsLeaf.h"
#include "axsNameTable.h"
#include "axsParent.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

/// A document: the node at the top, and what belongs to all its nodes, attached to it or not: their memory, their names,
/// what its document type declares.
///
/// Goes, with all its nodes, when it is no longer held; see axsNode. Nodes are made detached; one that is never held and
/// enters no tree stays until the document goes. Belongs to one thread at a time.
class axsTree : public axsParent
{
public:
  axsNameTable& names() noexcept { return name_table; }
  axsNameTable const& names() const noexcept { return name_table; }
  axsArena& arena() noexcept { return memory; }

  /// Which attributes the document type declares to be IDs. Filled by what reads the document.
  axsIdAttributes& id_attributes() noexcept { return declared_ids; }

  /// What else it declares of attributes; heeded as long as the document has a document type.
  axsDeclaredAttributes& declared_attributes() noexcept { return declared; }
  axsDeclaredAttributes const& declared_attributes() const noexcept { return declared; }

  axsElement* root_element() const noexcept;

  /// Null if there is none, or no longer.
  axsNode* doctype() const noexcept;

  /// Whether it was read as XML 1.1, which can hold more characters than 1.0.
  bool is_xml_1_1() const noexcept { return xml_1_1; }
  void set_xml_1_1(bool is_so) noexcept { xml_1_1 = is_so; }

  /// What the XML declaration says of it; empty where it says nothing.
  std::string_view standalone() const noexcept { return standalone_word; }
  void set_standalone(std::string_view word) { standalone_word = word; }

  /// Whether many threads read it, and nothing changes any more.
  bool is_shared() const noexcept { return shared; }

  /// How often an attribute has come or gone, anywhere in the document.
  std::uint64_t attribute_changes() const noexcept { return attribute_change_count; }
  void count_attribute_change() noexcept { ++attribute_change_count; }

  /// Makes a detached element or leaf, of a class derived from axsElement or axsLeaf that adds no data to it but its
  /// interface; a leaf's constructor takes the units of room and the arguments. Throw std::bad_alloc when memory runs out.
  template <class Element>
  Element* make_element(axsName const& name);
  template <class Leaf, class... Arguments>
  Leaf* make_leaf(std::string_view text, Arguments&&... arguments);

  /// Frees a node that is linked to nothing, its attributes, and all below it, of which nobody holds any. It does not
  /// recurse.
  void free_subtree(axsNode& top) noexcept;

  /// Told before a node, an attribute too, is taken out of where it was.
  void nodes_leave() noexcept
  {
    if (has_leave_watch)
      nodes_leaving();
  }

protected:
  axsTree() noexcept : axsParent(axsKind::document, axsName::no_number), memory(*this) {}
  ~axsTree() = default;

  /// Makes what reading would make when it is first needed. Throws std::bad_alloc when memory runs out.
  void index_all_attributes();

  /// From now on nothing in it changes.
  void set_shared() noexcept { shared = true; }

  /// Whether nodes_leaving() is to be called.
  void watch_leaving(bool is_wanted) noexcept { has_leave_watch = is_wanted; }

private:
  friend class axsElement;
  friend class axsNode;
  friend class axsParent;

  // What those above are told. The first is that nobody holds the document any more, which is to be deleted.
  virtual void destroy() noexcept = 0;
  virtual void nodes_leaving() noexcept = 0;
  // Of a watched parent: a child has come, one is about to go, and the parent itself is about to be freed.
  virtual void child_linked(axsParent& parent, axsNode& child) noexcept = 0;
  virtual void child_unlinking(axsParent& parent, axsNode& child) noexcept = 0;
  virtual void parent_freeing(axsParent& parent) noexcept = 0;

  // The indexes of elements with many attributes. Without memory for one there is none.
  void index_attributes(axsElement& element) noexcept;
  axsAttributeIndex& attribute_index(axsElement const& element) noexcept
  {
    return attribute_indexes.find(&element)->second;
  }
  void attribute_linked(axsElement& element, axsAttribute& attribute, axsAttribute* previous) noexcept;
  void drop_attribute_index(axsElement& element) noexcept;

  template <class Leaf, class... Arguments>
  [[gnu::noinline]] Leaf* make_large_leaf(std::string_view text, Arguments&&... arguments);

  void free_node(axsNode& node) noexcept;
  void free_leaf(axsLeaf& leaf) noexcept;

  axsArena memory;
  axsNameTable name_table;
  axsIdAttributes declared_ids;
  axsDeclaredAttributes declared;
  std::string standalone_word;
  std::unordered_map<axsElement const*, axsAttributeIndex> attribute_indexes;
  // The elements with an index, a ring: for each further one, that of the oldest goes.
  std::array<axsElement*, 64> indexed_elements = {};
  std::size_t next_indexed = 0;
  std::uint64_t attribute_change_count = 0;
  bool xml_1_1 = false;
  bool has_leave_watch = false;
  bool shared = false;
};

template <class Element>
Element* axsTree::make_element(axsName const& name)
{
  static_assert(sizeof(Element) == lead + sizeof(axsElement));
  return new (memory.allocate(lead + axsElement::size_for(name))) Element(name);
}

// A text that a small block can hold stands in the block of its node.
template <class Leaf, class... Arguments>
Leaf* axsTree::make_leaf(std::string_view text, Arguments&&... arguments)
{
  static_assert(sizeof(Leaf) == lead + sizeof(axsLeaf));
  if (sizeof(Leaf) + text.size() > axsArena::small_limit)
    return make_large_leaf<Leaf>(text, std::forward<Arguments>(arguments)...);
  std::size_t const units = axsLeaf::units_for(text.size());
  void* const block = memory.allocate(sizeof(Leaf) + units * axsLeaf::unit);
  auto* const leaf = new (block) Leaf(static_cast<std::uint8_t>(units), std::forward<Arguments>(arguments)...);
  static_cast<axsLeaf*>(leaf)->set_first_text(text);
  return leaf;
}

template <class Leaf, class... Arguments>
Leaf* axsTree::make_large_leaf(std::string_view text, Arguments&&... arguments)
{
  std::size_t const size = sizeof(Leaf) + axsLeaf::unit;
  void* const block = memory.allocate(size);
  auto* const leaf = new (block) Leaf(std::uint8_t{1}, std::forward<Arguments>(arguments)...);
  try
  {
    static_cast<axsLeaf*>(leaf)->set_text(text);
  }
  catch (...)
  {
    memory.release(block, size);
    throw;
  }
  return leaf;
}
