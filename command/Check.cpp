#include "BuiltInCheck.h"
#include "CommonOptions.h"
#include "FileJobs.h"
#include "Loading.h"
#include "Messages.h"
#include "Verb.h"
#include "VerbOptions.h"

#include <cstdint>
#include <limits>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace
{
char const description[] = "Check that documents are well-formed and, with schemas, valid.";

char const footer[] =
  R"(Examples:
  axm check books.xml
  axm check *.xml --schema urn:books=books.xsd --no-namespace-schema plain.xsd
  xz -dc large.xml.xz | axm check - --no-namespace-schema plain.xsd
  axm check --schemas-only books.xsd

What is wrong is said as file:line:column: text, with the line; of each file up to 20 times,
or with --all-errors as often as there is something wrong. Files of any size are read in
one pass and little memory; the schemas are compiled once.

Schemas are read from files on this computer, never from an address: where a schema imports a
namespace from one, --schema says which file to take, also with --schemas-only.

Without a schema, documents only have to be well-formed. With schemas, a document fails, too,
in which nothing is declared in them: then nothing was checked.

The exit code is 0 if all are good, 1 if any is not, 2 for wrong usage.)";

struct Request
{
  std::vector<std::string> files;
  std::vector<std::string> schemas;
  std::string plain_schema;
  bool all_errors = false;
  bool schemas_only = false;
  unsigned jobs = 1;

  std::size_t max_errors() const { return all_errors ? std::numeric_limits<std::size_t>::max() : 20; }
  bool validates() const { return !schemas.empty() || !plain_schema.empty(); }
};

// Each line is looked for from the beginning of its file.
std::size_t const max_lines_shown = 20;

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
  axmLoadOptions options(request.validates() ? axmValidateWithSchemas : axmValidateNone);
  for (std::string const& schema : request.schemas)
    options.add_external_schema(
      apString(schema.substr(0, separator(schema)).c_str()), apPath(schema.substr(separator(schema) + 1).c_str()));
  options.set_no_namespace_schema(apPath(request.plain_schema.c_str()));
  return options;
}

bool complain_of_all(std::vector<axmParseError> const& errors, std::string const& file, bool has_lines = true)
{
  for (std::size_t i = 0; i < errors.size(); ++i)
    if (has_lines && i < max_lines_shown)
      complain_about(errors[i], file);
    else
      complain_in_one_line(errors[i], file, {});
  return errors.empty();
}

bool check_schema(std::string const& file, Request const& request)
{
  return complain_of_all(built_in_schema_check(file, make_options(request), request.max_errors()), file);
}

bool check_document(BuiltInCheck const& engine, std::string const& file, Request const& request, JobOutput& output)
{
  std::string const name = shown_name(file);
  BuiltInCheck::Result const result =
    engine.run(file, request.max_errors(), [&](std::uint64_t bytes) { output.show_bytes(bytes); });
  bool const is_good = complain_of_all(result.errors, name, result.has_lines);
  if (!result.is_whole)
    messages() << name << ": this is all that is shown of it; --all-errors shows the rest\n";
  if (!is_good || !request.validates() || result.has_assessed)
    return is_good;
  messages() << name << ": nothing in it is declared in the schemas, so nothing was checked\n";
  return false;
}

int check(Request const& request)
{
  std::unique_ptr<BuiltInCheck> const engine =
    built_in_check(request.schemas_only ? axmLoadOptions() : make_options(request));
  if (engine == nullptr)
    return engine_or_complain() == nullptr ? exit_bad_input : exit_good;
  if (!complain_of_all(engine->schema_errors(), request.plain_schema))
    return exit_bad_input;
  OutputFile output{std::string()};
  auto const check_one = [&](std::string const& file, JobOutput& job)
  {
    bool const is_good =
      request.schemas_only ? check_schema(file, request) : check_document(*engine, file, request, job);
    return is_good ? exit_good : exit_bad_input;
  };
  return FileJobs::worst(FileJobs(request.jobs).run(request.files, output, check_one));
}
}

void add_check(CLI::App& app, int& exit_code)
{
  VerbOptions verb(app, "check", description, footer);
  auto const request = std::make_shared<Request>();
  CommonOptions::add_files(verb, request->files);
  verb.add("--schema", request->schemas, "A schema file for a namespace; may be given again")
    .value_name("NS=XSD")
    .checked_by(wrong_schema)
    .one_at_a_time();
  verb.add("--no-namespace-schema", request->plain_schema, "The schema file for elements in no namespace")
    .value_name("FILE")
    .checked_by(wrong_file);
  verb.add_flag("--all-errors", request->all_errors, "Show everything that is wrong with a file, and not the first 20");
  verb.add_flag("--schemas-only", request->schemas_only, "The files are schemas; say whether these are right");
  CommonOptions::add_jobs(verb, request->jobs);
  verb.run([request, &exit_code] { exit_code = check(*request); });
}
