// The engine against the W3C's XML conformance suite. What the suite says and what is known to come out otherwise are
// both held one document at a time: a disagreement that appears fails a test, and so does one that has gone, so that
// the lists beside this file stay true.

#include "Engine.h"
#include "KnownExceptions.h"
#include "Outline.h"
#include "XmlSuite.h"

#include <apProcessControl.h>

#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <map>
#include <sstream>

namespace
{
std::vector<XmlTest> const& suite()
{
  static std::vector<XmlTest> const tests = read_xml_suite(AXM_XML_SUITE);
  return tests;
}

enum class Resolution
{
  disabled,
  enabled
};

struct Loaded
{
  std::shared_ptr<axmDocument> document;
  axmParseError error;
};

/// Loads without validation. Most tests allow external entities: they are files of the suite.
Loaded load(std::string const& file, Resolution resolution = Resolution::enabled)
{
  axmLoadOptions options(axmValidateNone);
  options.set_disable_entity_resolution(resolution == Resolution::disabled);
  Loaded loaded;
  loaded.document = engine()->loadDocument(apPath(file.c_str()), options, loaded.error);
  return loaded;
}

std::string describe(axmParseError const& error)
{
  std::ostringstream text;
  text << error.url().to_utf8().c_str() << ':' << error.line_number() << ':' << error.column_number() << ": "
       << error.message().to_utf8().c_str();
  return text.str();
}

bool must_load(XmlTest const& test)
{
  return test.type == "valid" || test.type == "invalid";
}

/// What disagrees with the suite: empty where the document loads as it should, or fails as it should.
std::string disagreement(XmlTest const& test)
{
  auto const loaded = load(test.file);
  if (loaded.document == nullptr && loaded.error.invalid())
    return "failed without an error";
  if (loaded.document != nullptr && !loaded.error.invalid())
    return "loaded with an error";
  if (test.type == "error")
    return {};
  if (must_load(test) && loaded.document == nullptr)
    return describe(loaded.error);
  if (!must_load(test) && loaded.document != nullptr)
    return "loads";
  return {};
}

/// What a save and a load of what was saved lose; empty where nothing is lost, and for a document that does not load.
std::string loss(XmlTest const& test)
{
  auto const first = load(test.file);
  if (first.document == nullptr)
    return {};
  // Beside the original, so that the relative names in it mean the same.
  std::string const file = test.file + "." + std::to_string(apProcessControl::getpid()) + ".xml";
  apPath const path(file.c_str());
  if (!engine()->saveDocument(first.document, path))
    return "cannot be saved";
  auto const second = load(file);
  path.delete_file();
  if (second.document == nullptr)
    return "saved, does not load: " + describe(second.error);
  return first_difference(full_outline(*first.document), full_outline(*second.document));
}

/// How the data of a document differs from its canonical form; empty where it does not, and where there is none.
std::string data_difference(XmlTest const& test)
{
  if (!must_load(test) || test.canonical_file.empty())
    return {};
  auto const loaded = load(test.file);
  if (loaded.document == nullptr)
    return {};
  auto const canonical = load(test.canonical_file);
  if (canonical.document == nullptr)
    return "the canonical form does not load: " + describe(canonical.error);
  return first_difference(data_outline(*loaded.document), data_outline(*canonical.document));
}

/// Checks every document and holds the outcome against the list in `name`.
void hold_against_list(std::string const& name, std::function<std::string(XmlTest const&)> const& check)
{
  auto known = read_known_exceptions(std::string(AXM_SUITE_LISTS) + "/" + name);
  for (XmlTest const& test : suite())
  {
    std::string const found = check(test);
    auto const listed = known.find(test.id);
    if (listed == known.end())
    {
      EXPECT_EQ(found, "") << test.id << " (" << test.type << ") is not in " << name << "\n" << test.file;
      continue;
    }
    EXPECT_NE(found, "") << test.id << " (" << test.type << ") is in " << name << " without need: " << listed->second;
    known.erase(listed);
  }
  for (auto const& [id, reason] : known)
    ADD_FAILURE() << id << " in " << name << " is no test of the suite";
}

std::string read_text(std::string const& file)
{
  std::ifstream input(file, std::ios::binary);
  std::ostringstream text;
  text << input.rdbuf();
  return text.str();
}
}

TEST(xml_suite, documents_load_or_fail_as_the_suite_says_but_for_the_listed_ones)
{
  hold_against_list("xml_disagreements.tsv", disagreement);
}

TEST(xml_suite, as_many_documents_agree_as_the_table_says)
{
  struct Row
  {
    int tests = 0;
    int agree = 0;
  };
  std::map<std::string, Row> rows;
  for (XmlTest const& test : suite())
  {
    int const agrees = disagreement(test).empty() ? 1 : 0;
    std::string const edition = test.is_of_fifth_edition ? "all\tfifth edition" : "all\tedition before the fifth";
    for (std::string const& group : {test.collection + "\t" + test.type, edition, std::string("all\tall")})
    {
      rows[group].tests += 1;
      rows[group].agree += agrees;
    }
  }
  std::ostringstream table;
  table << "collection\ttype\ttests\tagree\n";
  for (auto const& [group, row] : rows)
    table << group << '\t' << row.tests << '\t' << row.agree << '\n';
  EXPECT_EQ(table.str(), read_text(std::string(AXM_SUITE_LISTS) + "/xml_agreements.tsv"));
}

// The catalogue itself says of which tests that is so.
TEST(xml_suite, what_disagrees_for_its_edition_is_no_test_of_the_fifth)
{
  auto const known = read_known_exceptions(std::string(AXM_SUITE_LISTS) + "/xml_disagreements.tsv");
  int found = 0;
  for (XmlTest const& test : suite())
  {
    auto const listed = known.find(test.id);
    bool const for_edition = listed != known.end() && listed->second.find("first four editions") != std::string::npos;
    EXPECT_FALSE(for_edition && test.is_of_fifth_edition) << test.id;
    EXPECT_FALSE(listed != known.end() && !for_edition && !test.is_of_fifth_edition) << test.id;
    found += for_edition ? 1 : 0;
  }
  EXPECT_GT(found, 0);
}

TEST(xml_suite, what_loads_comes_back_from_a_save)
{
  for (XmlTest const& test : suite())
    EXPECT_EQ(loss(test), "") << test.id << " (" << test.type << ")\n" << test.file;
}

TEST(xml_suite, data_is_that_of_the_canonical_form_but_for_the_listed_ones)
{
  hold_against_list("xml_data_differences.tsv", data_difference);
}

TEST(xml_suite, resolution_matters_only_to_documents_that_name_an_external_identifier)
{
  int differences = 0;
  for (XmlTest const& test : suite())
  {
    bool const loads = load(test.file).document != nullptr;
    bool const loads_alone = load(test.file, Resolution::disabled).document != nullptr;
    if (loads == loads_alone)
      continue;
    ++differences;
    std::string const text = read_text(test.file);
    bool const names_one = text.find("SYSTEM") != std::string::npos || text.find("PUBLIC") != std::string::npos;
    EXPECT_TRUE(names_one) << test.id;
  }
  EXPECT_GT(differences, 0);
}
