#pragma once

#include <axmDocumentFactory.h>
#include <axmModelUtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

class utUnitTest;

/// What of the suite is run.
struct ConformSelection
{
  /// The classes of checks; all if it is empty.
  std::vector<std::string> classes;
  /// What is drawn at random, and how much of it; see axmModelUtest.
  std::uint64_t seed = axmModelUtest::default_seed;
  int rounds = axmModelUtest::default_rounds;
};

/// The names of all classes of checks, in the order in which they run.
std::vector<std::string> conform_class_names();

/// Runs the selected classes on `factory`.
void run_conform_classes(
  ConformSelection const& selection, utUnitTest* tester, std::shared_ptr<axmDocumentFactory> const& factory);
