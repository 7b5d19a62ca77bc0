#pragma once

#include <string>
#include <vector>

/// What came of a run of a program in which the system failed it.
struct FaultyRun
{
  bool was_met;  // whether the program came to the call that was to fail
  int exit_code; // -1 if a signal ended it
  std::string output;
  std::string messages;
};

/// Runs a program, the first of `arguments`, where `fault` is what FailingCalls.cpp takes and `file` what may change there,
/// in a locale of that name.
FaultyRun run_with_fault(std::vector<std::string> const& arguments, std::string const& fault,
  std::string const& locale = "C", std::string const& file = std::string());

/// What a file has in it; empty where there is none.
std::string contents_of(std::string const& file);
