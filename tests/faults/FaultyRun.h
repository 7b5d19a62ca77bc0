#pragma once

#include <string>
#include <vector>

/// What came of a run of the program axm in which the system failed it.
struct FaultyRun
{
  bool was_met;  // whether the program came to the call that was to fail
  int exit_code; // -1 if a signal ended it
  std::string messages;
};

/// Runs the program with `arguments`, where `fault` is what FailingCalls.cpp takes, in a locale of that name.
FaultyRun run_with_fault(
  std::vector<std::string> const& arguments, std::string const& fault, std::string const& locale = "C");
