// Writes the table of the faulty engines and of what sees them, as faults.txt holds it. An argument is a part of the names
// of the faults wanted, or one list of them: --fixed, those that the checks written by hand see; --subtle, those that only
// the generated cases see; --promises, those read off the headers; --rules, those against what the headers refer to; --held,
// those of what is held, deep, large or rare; --outside, those of somebody who does not know the suite, of which a second
// argument chooses; --third-trees, --third-loads, --third-rules, those of them that show in combinations only;
// --fourth, those of what was the weakest.
// --freedoms writes the engines that break nothing, which nothing sees. A last argument "@FILE" names a former table: what
// sees a fault there is run again, and all the rest only where that comes to something else.

#include "Faults.h"
#include "SuiteRun.h"

#include <cstdio>
#include <cstring>
#include <fstream>
#include <set>
#include <string>
#include <vector>

namespace
{
// The rows of a former table, whose groups are run alone: where they come to what they did, the row stays.
std::vector<std::string> known;

std::string row_of(Fault const& fault, std::vector<Check> (*run)(Factory const& factory))
{
  std::string const begin = table_row(fault, {});
  for (std::string const& row : known)
    if (row.compare(0, begin.size(), begin) == 0)
    {
      std::set<std::string> const groups = groups_of(row);
      std::string const seen = run_with(fault, [&](Factory const& factory) { return run_groups(factory, groups); });
      if (seen == row)
        return seen;
    }
  return run_with(fault, run);
}

void write(std::vector<Fault> const& faults, std::vector<Check> (*run)(Factory const& factory), char const* wanted)
{
  for (Fault const& fault : faults)
  {
    if (wanted != nullptr && std::strstr(fault.name, wanted) == nullptr &&
        std::strstr(fault.operation, wanted) == nullptr)
      continue;
    std::printf("%s\n", row_of(fault, run).c_str());
    std::fflush(stdout);
  }
}

void read_known(char const* file)
{
  std::ifstream rows(file);
  for (std::string row; std::getline(rows, row);)
    known.push_back(row);
}
}

int main(int argc, char** argv)
{
  if (argc > 1 && argv[argc - 1][0] == '@')
    read_known(argv[--argc] + 1);
  std::string const first = argc > 1 ? argv[1] : "";
  bool const is_every = first.substr(0, 2) != "--";
  char const* const wanted = argc > 1 && is_every ? argv[1] : nullptr;
  if (is_every || first == "--fixed")
    write(all_faults(), run_fixed_classes, wanted);
  if (is_every || first == "--subtle")
    write(all_subtle_faults(), run_generated_classes, wanted);
  if (is_every || first == "--promises")
    write(promise_faults(), run_all_classes, wanted);
  if (is_every || first == "--rules")
    write(rule_faults(), run_all_classes, wanted);
  if (is_every || first == "--held")
    write(held_faults(), run_all_classes, wanted);
  if (is_every || first == "--outside")
  {
    char const* const chosen = is_every ? wanted : (argc > 2 ? argv[2] : nullptr);
    write(outside_tree_faults(), run_drawn_first, chosen);
    write(outside_value_faults(), run_drawn_first, chosen);
    write(outside_load_faults(), run_all_classes, chosen);
    write(outside_second_faults(), run_drawn_first, chosen);
  }
  if (is_every || first == "--third-trees")
  {
    write(outside_third_tree_faults(), run_until_seen, wanted);
    write(outside_third_typed_faults(), run_until_seen, wanted);
  }
  if (is_every || first == "--third-loads")
  {
    write(outside_third_load_faults(), run_until_seen, wanted);
    write(outside_third_save_faults(), run_until_seen, wanted);
  }
  if (is_every || first == "--third-rules")
  {
    write(outside_third_schema_faults(), run_rules_until_seen, wanted);
    write(outside_third_search_faults(), run_rules_until_seen, wanted);
  }
  if (is_every || first == "--fourth")
    write(outside_fourth_faults(), run_rules_until_seen, wanted);
  if (first == "--freedoms")
    write(freedoms(), run_all_classes, nullptr);
}
