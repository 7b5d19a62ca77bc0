#pragma once

#include "axsContentModels.h"
#include "axsSchemaComponents.h"
#include "axsSchemaNameTable.h"
#include "axsSchemaStore.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The components of a set of schema documents, and their owner.
class axsSchemaModel final : public axsSchemaComponents
{
public:
  explicit axsSchemaModel(std::vector<std::string> file_names);
  ~axsSchemaModel() override;

  /// Where components are made, and stay.
  axsSchemaStore& components() noexcept { return store; }

  // While the set is built.
  void add(axsElementDecl const& declared) { elements.emplace(view(declared.name), &declared); }
  void add(axsAttributeDecl const& declared) { attributes.emplace(view(declared.name), &declared); }
  void add(axsSchemaNameView name, axsTypeDefinition const& type) { types.emplace(store.kept(name), type); }
  void add_notation(axsSchemaNameView name) { notations.emplace(store.kept(name), true); }
  void add_namespace(std::string_view name_space) { namespaces.emplace(store.kept({name_space, {}}), true); }
  axsContentModels& make_content_models();

  axsElementDecl const* element(std::string_view name_space, std::string_view local) const noexcept override;
  axsAttributeDecl const* attribute(std::string_view name_space, std::string_view local) const noexcept override;
  axsTypeDefinition type(std::string_view name_space, std::string_view local) const noexcept override;
  bool has_notation(std::string_view name_space, std::string_view local) const noexcept override;
  bool knows(std::string_view name_space) const noexcept override;
  axsContentModels const& content_models() const noexcept override { return *models; }
  std::vector<std::string> const& files() const noexcept override { return paths; }

private:
  static axsSchemaNameView view(axsSchemaName const& name) { return {name.name_space, name.local}; }

  axsSchemaStore store;
  std::vector<std::string> paths;
  // The names lie in the components.
  axsSchemaNameTable<axsElementDecl const*> elements;
  axsSchemaNameTable<axsAttributeDecl const*> attributes;
  axsSchemaNameTable<axsTypeDefinition> types;
  axsSchemaNameTable<bool> notations;
  axsSchemaNameTable<bool> namespaces;
  std::optional<axsContentModels> models;
};
