#pragma once

#include "axsAttribute.h"
#include "axsName.h"
#include "axsParent.h"

#include <new>
#include <string_view>

class axsAttributeIndex;

/// An element: a name, attributes in the order in which they came, children.
///
/// Most names have a number, which the record holds; the address of another name follows the record.
class axsElement : public axsParent
{
public:
  /// The bytes of the record, for an element of that name and for this one.
  static std::size_t size_for(axsName const& name) noexcept { return size_for(name.number()); }
  std::size_t size() const noexcept { return size_for(name_number()); }

  axsName const& element_name() const noexcept;

  /// Whether `name`, of this document, is the name. Costs less than asking for that.
  bool is_named(axsName const& name) const noexcept
  {
    return name.number() == name_number() && (name_number() != axsName::no_number || &name == following_name());
  }

  axsAttribute* first_attribute() const noexcept { return attributes; }

  /// The attribute of that name, null if there is none. Costs a step for each attribute or, where there are many, the
  /// making of an index once.
  axsAttribute* find_attribute(std::wstring_view name) const noexcept;
  axsAttribute* find_attribute(std::string_view name) const noexcept;
  axsAttribute* find_attribute(axsName const& name) const noexcept;

  /// The last attribute, null if there is none, how many there are, and the one at a position from 0 on, null beyond the last.
  /// Cost: as find_attribute().
  axsAttribute* last_attribute() noexcept { return attributes == nullptr ? nullptr : attribute_before(nullptr); }
  int count_attributes() noexcept;
  axsAttribute* attribute_at(int position) noexcept;

  /// Links a detached attribute of a new name, which nobody holds, after `last`, which is the last attribute or, if there
  /// is none, null.
  void append_new_attribute(axsAttribute& attribute, axsAttribute* last) noexcept;

  /// The same of an element that nobody has asked for its attributes, as while a document is read: nobody is told.
  void append_unseen_attribute(axsAttribute& attribute, axsAttribute* last) noexcept
  {
    set_parent(attribute, this);
    if (last == nullptr)
      attributes = &attribute;
    else
      set_next(*last, &attribute);
  }

  /// Puts a detached attribute that a caller holds, as it does this element, in the place of `replaced`, which a caller
  /// holds as well; after the others if that is null.
  void put_attribute(axsAttribute& attribute, axsAttribute* replaced) noexcept;

  /// Takes an attribute of this element out; it is freed if nobody holds it.
  void take_attribute(axsAttribute& attribute) noexcept;

protected:
  /// Takes size_for(name) bytes.
  explicit axsElement(axsName const& name) noexcept : axsParent(axsKind::element, name.number())
  {
    if (name.number() == axsName::no_number)
      new (this + 1) axsName const*(&name);
  }
  ~axsElement() = default;

private:
  friend class axsTree;

  static std::size_t size_for(std::uint16_t number) noexcept
  {
    return sizeof(axsElement) + (number == axsName::no_number ? sizeof(axsName const*) : 0);
  }

  axsName const* following_name() const noexcept { return *reinterpret_cast<axsName const* const*>(this + 1); }
  axsAttribute* attribute_before(axsAttribute const* attribute) const noexcept;
  void link_attribute(axsAttribute& attribute, axsAttribute* previous, axsAttribute* next) noexcept;
  void unlink_attribute(axsAttribute& attribute, axsAttribute* previous) noexcept;
  void index_if_many(int attributes_passed) const noexcept;
  bool has_many_attributes() const noexcept;
  axsAttributeIndex* index() const noexcept;

  axsAttribute* attributes = nullptr;
};

inline axsAttribute* axsNode::first_attribute() const noexcept
{
  return is_element() ? static_cast<axsElement const*>(this)->first_attribute() : nullptr;
}

inline axsElement* axsAttribute::owner() const noexcept
{
  return static_cast<axsElement*>(parent());
}
