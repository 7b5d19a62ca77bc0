#pragma once

#include "JobOutput.h"
#include "Verb.h"

#include <functional>
#include <string>
#include <vector>

/// Does the same work for each of several files, more than one of them at a time where that is asked for. What the works
/// write and say with messages() comes in the order of the files, as if they were done one after the other.
class FileJobs
{
public:
  /// The work on one file; gives an exit code. A wrong usage ends all of it: of the files after that none is begun.
  using Work = std::function<int(std::string const& file, JobOutput& output)>;

  /// `jobs` files at a time; 0 for as many as there are processors.
  explicit FileJobs(unsigned jobs);

  /// The exit codes of the works, in the order of the files; of those that were not begun exit_usage.
  std::vector<int> run(std::vector<std::string> const& files, OutputFile& output, Work const& work) const;

  /// The greatest exit code.
  static int worst(std::vector<int> const& codes);

private:
  unsigned const threads;
};
