#pragma once

#include "axsName.h"
#include "axsNodeOf.h"

#include <axmElement.h>

#include <string_view>

class axsAttribute;

/// An element of the tree.
class axsElement final : public axsNodeOf<axmElement, axsParent>
{
public:
  /// Takes size_for(name) bytes.
  explicit axsElement(axsName const& name) noexcept;

  /// The bytes that an element of that name takes, and this one.
  static std::size_t size_for(axsName const& name) noexcept { return size_for(name.number()); }
  std::size_t size() const noexcept { return size_for(name_number); }

  axsName const& element_name() const noexcept;

  /// Whether `name`, of this document, is the name. Costs less than asking for that.
  bool is_named(axsName const& name) const noexcept
  {
    return name.number() == name_number && (name_number != axsName::no_number || &name == name_behind());
  }

  apString getNodeName() const override;
  std::shared_ptr<axmNode> getFirstChild() override;
  std::shared_ptr<axmNode> getNextSibling() override;
  bool hasAttributes() const override { return attributes != nullptr; }
  std::shared_ptr<axmNamedNodeMap> getAttributes() override;

  void reserved_element_0() override;
  apString getAttribute(apString const& name) const override;
  void setAttribute(apString const& name, apString const& value) override;
  void removeAttribute(apString const& name) override;
  bool hasAttribute(apString const& name) const override;
  std::shared_ptr<axmNodeList> selectNodes(apString const& xpath) override;
  std::shared_ptr<axmNode> selectSingleNode(apString const& xpath) override;
  void reserved_element_7() override;
  void reserved_element_8() override;
  void reserved_element_9() override;
  void reserved_element_10() override;
  void reserved_element_11() override;

  using axmNode::get_attribute;

  /// The same as in the interface, without the way over map and attribute node.
  bool get_attribute(apString const& name, apString& value) const override;

  axsAttribute* first_attribute() const noexcept { return attributes; }

  /// The attribute of that name, null if there is none.
  axsAttribute* find_attribute(apString const& name) const noexcept;
  axsAttribute* find_attribute(std::string_view name) const noexcept;

  /// Links a detached attribute of a new name behind `last`, which is the last attribute or, if there is none, null.
  void append_attribute(axsAttribute& attribute, axsAttribute* last) noexcept;

  /// Puts a detached attribute in, in the place of `replaced` if that is not null, and takes one out.
  void put_attribute(axsAttribute& attribute, axsAttribute* replaced) noexcept;
  void take_attribute(axsAttribute& attribute) noexcept;

private:
  friend class axsTree;

  static std::size_t size_for(std::uint16_t number) noexcept
  {
    return sizeof(axsElement) + (number == axsName::no_number ? sizeof(axsName const*) : 0);
  }

  // An element whose name has no number has its address behind the object.
  axsName const* name_behind() const noexcept { return *reinterpret_cast<axsName const* const*>(this + 1); }

  axsAttribute* attributes = nullptr;
};
