#pragma once

#include "Hooks.h"

#include <functional>
#include <set>
#include <string>
#include <vector>

// A check as the runner received it. A process id in its texts is written as PID, a line end as \n.
struct Check
{
  bool passed;
  std::string expression;
  std::string file;
  std::string description;
  std::string function;
};

// The engine that comes with the library.
Factory default_engine();

// The same, but that it remembers what came of large data: two documents with a very large number of entities take most of
// the time of a run.
Factory quick_engine();

// Runs every class of the suite in the folder in which the program works; few rounds of what is drawn at random.
// Assertions are kept from standard error.
std::vector<Check> run_suite(Factory const& factory);

// The same for the classes whose checks are written by hand, and for those whose cases are drawn or generated, the latter
// up to the first group with a failed check.
std::vector<Check> run_fixed_classes(Factory const& factory);
std::vector<Check> run_generated_classes(Factory const& factory);

// The former, and the latter only where the former see nothing.
std::vector<Check> run_all_classes(Factory const& factory);

// The same, but before them what the model draws, and only that where it sees something.
std::vector<Check> run_drawn_first(Factory const& factory);

// All classes up to the first group with a failed check; for faults of validating and searching, without those that only
// edit.
std::vector<Check> run_until_seen(Factory const& factory);
std::vector<Check> run_rules_until_seen(Factory const& factory);

// Only the groups named, with more rounds of what is drawn where few show nothing.
std::vector<Check> run_groups(Factory const& factory, std::set<std::string> const& groups);

// The groups with failed checks in the order of their first failure, each with their number: "class::group (2)".
std::vector<std::string> failed_groups(std::vector<Check> const& checks);

// What is broken in the engine and what of the suite sees it, in one line.
struct Fault;
std::string table_row(Fault const& fault, std::vector<Check> const& checks);

// The groups of checks that a row of the table names.
std::set<std::string> groups_of(std::string const& row);

// Every fault that the fixed classes are to see, and those that only the others are.
std::vector<Fault> all_faults();
std::vector<Fault> all_subtle_faults();

// Makes the locales of the tests those of this process. Not in the environment from the start: a library below the parser
// makes a locale as it is loaded, and loses the memory for the name of the folder.
void use_test_locales();

// The row of an engine with the fault, in a folder of its own.
std::string run_with(Fault const& fault, std::function<std::vector<Check>(Factory const& factory)> const& run);
