#pragma once

#include "axmExport.h"
#include "axmInPlace.h"
#include "axmOverloads.h"

#include <apString.h>

#include <memory>

class axmDocument;
class axmNamedNodeMap;
class axmNodeList;

/// A node of a document: an element, an attribute, the document itself, a text, a comment or a processing instruction
/// (Document Object Model Core, interface Node).
///
/// Interface, but for the typed access to attributes, which is implemented here on top of it. An engine supplies the
/// tree; see axmDocumentFactory.
///
/// Ownership: every node is handed out in a `std::shared_ptr` and stays valid as long as the caller holds it, also after
/// it was taken out of its tree. An empty pointer means that there is no such node. Arguments are never kept by the
/// pointer that was passed in.
/// What stands where: an element holds elements, texts, comments and instructions; a document one element, comments and
/// instructions; other nodes hold nothing, and no node goes below itself. A child of another document may be taken over or
/// refused. A new child that has a parent is moved: it is taken out there first, which is reported as an assertion
/// (utAssert.h).
/// Misuse is an empty result or false, with the tree unchanged; no operation throws for a wrong argument.
/// Memory: what hands out a node, list, map or text, makes one or sets a text may throw std::bad_alloc when memory runs out,
/// with nothing changed. What moves, removes, compares or counts, typed access, and the factory do not throw.
/// Null: an empty pointer given as a node is misuse, but for `ref_child` of insertBefore().
/// Costs are those of the default engine, n being the nodes below; where none is said, it is a constant time.
/// Threads: nothing here locks; whether one tree may be used from several threads is the engine's business.
/// The order of the virtual operations is a promise to engines that were built separately.
class AXM_API axmNode
{
public:
  axmNode();
  axmNode(axmNode const&) = delete;
  axmNode& operator=(axmNode const&) = delete;
  virtual ~axmNode();

  /// The name: of an element its tag name as written, of an attribute its name; of other nodes as DOM Core, nodeName.
  virtual apString getNodeName() const = 0;

  /// The value: of an attribute its value, of a text or comment its data; empty for an element and the document.
  virtual apString getNodeValue() const = 0;

  /// The node that holds this one as a child. Empty for the document, an attribute, and a node that is not in a tree.
  virtual std::shared_ptr<axmNode> getParentNode() = 0;

  /// The children in document order, live: it follows every later change. Never empty for an element or the document. See
  /// axmNodeList for what its operations cost.
  virtual std::shared_ptr<axmNodeList> getChildNodes() = 0;

  /// The first and the last child; empty when there are none.
  virtual std::shared_ptr<axmNode> getFirstChild() = 0;
  virtual std::shared_ptr<axmNode> getLastChild() = 0;

  /// The neighbour among the children of the parent; empty before the first and after the last one.
  virtual std::shared_ptr<axmNode> getPreviousSibling() = 0;
  virtual std::shared_ptr<axmNode> getNextSibling() = 0;

  /// The document that created the node; for the document itself the document.
  virtual std::shared_ptr<axmDocument> getOwnerDocument() = 0;

  /// Inserts `new_child` among the children, immediately before `ref_child` or, if that is empty, at the end.
  /// Returns `new_child`; empty, with nothing changed, when `ref_child` is not a child of this node or the new child
  /// cannot stand here. A new child that has children costs a step for each level above the place, to see that it does not
  /// go below itself; so it does for the two other operations that put one in.
  virtual std::shared_ptr<axmNode> insertBefore(
    std::shared_ptr<axmNode> new_child, std::shared_ptr<axmNode> ref_child) = 0;

  /// Puts `new_child` in the place of `old_child` and returns `old_child`, whose parent is empty then.
  /// Empty, with nothing changed, when `old_child` is not a child of this node or the new child cannot stand here.
  virtual std::shared_ptr<axmNode> replaceChild(
    std::shared_ptr<axmNode> new_child, std::shared_ptr<axmNode> old_child) = 0;

  /// Takes `old_child` out of the children and returns it, its parent empty then.
  /// Empty, with nothing changed, when it is not a child of this node.
  virtual std::shared_ptr<axmNode> removeChild(std::shared_ptr<axmNode> old_child) = 0;

  /// Adds `new_child` as the last child and returns it. Empty, with nothing changed, when it cannot stand here.
  virtual std::shared_ptr<axmNode> appendChild(std::shared_ptr<axmNode> new_child) = 0;

  /// Whether there is at least one child.
  virtual bool hasChildNodes() const = 0;

  /// Reserved: keeps its place in the order; never called.
  virtual void reserved_node_15() = 0;

  /// Whether there is at least one attribute.
  virtual bool hasAttributes() const = 0;

  /// The attributes, live: what is set through the map is seen by the element's operations, and the other way round.
  /// Empty for a node that is not an element.
  virtual std::shared_ptr<axmNamedNodeMap> getAttributes() = 0;

  /// Whether both denote the same node of the tree. This, not the comparison of pointers, is how nodes are compared.
  virtual bool operator==(axmNode const& other) const = 0;

  /// Typed access to the attributes of an element. On success true; on failure false with `value` as it was: when the
  /// attribute is absent, the node is not an element, the text is not of the type, or memory runs out. Neither these nor
  /// the operations that set an attribute throw.
  /// All of them go through the two operations for texts, which an engine may override.
  ///
  /// - `bool`: exactly "true" or "1", "false" or "0".
  /// - `apString`: the value as it is; an empty one is a value.
  /// - `double`: the whole text is a number as apStringLocaleDoubleParser reads it, its decimal point a '.' under every
  ///   locale; a text that holds the locale's other decimal point fails.
  /// - `int`: the whole text is a number as apStringLocaleIntParser reads it.
  AXM_OVERLOADS_4(virtual bool get_attribute(apString const& name, bool& value) const,
    virtual bool get_attribute(apString const& name, apString& value) const,
    virtual bool get_attribute(apString const& name, double& value) const,
    virtual bool get_attribute(apString const& name, int& value) const);

  /// Sets an attribute of an element. True on success; false, with nothing changed, on any other node and when memory
  /// runs out. What the element makes of a name that is none is not told.
  ///
  /// - `bool`: writes "true" or "false".
  /// - `double`: writes "%.16g" with '.' as decimal point under every locale. Sixteen digits do not bring every double
  ///   back: one whose shortest exact form needs seventeen, such as 0.1 + 0.2 = 0.30000000000000004 (written as 0.3),
  ///   comes back as a neighbour, and the largest of all, 1.7976931348623157e308, as an infinity. Every double that was
  ///   itself read from at most fifteen digits comes back, and so do infinities and not-a-number.
  /// - `int`, `unsigned int`: write decimal digits. No getter reads an `unsigned int` above the largest `int`.
  AXM_OVERLOADS_5(virtual bool set_attribute(apString const& name, bool value),
    virtual bool set_attribute(apString const& name, apString const& value),
    virtual bool set_attribute(apString const& name, double value),
    virtual bool set_attribute(apString const& name, int value),
    virtual bool set_attribute(apString const& name, unsigned int value));

  /// The same for doubles in the form of the current C locale, its decimal point neither read nor written as '.' where
  /// it is another. Not interchangeable with the pair above.
  virtual bool get_attribute_locale(apString const& name, double& value) const;
  virtual bool set_attribute_locale(apString const& name, double value);

  /// The texts of the node and all its descendants in document order, with nothing between them; of a text or comment
  /// its data, of an attribute its value. What comments and instructions below the node hold is left out. O(n).
  virtual apString get_text() const = 0;

  /// Replaces the content by one text child that holds `text`, which may be empty; what was there is out then, and whole.
  /// Of an attribute, text, comment or instruction it is the value that is replaced; of a document nothing is. Costs O(n)
  /// for what was there. A text that XML cannot hold is refused when it is saved.
  virtual void set_text(apString const& text) = 0;

  /// The node as XML text; of the document, the whole document with its declaration. Empty for what XML cannot hold: a
  /// control character, a comment with two hyphens in a row, a document without a root. O(n).
  virtual apString get_xml() const = 0;

  /// The same for a NUL-terminated text, wide or UTF-8; null is the empty text.
  bool set_attribute(apString const& name, wchar_t const* value);
  bool set_attribute(apString const& name, char const* value);

  /// Refused: any other pointer would be taken for a `bool`.
  template <class T>
  bool set_attribute(apString const&, T*)
  {
    static_assert(sizeof(T*) == 0, "a pointer is no value of an attribute: give a text, a number or a bool");
    return false;
  }

protected:
  /// See axmInPlace.
  explicit axmNode(axmInPlace) noexcept {}

  /// Reads a number from the whole of `text`, in the form of the current C locale. False, with `value` as it was, when
  /// any of it is not part of the number.
  bool parse_value_locale(apString const& text, double& value) const;
};
