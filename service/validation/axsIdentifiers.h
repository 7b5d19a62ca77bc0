#pragma once

#include "axsPlace.h"
#include "axsValue.h"
#include "axsValueSet.h"

#include <cstddef>
#include <functional>
#include <string>
#include <utility>
#include <vector>

/// The IDs of a document and what refers to them (Part 1, 3.15.4 cvc-id; 3.3.4 cvc-elt, 3.15.5). Memory in proportion to
/// both.
class axsIdentifiers
{
public:
  /// What is in the value, of an attribute or element at `place`. Returns what is wrong, empty if nothing is.
  std::string add(axsValue const& value, axsPlace place);

  /// Calls `report` with each reference that finds no ID, and where it stands.
  void check_references(std::function<void(std::string const& message, axsPlace place)> const& report) const;

private:
  axsValueSet ids;
  std::vector<axsPlace> places;
  axsValueSet references;
  std::vector<axsPlace> places_of_references;
};
