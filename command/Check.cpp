#include "Loading.h"
#include "Verb.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>
#include <string>
#include <vector>

namespace
{
char const description[] = "Check that documents are well-formed and, with schemas, valid.";

char const footer[] =
  R"(Examples:
  axm check books.xml
  axm check *.xml --schema urn:books=books.xsd --no-namespace-schema plain.xsd

What is wrong is said as file:line:column: text, with the line. Without a schema, documents
only have to be well-formed; so has one whose root is in a namespace without a schema.

The exit code is 0 if all are good, 1 if any is not, 2 for wrong usage.)";

struct Request
{
  std::vector<std::string> files;
  std::vector<std::string> schemas;
  std::string plain_schema;
};

std::size_t separator(std::string const& schema)
{
  // A namespace may hold the sign; a file name after it seldom does.
  return schema.rfind('=');
}

// An empty file name, as an unset variable of a script leaves it, must not pass for "no schema".
std::string wrong_schema(std::string const& schema)
{
  bool const has_file = separator(schema) != std::string::npos && separator(schema) + 1 != schema.size();
  return has_file ? std::string() : schema + " is not of the form NS=XSD";
}

std::string wrong_file(std::string const& file)
{
  return file.empty() ? "the file name is empty" : std::string();
}

axmLoadOptions make_options(Request const& request)
{
  bool const validates = !request.schemas.empty() || !request.plain_schema.empty();
  axmLoadOptions options(validates ? axmValidateWithSchemas : axmValidateNone);
  for (std::string const& schema : request.schemas)
    options.add_external_schema(
      apString(schema.substr(0, separator(schema)).c_str()), apPath(schema.substr(separator(schema) + 1).c_str()));
  options.set_no_namespace_schema(apPath(request.plain_schema.c_str()));
  return options;
}

int check(Request const& request)
{
  std::shared_ptr<axmDocumentFactory> const factory = engine_or_complain();
  if (factory == nullptr)
    return exit_bad_input;
  axmLoadOptions const options = make_options(request);
  int result = exit_good;
  for (std::string const& file : request.files)
    if (load_or_complain(*factory, file, options) == nullptr)
      result = exit_bad_input;
  return result;
}
}

void add_check(CLI::App& app, int& exit_code)
{
  CLI::App* const verb = app.add_subcommand("check", description);
  auto const request = std::make_shared<Request>();
  verb->add_option("FILE", request->files, "The documents")->required();
  verb->add_option("--schema", request->schemas, "NS=XSD: a schema file for a namespace; may be given again")
    ->check(wrong_schema)
    ->allow_extra_args(false);
  verb->add_option("--no-namespace-schema", request->plain_schema, "The schema file for elements in no namespace")
    ->check(wrong_file);
  verb->footer(footer);
  verb->callback([request, &exit_code] { exit_code = check(*request); });
}
