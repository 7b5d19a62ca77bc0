#pragma once

#include "axsAttributeDecl.h"
#include "axsComplexType.h"
#include "axsElementDecl.h"
#include "axsIdentityConstraint.h"
#include "axsModelGroup.h"
#include "axsSchemaName.h"
#include "axsTypeDefinition.h"

#include <string>
#include <string_view>
#include <vector>

class axsContentModels;

/// A schema (Part 1, 3.15.1): all components that come from one set of schema documents, compiled and complete. Immutable
/// once built, owner of its components, and shared between threads.
class axsSchemaComponents
{
public:
  virtual ~axsSchemaComponents() = default;

  /// The global component of that name; null, or a definition that is none, if there is no such one. Constant time.
  virtual axsElementDecl const* element(std::string_view name_space, std::string_view local) const noexcept = 0;
  virtual axsAttributeDecl const* attribute(std::string_view name_space, std::string_view local) const noexcept = 0;
  virtual axsTypeDefinition type(std::string_view name_space, std::string_view local) const noexcept = 0;
  virtual bool has_notation(std::string_view name_space, std::string_view local) const noexcept = 0;

  /// Whether there are schema documents for the namespace; of the empty one, for names without a namespace.
  virtual bool knows(std::string_view name_space) const noexcept = 0;

  /// With which the contents of the complex types were compiled (axsComplexType::automaton).
  virtual axsContentModels const& content_models() const noexcept = 0;

  /// The files that the components come from, in the order of their numbers (axsSchemaPlace), of which the first is 1.
  virtual std::vector<std::string> const& files() const noexcept = 0;
};
