#pragma once

#include "utExport.h"
#include "utString.h"

/// The name of a service, possibly qualified: "a::b::XMLService" is XMLService, qualified by a and b.
///
/// A value type; one object belongs to one thread at a time.
class UT_API utServiceName
{
public:
  /// An invalid name.
  utServiceName() noexcept;

  /// The name as given; an empty one is invalid.
  explicit utServiceName(utString const& name);

  /// The name with the qualifiers that are left; empty when invalid.
  utString name() const noexcept;

  /// Whether there is no name (left).
  bool invalid() const noexcept;

  /// Takes the leftmost qualifier away with the "::" after it. A name without a qualifier becomes invalid, and an
  /// invalid one stays so. Throws std::bad_alloc when memory runs out, and leaves the name as it was.
  void dequalify();

  bool operator==(utServiceName const& other) const noexcept;
  bool operator!=(utServiceName const& other) const noexcept;

private:
  utString text;
};
