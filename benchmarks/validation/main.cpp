// Validates documents with axs, libxml2 and Xerces-C, each in its best way, in turn. Shown are the medians in milliseconds of
// processor time, the schema compiled before, and how many times as long as the load with validation each takes; besides
// that, how long the schema takes to be compiled the first time: axs keeps it.
//
//   validation_benchmark [--rounds N] [--records N] [SCHEMA DOCUMENT]

#include "Contender.h"
#include "documents.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <string>
#include <vector>

namespace
{
struct Way
{
  char const* name;
  MakeContender make;
};

Way const ways[] = {{"axs, load", make_axs_load}, {"axs, validated load", make_axs_validated_load},
  {"axs, check", make_axs_check}, {"libxml2, tree", make_libxml2_tree}, {"libxml2, stream", make_libxml2_stream},
  {"Xerces-C, SAX", make_xerces}};

double now()
{
  timespec time{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

double median(std::vector<double> times)
{
  std::sort(times.begin(), times.end());
  return times[times.size() / 2];
}

bool measure(Made const& made, int rounds)
{
  std::size_t const count = std::size(ways);
  std::vector<std::vector<double>> compile(count);
  std::vector<std::vector<double>> run(count);
  std::vector<std::unique_ptr<Contender>> contenders(count);
  bool all_agree = true;
  for (int round = 0; round < rounds; ++round)
    for (std::size_t i = 0; i < count; ++i)
    {
      contenders[i].reset();
      double const start = now();
      contenders[i] = ways[i].make(made.schema);
      double const ready = now();
      all_agree = contenders[i]->run(made.document) && all_agree;
      run[i].push_back(now() - ready);
      compile[i].push_back(ready - start);
    }
  double const ours = median(run[1]);
  std::printf("%s\n  %-22s %12s %12s %8s\n", made.name.c_str(), "", "first schema", "document, ms", "ratio");
  for (std::size_t i = 0; i < count; ++i)
    std::printf(
      "  %-22s %12.2f %12.2f %8.2f\n", ways[i].name, compile[i].front(), median(run[i]), median(run[i]) / ours);
  if (!all_agree)
    std::printf("  not all of them take the document for valid\n");
  return all_agree;
}
}

int main(int argc, char** argv)
{
  int rounds = 5;
  int records = 80000;
  std::vector<std::string> files;
  for (int i = 1; i < argc; ++i)
  {
    std::string const argument = argv[i];
    if (argument == "--rounds" && i + 1 < argc)
      rounds = std::max(1, std::atoi(argv[++i]));
    else if (argument == "--records" && i + 1 < argc)
      records = std::max(1, std::atoi(argv[++i]));
    else
      files.push_back(argument);
  }
  if (files.size() == 2)
    return measure({files[1], files[0], files[1]}, rounds) ? 0 : 1;

  std::filesystem::path const folder = std::filesystem::temp_directory_path() / "axm_validation_benchmark";
  std::filesystem::create_directories(folder);
  bool all_agree = true;
  for (int const part : {8, 4, 2, 1})
    all_agree = measure(make_books(folder.string(), records / part), rounds) && all_agree;
  for (int const part : {4, 2, 1})
    all_agree = measure(make_keys(folder.string(), records / part), rounds) && all_agree;
  std::filesystem::remove_all(folder);
  return all_agree ? 0 : 1;
}
