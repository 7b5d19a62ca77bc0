#include "axsSchemaModel.h"

#include "axsBuiltInTypes.h"
#include "axsSchemaVocabulary.h"

#include <utility>

axsSchemaModel::axsSchemaModel(std::vector<std::string> file_names) : paths(std::move(file_names)) {}

axsSchemaModel::~axsSchemaModel() = default;

axsContentModels& axsSchemaModel::make_content_models()
{
  std::vector<axsElementDecl const*> globals;
  globals.reserve(elements.size());
  for (axsElementDecl const& declared : store.elements)
    if (declared.is_global)
      globals.push_back(&declared);
  return models.emplace(globals);
}

axsElementDecl const* axsSchemaModel::element(std::string_view name_space, std::string_view local) const noexcept
{
  auto const found = elements.find({name_space, local});
  return found == elements.end() ? nullptr : found->second;
}

axsAttributeDecl const* axsSchemaModel::attribute(std::string_view name_space, std::string_view local) const noexcept
{
  auto const found = attributes.find({name_space, local});
  return found == attributes.end() ? nullptr : found->second;
}

axsTypeDefinition axsSchemaModel::type(std::string_view name_space, std::string_view local) const noexcept
{
  if (auto const found = types.find({name_space, local}); found != types.end())
    return found->second;
  axsTypeDefinition built_in;
  if (name_space == axsSchemaVocabulary::schema_namespace)
    built_in.simple = axsBuiltInTypes::find(local);
  return built_in;
}

bool axsSchemaModel::has_notation(std::string_view name_space, std::string_view local) const noexcept
{
  return notations.find({name_space, local}) != notations.end();
}

bool axsSchemaModel::knows(std::string_view name_space) const noexcept
{
  return namespaces.find({name_space, {}}) != namespaces.end();
}
