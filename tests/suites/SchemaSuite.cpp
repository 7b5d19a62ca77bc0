#include "SchemaSuite.h"

#include "Engine.h"
#include "Fields.h"

#include <axmElement.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <ostream>
#include <sstream>
#include <stdexcept>

namespace
{
SchemaTest read_test(std::vector<std::string> const& fields, std::string const& folder)
{
  bool const has_empty_end = fields.size() == 6 && fields[5].empty();
  bool const about_schema = fields[0] == "schema" && (fields.size() == 5 || has_empty_end);
  bool const about_instance = fields[0] == "instance" && fields.size() == 6 && !has_empty_end;
  if (!about_schema && !about_instance)
    throw std::runtime_error("this is no test");
  if (fields[3] != "valid" && fields[3] != "invalid")
    throw std::runtime_error("the test is neither valid nor invalid");
  SchemaTest test;
  test.set = fields[1];
  test.name = fields[2];
  test.valid = fields[3] == "valid";
  std::istringstream schemas(fields[4]);
  for (std::string schema; std::getline(schemas, schema, '|');)
    test.schemas.push_back(folder + "/" + schema);
  if (about_instance)
    test.instance = folder + "/" + fields[5];
  return test;
}

/// The target namespace that the schema states, without white space around it; empty when it states none or is no document.
apString target_namespace(apPath const& schema)
{
  apString name_space;
  axmParseError error;
  if (auto const document = engine()->loadDocument(schema, axmLoadOptions(axmValidateNone), error))
    document->getDocumentElement()->get_attribute(APSTRING("targetNamespace"), name_space);
  std::string const text = name_space.to_utf8().c_str();
  std::size_t const begin = std::min(text.find_first_not_of(" \t\n\r"), text.size());
  std::size_t const end = text.find_last_not_of(" \t\n\r");
  return end == std::string::npos ? apString() : apString::from_utf8(text.substr(begin, end + 1 - begin));
}

void add_schema(apString const& name_space, apPath const& path, axmLoadOptions& options)
{
  if (name_space.empty() && options.no_namespace_schema().empty())
    options.set_no_namespace_schema(path);
  else
    options.add_external_schema(name_space, path);
}

bool has_schema_for(apString const& name_space, axmLoadOptions const& options)
{
  if (name_space.empty())
    return !options.no_namespace_schema().empty();
  for (int i = 0; i < options.num_external_schemas(); ++i)
    if (options.external_namespace(i) == name_space)
      return true;
  return false;
}

/// The suite is made for processors that follow what a document says of its schemas. The engine does not; to a user, who
/// gives it all of them, these are further schemas to give.
void add_named_schemas(std::string const& instance, axmLoadOptions& options)
{
  axmParseError error;
  auto const document = engine()->loadDocument(apPath(instance.c_str()), axmLoadOptions(axmValidateNone), error);
  if (document == nullptr)
    return;
  auto const words_of = [&](apString const& attribute)
  {
    apString value;
    document->getDocumentElement()->get_attribute(attribute, value);
    std::istringstream words(value.to_utf8().c_str());
    return words;
  };
  auto const add = [&](std::string const& name_space, std::string const& location)
  {
    std::filesystem::path const file = std::filesystem::path(instance).parent_path() / location;
    if (!has_schema_for(apString(name_space.c_str()), options) && std::filesystem::is_regular_file(file))
      add_schema(apString(name_space.c_str()), apPath(file.string().c_str()), options);
  };
  std::istringstream pairs = words_of(APSTRING("xsi:schemaLocation"));
  for (std::string name_space, location; pairs >> name_space >> location;)
    add(name_space, location);
  std::istringstream single = words_of(APSTRING("xsi:noNamespaceSchemaLocation"));
  if (std::string location; single >> location)
    add({}, location);
}

axmLoadOptions options_for(SchemaTest const& test)
{
  axmLoadOptions options(axmValidateWithSchemas);
  for (std::string const& schema : test.schemas)
  {
    apPath const path(schema.c_str());
    add_schema(target_namespace(path), path, options);
  }
  if (!test.instance.empty())
    add_named_schemas(test.instance, options);
  return options;
}

std::string joined(std::vector<std::string> const& schemas)
{
  std::string text;
  for (std::string const& schema : schemas)
    text += (text.empty() ? "" : "|") + schema;
  return text;
}

std::shared_ptr<axmDocument> load(SchemaTest const& test, axmParseError& error)
{
  axmLoadOptions const options = options_for(test);
  if (!test.instance.empty())
    return engine()->loadDocument(apPath(test.instance.c_str()), options, error);
  std::string const unrelated = "<unrelated xmlns='urn:in-no-schema'/>";
  return engine()->loadDocument(apByteArray(unrelated.data(), unrelated.size()), options, error);
}

/// Tabs and line ends in a message would break the list of disagreements.
std::string in_one_field(std::string text)
{
  std::replace_if(
    text.begin(), text.end(), [](char c) { return c == '\t' || c == '\n' || c == '\r'; }, ' ');
  return text;
}

/// What came instead of what the suite says; empty where it came out so.
std::string disagreement(SchemaTest const& test, GuardedEnd const& end)
{
  switch (end.how)
  {
  case GuardedEnd::How::crashed:
    return "crashed: " + end.text;
  case GuardedEnd::How::overran:
    return "overran";
  case GuardedEnd::How::answered:
    break;
  }
  if (end.text.empty() == test.valid)
    return {};
  return end.text.empty() ? "accepted" : "refused: " + in_one_field(end.text);
}

int const tests_between_reports = 2000;
}

std::vector<SchemaTest> read_schema_suite(std::string const& folder)
{
  std::string const file = folder + "/tests.tsv";
  std::ifstream input(file);
  if (!input)
    throw std::runtime_error(file + ": cannot be read");
  std::vector<SchemaTest> tests;
  std::string line;
  for (int number = 1; std::getline(input, line); ++number)
  {
    if (line.empty() || line[0] == '#')
      continue;
    try
    {
      tests.push_back(read_test(split_fields(line), folder));
    }
    catch (std::runtime_error const& error)
    {
      throw std::runtime_error(file + ":" + std::to_string(number) + ": " + error.what());
    }
  }
  return tests;
}

std::string refusal(SchemaTest const& test)
{
  axmParseError error;
  if (load(test, error) != nullptr)
    return {};
  std::ostringstream text;
  text << error.url().to_utf8().c_str() << ':' << error.line_number() << ':' << error.column_number() << ": "
       << error.message().to_utf8().c_str();
  return text.str();
}

SchemaResult run_schema_suite(std::vector<SchemaTest> const& tests, KnownExceptions const& known,
  GuardedLimits const& limits, std::ostream& disagreements, std::ostream& progress)
{
  SchemaResult result;
  std::vector<std::string> found(tests.size());
  std::size_t done = 0;
  auto const report = [&](std::size_t number, GuardedEnd const& end)
  {
    SchemaTest const& test = tests[number];
    found[number] = disagreement(test, end);

    SchemaTally& tally = test.instance.empty() ? result.schemas : result.instances;
    tally.tests += 1;
    tally.agree += found[number].empty() ? 1 : 0;
    result.crashed += end.how == GuardedEnd::How::crashed ? 1 : 0;
    result.overran += end.how == GuardedEnd::How::overran ? 1 : 0;
    if (end.seconds > result.slowest_seconds)
    {
      result.slowest_seconds = end.seconds;
      result.slowest = test.instance.empty() ? joined(test.schemas) : test.instance;
    }
    result.peak_bytes = std::max(result.peak_bytes, end.peak_bytes);

    ++done;
    if (done % tests_between_reports == 0 || done == tests.size())
      progress << done << " of " << tests.size() << " tests" << std::endl;
  };
  run_guarded(
    tests.size(), [&tests](std::size_t number) { return refusal(tests[number]); }, limits, report);

  for (std::size_t i = 0; i < tests.size(); ++i)
  {
    SchemaTest const& test = tests[i];
    auto const reason = known.find(test.name);
    if (found[i].empty() && reason != known.end())
      result.outdated.push_back(test.name);
    if (found[i].empty())
      continue;
    result.unexplained += reason == known.end() ? 1 : 0;
    disagreements << (test.instance.empty() ? "schema" : "instance") << '\t' << test.set << '\t' << test.name << '\t'
                  << (test.valid ? "valid" : "invalid") << '\t' << joined(test.schemas) << '\t' << test.instance << '\t'
                  << found[i] << '\t' << (reason == known.end() ? "no reason is known" : reason->second) << '\n';
  }
  return result;
}
