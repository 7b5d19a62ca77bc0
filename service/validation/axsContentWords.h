#pragma once

#include "axsContentStack.h"

#include <string>

struct axsKnownName;

/// What is wrong with the children of an element, for those who write documents.
namespace axsContentWords
{
/// A child that may not stand where it does (cvc-complex-type.2.4).
std::string wrong_child(
  axsKnownName const& child, axsKnownName const& parent, axsContentStack::Expected const& expected);

/// An element that ends where more is expected.
std::string too_early(axsKnownName const& parent, axsContentStack::Expected const& expected);

/// More names tell a reader nothing.
constexpr std::size_t max_names = 12;
}
