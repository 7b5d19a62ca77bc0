#include "commands.h"

#include "Timing.h"
#include "documents.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <vector>

namespace
{
int const documents = 500;

// On documents of so many books.
bool measure_on(int records, std::string const& program, std::string const& folder, int rounds)
{
  std::string files;
  Made made;
  for (int i = 0; i < documents; ++i)
  {
    made = make_books(folder, records);
    std::string const file = folder + "/small_" + std::to_string(i) + ".xml";
    std::filesystem::rename(made.document, file);
    files += " " + file;
  }
  std::pair<char const*, std::string> const commands[] = {{"axm check", program + " check --no-namespace-schema "},
    {"xmllint --stream", "xmllint --stream --noout --schema "}, {"xmllint", "xmllint --noout --schema "}};
  std::vector<double> times[std::size(commands)];
  bool all_agree = true;
  for (int round = 0; round < rounds; ++round)
    for (std::size_t i = 0; i < std::size(commands); ++i)
    {
      double const start = Timing::now_of_programs();
      all_agree =
        std::system((commands[i].second + made.schema + files + " > /dev/null 2>&1").c_str()) == 0 && all_agree;
      times[i].push_back(Timing::now_of_programs() - start);
    }
  std::printf("%d documents of %d books, one run\n  %-22s %12s %8s\n", documents, records, "", "ms", "ratio");
  for (std::size_t i = 0; i < std::size(commands); ++i)
    std::printf("  %-22s %12.2f %8.2f\n", commands[i].first, Timing::median(times[i]),
      Timing::median(times[i]) / Timing::median(times[0]));
  if (!all_agree)
    std::printf("  not all of them take the documents for valid\n");
  return all_agree;
}
}

bool measure_commands(std::string const& program, std::string const& folder, int rounds)
{
  bool all_agree = true;
  // What opening a file takes is no work of ours: the smaller the files, the more of the time it is.
  for (int const records : {10, 40, 160})
    all_agree = measure_on(records, program, folder, rounds) && all_agree;
  return all_agree;
}
