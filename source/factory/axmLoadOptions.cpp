#include "axmLoadOptions.h"

#include <stdexcept>

namespace
{
template <class T>
T const& checked_at(std::vector<T> const& values, int index)
{
  if (static_cast<unsigned int>(index) >= values.size())
    throw std::out_of_range("invalid vector subscript");
  return values[static_cast<std::size_t>(index)];
}
}

axmLoadOptions::axmLoadOptions() : axmLoadOptions(axmValidateNone) {}

axmLoadOptions::axmLoadOptions(axmValidateMode given) : mode(given), expansion_limit(50000), resolution_disabled(true)
{
}

axmLoadOptions::axmLoadOptions(axmLoadOptions const& other) = default;
axmLoadOptions::~axmLoadOptions() = default;

axmLoadOptions& axmLoadOptions::operator=(axmLoadOptions const& other)
{
  if (this != &other)
  {
    // Both copies first: were memory to run out between them, the entries would no longer be pairs.
    std::vector<apString> namespaces(other.external_namespaces);
    std::vector<apPath> schemas(other.external_schemas);
    external_namespaces.swap(namespaces);
    external_schemas.swap(schemas);
  }
  mode = other.mode;
  no_namespace = other.no_namespace;
  expansion_limit = other.expansion_limit;
  resolution_disabled = other.resolution_disabled;
  return *this;
}

axmValidateMode axmLoadOptions::validate_mode() const
{
  return mode;
}

void axmLoadOptions::set_validate_mode(axmValidateMode given)
{
  mode = given;
}

void axmLoadOptions::add_external_schema(apString const& name_space, apPath const& schema)
{
  external_namespaces.push_back(name_space);
  try
  {
    external_schemas.push_back(schema);
  }
  catch (...)
  {
    external_namespaces.pop_back();
    throw;
  }
}

int axmLoadOptions::num_external_schemas() const
{
  return static_cast<int>(external_namespaces.size());
}

apString axmLoadOptions::external_namespace(int index) const
{
  return checked_at(external_namespaces, index);
}

apPath axmLoadOptions::external_schema(int index) const
{
  return checked_at(external_schemas, index);
}

apPath axmLoadOptions::no_namespace_schema() const
{
  return no_namespace;
}

void axmLoadOptions::set_no_namespace_schema(apPath const& schema)
{
  no_namespace = schema;
}

int axmLoadOptions::entity_expansion_limit() const
{
  return expansion_limit;
}

void axmLoadOptions::set_entity_expansion_limit(int limit)
{
  expansion_limit = limit;
}

bool axmLoadOptions::disable_entity_resolution() const
{
  return resolution_disabled;
}

void axmLoadOptions::set_disable_entity_resolution(bool disable)
{
  resolution_disabled = disable;
}
