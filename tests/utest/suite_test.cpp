// The suite against the engine that comes with the library.

#include "Lines.h"
#include "SuiteFolder.h"
#include "SuiteRun.h"

#include "../TestLocale.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

namespace
{
// All checks of all classes, as one run reports them. Whoever adds a check changes it.
std::size_t const number_of_reports = 2023;

using Texts = std::vector<std::string>;

std::string line(Check const& check)
{
  return check.function + " | " + check.description + " | " + check.expression + " | " + check.file;
}

Texts lines(std::vector<Check> const& checks)
{
  Texts all;
  for (Check const& check : checks)
    all.push_back(line(check));
  return all;
}
}

TEST(conformance_suite, the_known_checks_pass_and_leave_no_files_behind)
{
  SuiteFolder const folder("axm suite test");
  Texts const before = folder.contents();
  std::vector<Check> const checks = run_suite(default_engine());
  EXPECT_EQ(failed_groups(checks), Texts());
  EXPECT_EQ(folder.contents(), before);
  std::cout << checks.size() << " reports\n";
  EXPECT_EQ(checks.size(), number_of_reports);
  Texts const expected = lines_of_file("checks.txt");
  Texts const actual = lines(checks);
  EXPECT_EQ(actual.size(), expected.size());
  for (std::size_t index = 0; index < std::min(expected.size(), actual.size()); ++index)
    ASSERT_EQ(actual[index], expected[index]) << "line " << index + 1 << " of checks.txt";
}

TEST(conformance_suite, every_check_passes_under_a_decimal_comma)
{
  use_test_locales();
  TestLocale const locale(TestLocale::comma);
  SuiteFolder const folder("axm suite comma test");
  EXPECT_EQ(failed_groups(run_suite(default_engine())), Texts());
}

TEST(conformance_suite, every_check_passes_in_a_folder_of_any_name)
{
  SuiteFolder const folder("axm suite \xC3\xA4 \xD1\x84 %20 test");
  EXPECT_EQ(failed_groups(run_fixed_classes(default_engine())), Texts());
}

TEST(conformance_suite, a_missing_data_file_is_reported)
{
  SuiteFolder const folder("axm suite data test");
  std::filesystem::remove(folder.path / "data" / "in_memory_test_schema.xsd");
  std::vector<Check> const checks = run_fixed_classes(default_engine());
  auto const found = std::count_if(checks.begin(), checks.end(),
    [](Check const& check)
    { return check.description == "Prerequisite: schema file doesn't exist - copy it in" && !check.passed; });
  EXPECT_EQ(found, 2);
}

TEST(conformance_suite, the_factory_stays_registered)
{
  SuiteFolder const folder("axm suite service test");
  Factory const given = hooked_engine(default_engine(), Hooks());
  run_fixed_classes(given);
  utServiceName resolved;
  EXPECT_EQ(utService::locate_service<axmDocumentFactory>(utServiceName(ut_lit("XMLService")), resolved), given);
}

TEST(conformance_suite, an_engine_that_stands_on_another_one_passes_too)
{
  SuiteFolder const folder("axm suite hooked test");
  EXPECT_EQ(failed_groups(run_fixed_classes(hooked_engine(default_engine(), Hooks()))), Texts());
}
