// Takes the same fields out of the same documents with the streaming reader and with other libraries.

#include "Report.h"
#include "conditions.h"
#include "made.h"
#include "measures.h"

#include <expat.h>
#include <libxml/xmlversion.h>
#include <pugixml.hpp>

#include <malloc.h>

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

namespace
{
struct Options
{
  std::string folder;
  std::string output;
  Extent extent;
};

char const usage[] =
  "usage: bench_reader [FOLDER] [--output PREFIX] [--runs N] [--only-pugixml]\n"
  "Measures on the documents in FOLDER and on generated ones; with --output, writes PREFIX.txt and PREFIX.svg.\n"
  "With --only-pugixml, only the extraction, and against pugixml alone.\n";

bool parse(int argc, char** argv, Options& options)
{
  for (int i = 1; i < argc; ++i)
  {
    std::string const argument = argv[i];
    bool const has_value = i + 1 < argc;
    if (argument == "--output" && has_value)
      options.output = argv[++i];
    else if (argument == "--runs" && has_value)
      options.extent.runs = std::max(1, std::atoi(argv[++i]));
    else if (argument == "--only-pugixml")
      options.extent.only_pugixml = true;
    else if (argument.front() != '-' && options.folder.empty())
      options.folder = argument;
    else
      return false;
  }
  return true;
}

std::vector<std::string> documents_in(std::string const& folder)
{
  std::vector<std::string> files;
  for (auto const& entry : std::filesystem::directory_iterator(folder))
    if (entry.path().extension() == ".xml")
      files.push_back(entry.path().string());
  std::sort(files.begin(), files.end());
  return files;
}
}

int main(int argc, char** argv)
{
  Options options;
  if (!parse(argc, argv, options))
  {
    std::cerr << usage;
    return 2;
  }
  // Large blocks always come from the system and go back there: see cost_of().
  mallopt(M_MMAP_THRESHOLD, 128 * 1024);
  try
  {
    TemporaryFolder const folder;
    Report report(options.output, conditions({pugixml_name(PUGIXML_VERSION), "libxml2 " LIBXML_DOTTED_VERSION,
                                    std::string("expat ") + (XML_ExpatVersion() + 6), "rapidxml (has no version)"}));
    std::vector<std::string> files = write_documents(folder);
    if (!options.folder.empty())
    {
      std::vector<std::string> const given = documents_in(options.folder);
      files.insert(files.begin(), given.begin(), given.end());
    }
    options.extent.least_mean = 1.6;
    measure_documents(folder, files, options.extent, report);
    if (!options.extent.only_pugixml)
      measure_growth(folder, options.extent.runs, report);
    report.finish();
    return report.good() ? 0 : 1;
  }
  catch (std::exception const& error)
  {
    std::cerr << "bench_reader: " << error.what() << '\n';
    return 1;
  }
}
