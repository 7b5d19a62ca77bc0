#include "JudgedSchema.h"

#include <cstdlib>

namespace
{
// That of the schema's root element, which is the only one that has it; empty without one.
std::string target_namespace(std::string const& schema)
{
  std::string const attribute = "targetNamespace=";
  std::size_t const at = schema.find(attribute);
  if (at == std::string::npos)
    return {};
  std::size_t const begin = at + attribute.size() + 1;
  return schema.substr(begin, schema.find(schema[begin - 1], begin) - begin);
}

axmLoadOptions options_for(apPath const& path, std::string const& name_space)
{
  axmLoadOptions made(axmValidateWithSchemas);
  if (name_space.empty())
    made.set_no_namespace_schema(path);
  else
    made.add_external_schema(wide(name_space), path);
  return made;
}

Verdict verdict_of(std::vector<axmParseError> const& errors)
{
  return {errors.empty(), errors.empty() ? std::string() : narrow(errors.front().message())};
}
}

bool says(Verdict const& verdict, std::string const& words)
{
  return verdict.is_good == words.empty() && verdict.words.find(words) != std::string::npos;
}

int number_of(char const* variable, int otherwise)
{
  char const* const wanted = std::getenv(variable);
  return wanted == nullptr ? otherwise : std::atoi(wanted);
}

JudgedSchema::JudgedSchema(std::string const& schema)
  : file(std::make_unique<TestFile>("judged.xsd", schema)),
    validation(options_for(file->path(), target_namespace(schema)))
{
}

JudgedSchema::JudgedSchema(std::filesystem::path const& given, std::string const& schema)
  : validation(options_for(apPath(given.string().c_str()), target_namespace(schema)))
{
}

Verdict JudgedSchema::schema() const
{
  return verdict_of(validation.schema_errors());
}

Verdict JudgedSchema::document(std::string const& text) const
{
  return verdict_of(validation.check(bytes(text), 1).errors);
}
