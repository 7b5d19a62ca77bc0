#include "BuiltInCheck.h"

std::vector<axmParseError> built_in_schema_check(std::string const&, axmLoadOptions const&, std::size_t)
{
  return {};
}

std::unique_ptr<BuiltInCheck> built_in_check(axmLoadOptions const&)
{
  return nullptr;
}
