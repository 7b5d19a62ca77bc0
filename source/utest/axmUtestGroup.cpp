#include "axmUtestGroup.h"

#include <apStringFormatter.h>
#include <utUnitTest.h>

axmUtestGroup::axmUtestGroup(utUnitTest* given_tester, char const* given_file, char const* given_function)
  : tester(given_tester),
    file(given_file),
    function(given_function)
{
}

bool axmUtestGroup::check(bool ok, char const* expression, int line, char const* description) const
{
  utUnitTest::get_tester()->utest_handler(ok ? 1 : 0, expression, file, line, description, function);
  return ok;
}

bool axmUtestGroup::prerequisite(bool ok, char const* expression, int line, char const* description) const
{
  return ok || check(ok, expression, line, description);
}

bool axmUtestGroup::check(
  apString const& actual, apString const& expected, char const* expression, int line, char const* description) const
{
  bool const ok = actual == expected;
  if (!ok)
    print_difference(actual, expected);
  return check(ok, expression, line, description);
}

bool axmUtestGroup::check(int actual, int expected, char const* expression, int line, char const* description) const
{
  return check(apStringFormatter::format(L"%d", actual), apStringFormatter::format(L"%d", expected), expression, line,
    description);
}

void axmUtestGroup::print_difference(apString const& actual, apString const& expected) const
{
  tester->printf("Expected \"%s\"\nActual   \"%s\"", expected.to_utf8().c_str(), actual.to_utf8().c_str());
}

void axmUtestGroup::ended_by(char const* what, int line) const
{
  tester->printf("Exception: %s", what);
  check(false, "!exception", line, "the group was ended by an exception");
}
