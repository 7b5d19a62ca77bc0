#include "SchemaSuite.h"

#include "Fields.h"

#include <apProcessControl.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace
{
/// The suite whose tests.tsv holds `text`.
std::vector<SchemaTest> read(std::string const& text)
{
  std::string const folder = "schema_suite_" + std::to_string(apProcessControl::getpid());
  std::filesystem::create_directory(folder);
  std::ofstream(folder + "/tests.tsv", std::ios::binary) << text;
  std::vector<SchemaTest> tests;
  try
  {
    tests = read_schema_suite(folder);
  }
  catch (...)
  {
    std::filesystem::remove_all(folder);
    throw;
  }
  std::filesystem::remove_all(folder);
  return tests;
}
}

TEST(SchemaSuite, runs_the_tests_and_lists_those_that_come_out_otherwise)
{
  GuardedLimits limits;
  limits.processes = 2;
  std::ostringstream disagreements;
  std::ostringstream progress;
  KnownExceptions const known{
    {"broken schema", "it is meant to be broken"}, {"leap day", "it was taken for a wrong date"}};
  auto const result = run_schema_suite(read_schema_suite(AXM_OWN_SCHEMAS), known, limits, disagreements, progress);

  EXPECT_EQ(result.schemas.tests, 7);
  EXPECT_EQ(result.schemas.agree, 5);
  EXPECT_EQ(result.instances.tests, 10);
  EXPECT_EQ(result.instances.agree, 7);
  EXPECT_EQ(result.crashed, 0);
  EXPECT_EQ(result.overran, 0);
  EXPECT_EQ(result.unexplained, 4);
  EXPECT_EQ(result.outdated, std::vector<std::string>{"leap day"});
  EXPECT_EQ(progress.str(), "17 of 17 tests\n");

  std::vector<std::string> listed;
  std::istringstream lines(disagreements.str());
  for (std::string line; std::getline(lines, line);)
  {
    auto const fields = split_fields(line);
    ASSERT_EQ(fields.size(), 8U) << line;
    EXPECT_EQ(fields[7], fields[2] == "broken schema" ? "it is meant to be broken" : "no reason is known");
    listed.push_back(fields[0] + ", " + fields[1] + ", " + fields[2] + ", " + fields[3] + ", " +
                     fields[6].substr(0, fields[6].find(':')));
  }
  std::vector<std::string> const expected{"schema, wrong, valid one, invalid, accepted",
    "schema, wrong, invalid one, valid, refused", "instance, wrong, valid one, invalid, accepted",
    "instance, wrong, invalid one, valid, refused", "instance, wrong, broken schema, valid, refused"};
  EXPECT_EQ(listed, expected);
}

TEST(SchemaSuite, the_known_exceptions_have_their_reasons)
{
  EXPECT_EQ(read_known_exceptions(AXM_SCHEMA_DISAGREEMENTS).size(), 24U);
}

TEST(SchemaSuite, refusals_name_the_place)
{
  SchemaTest test;
  test.schemas = {std::string(AXM_OWN_SCHEMAS) + "/note.xsd"};
  EXPECT_EQ(refusal(test), "");
  test.instance = std::string(AXM_OWN_SCHEMAS) + "/note_bad.xml";
  EXPECT_NE(refusal(test).find("note_bad.xml:1:"), std::string::npos) << refusal(test);
}

TEST(SchemaSuite, lists_that_are_none_are_refused)
{
  EXPECT_EQ(read("# comment\n\nschema\ts\tn\tvalid\ta.xsd\r\n").size(), 1U);
  EXPECT_THROW(read_schema_suite("no_such_folder"), std::runtime_error);
  EXPECT_EQ(read("schema\ts\tn\tvalid\ta.xsd|b.xsd\t\n").front().schemas.size(), 2U);
  EXPECT_THROW(read("schema\ts\tn\tvalid\n"), std::runtime_error);
  EXPECT_THROW(read("schema\ts\tn\tvalid\ta.xsd\ta.xml\n"), std::runtime_error);
  EXPECT_THROW(read("instance\ts\tn\tvalid\ta.xsd\n"), std::runtime_error);
  EXPECT_THROW(read("schema\ts\tn\tgood\ta.xsd\n"), std::runtime_error);
  EXPECT_THROW(read("grammar\ts\tn\tvalid\ta.xsd\n"), std::runtime_error);
}
