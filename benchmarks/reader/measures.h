#pragma once

#include "Document.h"
#include "Folder.h"
#include "Report.h"
#include "Timing.h"

#include <string>
#include <vector>

struct Contender;

// Extraction of all that a document's task has. The run fails when anything else is found than is there.
Run extraction(Contender const& contender, Document const& document);

struct Extent
{
  int runs = 9;
  double least_mean = 1.6; // against pugixml
  bool only_pugixml = false;
};

// Extraction from each document by each contender, as ratios to the reader.
void measure_documents(
  TemporaryFolder const& folder, std::vector<std::string> const& files, Extent const& extent, Report& report);

// How the cost grows with size, depth, siblings and absent attributes, and what the first record and memory cost.
void measure_growth(TemporaryFolder const& folder, int runs, Report& report);
