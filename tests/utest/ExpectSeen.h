#pragma once

#include "Faults.h"
#include "Lines.h"
#include "SuiteRun.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

// Runs the suite on an engine with each of the faults and holds what failed to the table.
inline void expect_seen(std::vector<Fault> const& faults, std::vector<Check> (*run)(Factory const& factory))
{
  std::vector<std::string> const table = lines_of_file("faults.txt");
  for (Fault const& fault : faults)
  {
    std::string const row = run_with(fault, run);
    EXPECT_NE(row.back(), '|') << row;
    EXPECT_EQ(std::count(table.begin(), table.end(), row), 1) << row;
  }
}
