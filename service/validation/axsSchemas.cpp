#include "axsSchemas.h"

#include "axsReadError.h"
#include "axsSchemaCompiler.h"
#include "axsSchemaComponents.h"

#include <string>

namespace
{
std::string narrow(apString const& text)
{
  utString const utf8 = text.to_utf8();
  return {utf8.c_str(), static_cast<std::size_t>(utf8.length())};
}

axsReadError first_error(axsSchemaCompiler const& compiler)
{
  axsSchemaErrors::Error const& error = compiler.errors().front();
  axsReadError made{apString::from_utf8(error.message), apString()};
  if (error.place.file != 0)
    made.url = apString::from_utf8(compiler.files()[error.place.file - 1]);
  if (error.place.line != 0)
  {
    made.line = static_cast<int>(error.place.line);
    made.column = static_cast<int>(error.place.column);
  }
  return made;
}
}

bool axsSchemas::are_wanted(axmLoadOptions const& options)
{
  return options.validate_mode() == axmValidateWithSchemas &&
         (options.num_external_schemas() > 0 || !options.no_namespace_schema().empty());
}

std::shared_ptr<axsSchemaComponents const> axsSchemas::of(axmLoadOptions const& options)
{
  axsSchemaCompiler compiler;
  for (int i = 0; i < options.num_external_schemas(); ++i)
    compiler.add(narrow(options.external_namespace(i)), options.external_schema(i));
  if (!options.no_namespace_schema().empty())
    compiler.add(std::string_view(), options.no_namespace_schema());
  std::shared_ptr<axsSchemaComponents const> schema = compiler.compile();
  if (schema == nullptr)
    throw first_error(compiler);
  return schema;
}
