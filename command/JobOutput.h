#pragma once

#include "OutputFile.h"
#include "Progress.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>
#include <string_view>

/// What the work on one of several files writes; see FileJobs. Whoever's turn it is writes on, the others are kept waiting
/// in memory. Belongs to the thread of its work.
class JobOutput
{
public:
  /// For the file `number` of those that are worked on in turn; `progress` is null where others work at the same time.
  JobOutput(OutputFile& file, std::atomic<std::size_t> const& turn, std::size_t number, Progress* progress);

  void write(std::string_view bytes);

  /// Whether everything could be written so far.
  bool good() const { return !is_turn() || target.good(); }

  /// Shows how many bytes of the file have been read.
  void show_bytes(std::uint64_t bytes);

  /// Writes what waits. To be called when it is its turn.
  void flush();

  /// Where messages about the file go, to wait for their turn.
  std::ostream& errors() { return said; }

private:
  bool is_turn() const noexcept { return current == position; }

  OutputFile& target;
  std::atomic<std::size_t> const& current;
  std::size_t const position;
  Progress* const shown;
  std::string waiting;
  std::ostringstream said;
};
