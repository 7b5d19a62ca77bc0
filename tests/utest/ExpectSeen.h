#pragma once

#include "Faults.h"
#include "Lines.h"
#include "SuiteRun.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

// Runs what sees each of the faults, as the table has it, on an engine with that fault: what fails of it is what the table
// says. A fault may remember what other groups did, so that it takes the whole run to see it.
inline void expect_seen(std::vector<Fault> const& faults, std::vector<Check> (*run)(Factory const& factory))
{
  std::vector<std::string> const table = lines_of_file("faults.txt");
  for (Fault const& fault : faults)
  {
    std::string const begin = table_row(fault, {});
    auto const is_its = [&begin](std::string const& row) { return row.compare(0, begin.size(), begin) == 0; };
    auto const row = std::find_if(table.begin(), table.end(), is_its);
    ASSERT_NE(row, table.end()) << begin;
    std::set<std::string> const groups = groups_of(*row);
    EXPECT_FALSE(groups.empty()) << begin;
    std::string seen = run_with(fault, [&](Factory const& factory) { return run_groups(factory, groups); });
    if (seen != *row)
      seen = run_with(fault, run);
    EXPECT_EQ(seen, *row);
  }
}
