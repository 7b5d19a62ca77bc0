#include "axsBuiltInTypes.h"

#include "axsBuiltInRegistry.h"

namespace
{
axsBuiltInRegistry const& registry()
{
  static axsBuiltInRegistry const types;
  return types;
}
}

axsSimpleType const* axsBuiltInTypes::find(std::string_view local_name)
{
  return registry().find(local_name);
}

axsSimpleType const& axsBuiltInTypes::get(std::string_view local_name)
{
  return *find(local_name);
}

axsSimpleType const& axsBuiltInTypes::any_simple_type()
{
  return get("anySimpleType");
}
