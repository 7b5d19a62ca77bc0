#pragma once

#include "GuardedRun.h"
#include "KnownExceptions.h"

#include <iosfwd>
#include <string>
#include <vector>

/// One test of a suite of schemas: whether a schema is one, or whether an instance is valid against it.
struct SchemaTest
{
  std::string set;
  std::string name;
  bool valid = false;
  /// The schema documents, one or several.
  std::vector<std::string> schemas;

  /// Empty when the test is about the schema. What it names as its schemas itself is given to the engine, too, where no
  /// schema of that namespace is among the documents.
  std::string instance;
};

/// The tests in `folder`. Its file tests.tsv holds one a line, the fields parted by tabs and the files relative to the
/// folder; a line that begins with '#' is a comment:
///
///     schema SET NAME valid|invalid SCHEMA
///     instance SET NAME valid|invalid SCHEMA INSTANCE
///
/// Several schema documents of one test stand in one field, parted by '|'. A test of a schema may have an empty field more.
///
/// Throws std::runtime_error, with the line, when it cannot be read.
std::vector<SchemaTest> read_schema_suite(std::string const& folder);

/// Why the engine refuses what the test is about; empty when it accepts it. A schema is asked for by loading a document
/// that has nothing to do with it: the load fails when the schema itself is none.
std::string refusal(SchemaTest const& test);

/// How many tests of one kind there are, and how many came out as the suite says.
struct SchemaTally
{
  int tests = 0;
  int agree = 0;
};

/// What came out of all of them. A test that crashed or overran agrees with nothing.
struct SchemaResult
{
  SchemaTally schemas;
  SchemaTally instances;
  int crashed = 0;
  int overran = 0;
  /// That do not agree and are not among the known exceptions.
  int unexplained = 0;
  /// Those among the known exceptions that agree by now.
  std::vector<std::string> outdated;

  double slowest_seconds = 0;
  std::string slowest;
  std::size_t peak_bytes = 0;
};

/// Runs every test in a child process. Writes a line for each that does not agree to `disagreements`, in the order of the
/// suite: kind, set, name, what the suite says, files, what came instead and the reason that is known, parted by tabs.
/// Tells on `progress` how far it is.
SchemaResult run_schema_suite(std::vector<SchemaTest> const& tests, KnownExceptions const& known,
  GuardedLimits const& limits, std::ostream& disagreements, std::ostream& progress);
