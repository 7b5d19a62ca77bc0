#pragma once

#include "axmUtestGroupListener.h"

#include <apString.h>

#include <exception>

class utUnitTest;

// A group of checks that is under way: where its reports come from and how they are made. Not installed.
//
// Every operation tells whether the check passed, so that a group can leave out what makes no sense without it. Each
// check fetches the runner in charge anew; diagnostic text goes to the runner that the check class was made with.
class axmUtestGroup
{
public:
  // Nothing is copied or owned.
  axmUtestGroup(utUnitTest* tester, char const* file, char const* function);

  bool check(bool ok, char const* expression, int line, char const* description) const;

  // Reported only if it fails.
  bool prerequisite(bool ok, char const* expression, int line, char const* description) const;

  // That both are equal; if they are not, they are printed.
  bool check(
    apString const& actual, apString const& expected, char const* expression, int line, char const* description) const;
  bool check(int actual, int expected, char const* expression, int line, char const* description) const;

  // A pointer would be taken for a `bool` and a description for a number's text.
  bool check(void const* ok, char const* expression, int line, char const* description) const = delete;

  void print_difference(apString const& actual, apString const& expected) const;

  // Reports that the group was ended by an exception, which no engine may throw.
  void ended_by(char const* what, int line) const;

private:
  utUnitTest* tester;
  char const* file;
  char const* function;
};

// A group of the check class `Suite`, whose operations take a `Factory`, and its qualified name.
template <class Suite, class Factory>
struct axmUtestEntry
{
  void (Suite::*run)(Factory) const;
  char const* name;
};

// Runs `run`, which makes the checks of the group `name`, unless the listener leaves it out. An engine that throws ends the
// group, not the suite.
template <class Run>
void axm_run_group(char const* name, utUnitTest* tester, char const* file, Run run)
{
  axmUtestGroupListener* const listener = axmUtestGroupListener::get();
  if (listener != nullptr && !listener->begins(name))
    return;
  try
  {
    run();
  }
  catch (std::exception const& exception)
  {
    axmUtestGroup(tester, file, name).ended_by(exception.what(), __LINE__);
  }
  catch (...)
  {
    axmUtestGroup(tester, file, name).ended_by("of an unknown kind", __LINE__);
  }
  if (listener != nullptr)
    listener->ended(name);
}

// Runs the groups of `entries` in turn.
template <class Suite, class Factory, class Entries>
void axm_run_groups(Suite const& suite, Factory&& factory, Entries const& entries, utUnitTest* tester, char const* file)
{
  for (auto const& entry : entries)
    axm_run_group(entry.name, tester, file, [&] { (suite.*entry.run)(factory); });
}
