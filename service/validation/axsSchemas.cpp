#include "axsSchemas.h"

#include "axsReadError.h"
#include "axsSchemaCache.h"
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

axsReadError error_of(axsSchemaErrors::Error const& error, axsSchemaCompiler const& compiler)
{
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

std::vector<axsSchemaCache::Wanted> wanted_by(axmLoadOptions const& options)
{
  std::vector<axsSchemaCache::Wanted> wanted;
  for (int i = 0; i < options.num_external_schemas(); ++i)
    wanted.push_back({narrow(options.external_namespace(i)), options.external_schema(i)});
  if (!options.no_namespace_schema().empty())
    wanted.push_back({std::string(), options.no_namespace_schema()});
  return wanted;
}

// Calls `compile`, and takes down what is wrong with the schemas.
template <class Compile>
std::shared_ptr<axsSchemaComponents const> compile_with(
  axsSchemaCompiler& compiler, std::vector<axsReadError>& errors, Compile compile)
try
{
  std::shared_ptr<axsSchemaComponents const> schema = compile();
  if (schema == nullptr)
    for (axsSchemaErrors::Error const& error : compiler.errors())
      errors.push_back(error_of(error, compiler));
  return schema;
}
catch (axsReadError const& error)
{
  errors.push_back(error);
  return nullptr;
}
}

bool axsSchemas::are_wanted(axmLoadOptions const& options)
{
  return options.validate_mode() == axmValidateWithSchemas &&
         (options.num_external_schemas() > 0 || !options.no_namespace_schema().empty());
}

std::shared_ptr<axsSchemaComponents const> axsSchemas::compile(
  axmLoadOptions const& options, std::vector<axsReadError>& errors)
{
  axsSchemaCompiler compiler;
  return compile_with(compiler, errors, [&] { return axsSchemaCache::shared().get(wanted_by(options), compiler); });
}

std::vector<axsReadError> axsSchemas::check(apPath const& file, axmLoadOptions const& others, std::size_t max_errors)
{
  std::vector<axsReadError> errors;
  axsSchemaCompiler compiler(max_errors);
  compile_with(compiler, errors,
    [&]
    {
      for (axsSchemaCache::Wanted const& other : wanted_by(others))
        compiler.add(other.name_space, other.path);
      compiler.add(file);
      return compiler.compile();
    });
  return errors;
}

std::shared_ptr<axsSchemaComponents const> axsSchemas::of(axmLoadOptions const& options)
{
  std::vector<axsReadError> errors;
  std::shared_ptr<axsSchemaComponents const> schema = compile(options, errors);
  if (schema == nullptr)
    throw errors.front();
  return schema;
}
