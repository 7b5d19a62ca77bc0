// Validates documents with axs, libxml2 and Xerces-C, each in its best way, in turn. Shown are the medians in milliseconds of
// processor time, the schema compiled before, and how many times as long as the load with validation each takes; besides
// that, how long the schema takes to be compiled the first time: axs keeps it.
//
//   validation_benchmark [--rounds N] [--records N] [--axm PROGRAM]    on documents that are made; with the program axm,
//                                                                      besides that, it beside the command xmllint
//   validation_benchmark [--rounds N] SCHEMA DOCUMENT
//   validation_benchmark [--rounds N] --compile SCHEMA...              how long schemas take to be compiled anew

#include "Contender.h"
#include "Timing.h"
#include "commands.h"
#include "conditions.h"
#include "documents.h"
#include "growth.h"

#include <libxml/xmlversion.h>
#include <xercesc/util/XercesVersion.hpp>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
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
  {"Xerces-C, tree", make_xerces_dom}, {"Xerces-C, SAX", make_xerces_sax}};

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
      double const start = Timing::now();
      contenders[i] = ways[i].make(made.schema);
      double const ready = Timing::now();
      all_agree = contenders[i]->run(made.document) && all_agree;
      run[i].push_back(Timing::now() - ready);
      compile[i].push_back(ready - start);
    }
  double const ours = Timing::median(run[1]);
  std::printf("%s\n  %-22s %12s %12s %8s\n", made.name.c_str(), "", "first schema", "document, ms", "ratio");
  for (std::size_t i = 0; i < count; ++i)
    std::printf("  %-22s %12.2f %12.2f %8.2f\n", ways[i].name, compile[i].front(), Timing::median(run[i]),
      Timing::median(run[i]) / ours);
  std::fflush(stdout);
  if (!all_agree)
    std::printf("  not all of them take the document for valid\n");
  return all_agree;
}

bool measure_compiling(std::string const& schema, int rounds)
{
  std::vector<double> ours;
  std::vector<double> theirs;
  bool all_agree = true;
  for (int round = 0; round < rounds; ++round)
  {
    double const start = Timing::now();
    all_agree = compile_with_axs(schema) && all_agree;
    double const middle = Timing::now();
    all_agree = compile_with_libxml2(schema) && all_agree;
    ours.push_back(middle - start);
    theirs.push_back(Timing::now() - middle);
  }
  std::printf("%s\n  axs %.2f ms, libxml2 %.2f ms, ratio %.2f%s\n", schema.c_str(), Timing::median(ours),
    Timing::median(theirs), Timing::median(theirs) / Timing::median(ours),
    all_agree ? "" : ": not both take it for right");
  return all_agree;
}

bool measure_made(int records, int rounds, std::string const& program)
{
  std::filesystem::path const place = std::filesystem::temp_directory_path() / "axm_validation_benchmark";
  std::filesystem::create_directories(place);
  std::string const folder = place.string();
  bool all_agree = true;
  for (int const part : {8, 4, 2, 1})
    all_agree = measure(make_books(folder, records / part), rounds) && all_agree;
  for (int const part : {4, 2, 1})
    all_agree = measure(make_keys(folder, records / part), rounds) && all_agree;
  all_agree = measure_growth(folder, rounds) && all_agree;
  if (!program.empty())
    all_agree = measure_commands(program, folder, rounds) && all_agree;
  std::filesystem::remove_all(place);
  return all_agree;
}
}

int main(int argc, char** argv)
{
  int rounds = 5;
  int records = 80000;
  bool is_compiling = false;
  std::string program;
  std::vector<std::string> files;
  for (int i = 1; i < argc; ++i)
  {
    std::string const argument = argv[i];
    if (argument == "--rounds" && i + 1 < argc)
      rounds = std::max(1, std::atoi(argv[++i]));
    else if (argument == "--records" && i + 1 < argc)
      records = std::max(1, std::atoi(argv[++i]));
    else if (argument == "--axm" && i + 1 < argc)
      program = argv[++i];
    else if (argument == "--compile")
      is_compiling = true;
    else
      files.push_back(argument);
  }
  for (std::string const& line : conditions({"libxml2 " LIBXML_DOTTED_VERSION, "Xerces-C " XERCES_FULLVERSIONDOT}))
    std::printf("%s\n", line.c_str());
  std::printf("\n");
  bool all_agree = true;
  if (is_compiling)
    for (std::string const& file : files)
      all_agree = measure_compiling(file, rounds) && all_agree;
  else if (files.size() == 2)
    all_agree = measure({files[1], files[0], files[1]}, rounds);
  else
    all_agree = measure_made(records, rounds, program);
  return all_agree ? 0 : 1;
}
