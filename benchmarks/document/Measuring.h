#pragma once

#include "Digest.h"

#include <array>
#include <cstddef>
#include <string>
#include <vector>

enum Measure : std::size_t
{
  measure_load,
  measure_traverse,
  measure_reads,
  measure_all,
  measure_predicate,
  measure_churn,
  measure_save,
  measure_memory,
  measure_count
};

extern std::array<char const*, measure_count> const measure_names;

/// The libraries compared, the first of them axs, in the order of all results.
enum Library : std::size_t
{
  library_axs,
  library_libxml2,
  library_xerces,
  library_pugixml,
  library_count
};

extern std::array<char const*, library_count> const library_names;

/// What a library took for one document: processor time in milliseconds and memory in MB, 0 where it does not have the
/// operation; and what it found.
struct Numbers
{
  std::array<double, measure_count> best{};
  bool loaded = false;
  bool saved = false;
  double typed = 0;
  long found = -1;
  long found_some = -1;
  Digest::Sum strings{};
  Digest::Sum selection{};
  Digest::Sum saved_strings{};
};

using Results = std::array<Numbers, library_count>;

/// Measures all libraries with a document, in turn, `rounds` times. Every library has a process of its own for every
/// round, so that none meets the memory that another has left.
Results measure(std::string const& file, int rounds);

/// What the libraries do not agree on, each in a sentence; empty when all found the same. pugixml, which knows no
/// document types and no namespaces, is not asked where it cannot know.
std::vector<std::string> disagreements(std::string const& file, Results const& results);
