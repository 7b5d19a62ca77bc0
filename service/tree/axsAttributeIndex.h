#pragma once

#include "axsAttribute.h"
#include "axsSiblingIndex.h"

#include <cstddef>
#include <unordered_map>

/// Finds the attributes of one element that has many, by name and by position, as long as it is told of each that comes or
/// goes. Costs: as axsSiblingIndex; finding by name takes a constant time. What may run out of memory throws std::bad_alloc
/// and leaves an object that is only good to be destroyed.
class axsAttributeIndex
{
public:
  /// Of the attributes from `first` on.
  explicit axsAttributeIndex(axsAttribute* first);

  std::size_t size() const noexcept { return by_name.size(); }

  axsAttribute* find(axsName const& name) const noexcept;
  axsAttribute* at(std::size_t position) const noexcept { return static_cast<axsAttribute*>(positions.at(position)); }

  /// The attribute before this one, null for the first; for null the last one.
  axsAttribute* before(axsAttribute const* attribute) const noexcept;

  /// An attribute has been linked after `previous`, as the first one if that is null.
  void insert(axsAttribute& attribute, axsAttribute* previous);

  /// An attribute is about to be unlinked.
  void remove(axsAttribute const& attribute) noexcept;

private:
  struct Entry
  {
    axsAttribute* attribute;
    axsAttribute* previous;
  };

  void set_previous(axsAttribute const* attribute, axsAttribute* previous) noexcept;

  std::unordered_map<axsName const*, Entry> by_name;
  axsAttribute* last = nullptr;
  axsSiblingIndex positions;
};
