#pragma once

#include <cstdint>
#include <string>

/// Takes what is wrong with the definition of a simple type.
class axsTypeDiagnostics
{
public:
  virtual ~axsTypeDiagnostics() = default;

  /// `place` is the one of the facet (axsFacet::place), or of the type (axsTypeHead::place) where no facet is to blame.
  /// `rule` is the name of the constraint that is not kept, such as "minLength-valid-restriction", and lives on. `text`
  /// is for those who write schemas.
  virtual void report(std::uint64_t place, char const* rule, std::string text) = 0;
};
