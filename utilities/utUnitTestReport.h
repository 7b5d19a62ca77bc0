#pragma once

/// The outcome of one check, as a listener gets it. All texts are UTF-8, never null, and live as long as the call.
struct utUnitTestReport
{
  bool passed;
  /// What was checked, in the words of the suite.
  char const* expression;
  /// Where: source file and line of the suite.
  char const* file;
  int line;
  /// What it means, for people.
  char const* description;
  /// The qualified name of the group that the check is of: "axmNodeUtest::test_append_child".
  char const* function;
};
