#pragma once

#include "Report.h"

#include <filesystem>
#include <string>
#include <vector>

// A folder that goes at the end.
class TemporaryFolder
{
public:
  TemporaryFolder();
  TemporaryFolder(TemporaryFolder const&) = delete;
  TemporaryFolder& operator=(TemporaryFolder const&) = delete;
  ~TemporaryFolder();

  std::string file(std::string const& name) const { return (path / name).string(); }

  std::filesystem::path path;
};

// Writes documents of several kinds and returns the folder in which they are.
std::string generate_documents(TemporaryFolder const& folder);

// Extraction from each document by each contender, as ratios to the reader, whose geometric mean against pugixml is to be
// at least `least_mean`.
void measure_documents(std::vector<std::string> const& files, int runs, double least_mean, Report& report);

// How the cost grows with size, depth, siblings and absent attributes, and what the first record and memory cost.
void measure_growth(TemporaryFolder const& folder, int runs, Report& report);
