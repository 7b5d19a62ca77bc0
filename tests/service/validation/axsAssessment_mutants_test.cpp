// Schemas and documents of others, changed by chance, judged by another validator.

#include "JudgedSchema.h"
#include "SchemaJudge.h"
#include "SchemaMutator.h"

#include <apProcessControl.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <set>
#include <sstream>
#include <vector>

namespace
{
namespace fs = std::filesystem;

struct Pair
{
  fs::path schema;
  fs::path document; // empty for none
};

std::string content_of(fs::path const& file)
{
  std::ifstream const input(file, std::ios::binary);
  std::ostringstream text;
  text << input.rdbuf();
  return text.str();
}

// Those that AXM_MUTATED_SCHEMAS lists, a file with a schema and perhaps a document in each line, parted by a tab; without
// it, those of the repository.
std::vector<Pair> pairs()
{
  char const* const list = std::getenv("AXM_MUTATED_SCHEMAS");
  if (list == nullptr)
    return {{AXM_SOURCES "/examples/books.xsd", AXM_SOURCES "/examples/books.xml"},
      {AXM_SOURCES "/examples/stations.xsd", {}}, {AXM_SOURCES "/data/in_memory_test_schema.xsd", {}},
      {AXM_SOURCES "/tests/suites/schemas/order.xsd", AXM_SOURCES "/tests/suites/schemas/order_good.xml"}};
  std::vector<Pair> listed;
  std::ifstream input(list);
  for (std::string line; std::getline(input, line);)
  {
    std::size_t const tab = line.find('\t');
    listed.push_back({line.substr(0, tab), tab == std::string::npos ? std::string() : line.substr(tab + 1)});
  }
  return listed;
}

// A folder of its own, which goes with it.
class Scratch
{
public:
  Scratch() : folder("mutants_" + std::to_string(apProcessControl::getpid())) { fs::create_directories(folder); }
  Scratch(Scratch const&) = delete;
  Scratch& operator=(Scratch const&) = delete;
  ~Scratch()
  {
    std::error_code ignored;
    fs::remove_all(folder, ignored);
  }

  // Brings the schema there, and what it refers to in its folder and below.
  void bring(fs::path const& schema, fs::path const& name)
  {
    if (!fs::is_regular_file(schema) || !brought.insert(name.string()).second)
      return;
    std::string const text = content_of(schema);
    fs::create_directories((folder / name).parent_path());
    std::ofstream(folder / name, std::ios::binary) << text;
    std::string const attribute = "schemaLocation=";
    for (std::size_t at = text.find(attribute); at != std::string::npos; at = text.find(attribute, at + 1))
    {
      std::size_t const begin = at + attribute.size() + 1;
      fs::path const location = text.substr(begin, text.find(text[begin - 1], begin) - begin);
      if (location.string().find(':') == std::string::npos && location.string().find("..") == std::string::npos)
        bring(schema.parent_path() / location, name.parent_path() / location);
    }
  }

  fs::path const folder;

private:
  std::set<std::string> brought;
};

// Schemas of others may be long.
std::size_t const max_shown = 5000;

// A message without what is particular to one schema.
std::string general(std::string const& words)
{
  std::string text;
  bool is_quoted = false;
  for (char const c : words)
  {
    if (c == '\'' || c == '"')
      is_quoted = !is_quoted;
    if (!is_quoted && (c < '0' || c > '9'))
      text += c == '\n' ? ' ' : c;
  }
  return text.substr(0, 160);
}

// Where the two differ by a rule: what each of them says who refuses, and what the schema has then.
struct Exception
{
  char const* ours;
  char const* judge;
  char const* rule;
  char const* in_schema = "";
};

std::vector<Exception> const of_schemas = {
  {"", "attribute': The attribute 'use' is not allowed", "a global attribute may say its use, which many do"},
  {"", "attribute 'schemaLocation'", "a location is the name of a file, which may have what a URI reference may not"},
  {"(element declarations consistent)", "", "Part 1, 3.8.6 cos-element-consistent: the judge does not look for it"},
  {"(unique particle attribution)", "", "Part 1, 3.8.6 cos-nonambig: the judge lets particles of one name compete"},
  {"the content is no restriction of that of", "", "Part 1, 3.9.6: the judge does not compare particles"},
  {"(src-single-facet-value)", "", "Part 2, 4.3: each facet is given once, which the judge does not look for"},
  {"'group' lacks its 'all' or 'choice' or 'sequence'", "",
    "Part 1, 3.7.2: a group has a content, which the judge lets be missing"},
};

std::vector<Exception> const of_documents = {
  {"", "No matching global declaration available for the validation root",
    "a root of which nothing is known is not assessed"},
  {"", "No precomputed value available", "Part 1, 3.11.4: the value of a field, which the judge has lost"},
  {"", "because the content type is empty",
    "Part 1, 3.4.2: what a reference to an empty group makes is not empty, and may have white space", "group ref="},
  {"", "No match found for key-sequence", "Part 1, 3.14.7: a value of the simple ur-type is compared as a text",
    "<xsd:attribute name=\"col\"/>"},
  {"there is no ID '", "", "Part 1, 3.15.4 cvc-id: the judge does not look for the ID that is referred to"},
};

bool is_explained(
  std::vector<Exception> const& exceptions, Verdict const& ours, Verdict const& judge, std::string const& pair)
{
  return std::any_of(exceptions.begin(), exceptions.end(),
    [&](Exception const& exception)
    {
      return says(ours, exception.ours) && says(judge, exception.judge) &&
             pair.find(exception.in_schema) != std::string::npos;
    });
}

class Differences
{
public:
  explicit Differences(std::vector<Exception> const& explained) : exceptions(explained) {}

  void compare(Verdict const& ours, Verdict const& judge, std::string const& where)
  {
    ++compared;
    if (ours.is_good == judge.is_good || is_explained(exceptions, ours, judge, where))
      return;
    std::string const kind = "ours: " + (ours.is_good ? "good" : general(ours.words)) +
                             "\n    judge: " + (judge.is_good ? "good" : general(judge.words));
    auto& [count, example] = kinds[kind];
    if (++count == 1)
      example = where.substr(0, max_shown) + "\n    ours: " + ours.words + "\n    judge: " + judge.words;
  }

  int compared = 0;
  std::map<std::string, std::pair<int, std::string>> kinds;

private:
  std::vector<Exception> const& exceptions;
};
}

TEST(axsAssessment_mutants, changed_schemas_are_taken_that_the_judge_takes)
{
  int const mutants = number_of("AXM_MUTANTS", 100);
  auto const seed = static_cast<std::uint32_t>(number_of("AXM_JUDGED_SEED", 1));
  Differences schemas(of_schemas);
  Differences documents(of_documents);
  for (Pair const& pair : pairs())
  {
    Scratch scratch;
    scratch.bring(pair.schema, pair.schema.filename());
    fs::path const file = scratch.folder / pair.schema.filename();
    std::string const original = content_of(pair.schema);
    for (int i = 0; i < mutants; ++i)
    {
      std::string const schema = SchemaMutator(original, seed + static_cast<std::uint32_t>(i)).mutate();
      std::ofstream(file, std::ios::binary) << schema;
      JudgedSchema const ours(file, schema);
      SchemaJudge judge(file);
      std::string const where =
        pair.schema.string() + ", " + std::to_string(seed + static_cast<std::uint32_t>(i)) + ":\n" + schema;
      schemas.compare(ours.schema(), {judge.takes_schema(), judge.words()}, where);
      if (!ours.schema().is_good || !judge.takes_schema() || pair.document.empty())
        continue;
      for (std::uint32_t number = 0; number < 5; ++number)
      {
        std::string document = content_of(pair.document);
        if (number > 0)
          document = SchemaMutator(document, seed + static_cast<std::uint32_t>(i) * 5 + number).mutate();
        bool const is_taken = judge.takes(document);
        documents.compare(ours.document(document), {is_taken, judge.words()}, where + "\n" + document);
      }
    }
  }
  for (Differences const& found : {schemas, documents})
    for (auto const& [kind, example] : found.kinds)
      ADD_FAILURE() << example.first << " of " << found.compared << ": " << kind << "\n  " << example.second;
  std::cout << schemas.compared << " schemas, " << documents.compared << " documents\n";
}
