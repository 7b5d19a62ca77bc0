#pragma once

#include "axsLeaf.h"

class axsElement;

/// An attribute. Its parent is the element that has it, null while no element does; its text is its value.
class axsAttribute : public axsLeaf
{
public:
  axsName const& full_name() const noexcept { return name_of_attribute(); }

  axsElement* owner() const noexcept;

  /// The next attribute of the element in the order in which they came, null after the last one.
  axsAttribute* next_attribute() const noexcept { return static_cast<axsAttribute*>(next_sibling()); }

protected:
  axsAttribute(std::uint8_t units, axsName const& name) noexcept : axsLeaf(name, units) {}
  ~axsAttribute() = default;
};
