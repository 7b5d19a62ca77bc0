// Measures axs through the public interface beside libxml2, Xerces-C's DOM and pugixml, after each run compares what they
// found, and says which of the limits that axs is to keep are kept.
//
//   document_benchmark [--megabytes N] [--rounds N] [--output PREFIX] [FILE...]
//
// Without files on three documents that it makes: like records, heavy in attributes, heavy in text, of 50 MB each. Shown
// is the best round, in milliseconds of processor time, and the memory that loading took at its peak. XPath "//x" selects
// by the name of the root's first child element, the other expression every seventh of those in its parent. With --output
// the tables are written to PREFIX.txt and a plot to PREFIX.svg. Ends with 1 when the libraries disagree, with 2 when it is
// called wrongly.

#include "Measuring.h"
#include "Report.h"
#include "conditions.h"
#include "documents.h"

#include <libxml/xmlversion.h>
#include <pugixml.hpp>
#include <xercesc/util/XercesVersion.hpp>

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

namespace
{
struct Options
{
  std::size_t megabytes = 50;
  int rounds = 5;
  std::string output;
  std::vector<std::string> files;
};

bool read_options(int argc, char** argv, Options& options)
{
  for (int i = 1; i < argc; ++i)
  {
    std::string const argument = argv[i];
    if (argument.compare(0, 2, "--") != 0)
    {
      options.files.push_back(argument);
      continue;
    }
    if (i + 1 == argc)
      return false;
    std::string const value = argv[++i];
    if (argument == "--output")
      options.output = value;
    else if (argument == "--megabytes")
      options.megabytes = std::strtoul(value.c_str(), nullptr, 10);
    else if (argument == "--rounds")
      options.rounds = std::atoi(value.c_str());
    else
      return false;
  }
  return options.rounds > 0 && options.megabytes > 0;
}

std::string base_name(std::string const& file)
{
  return file.substr(file.find_last_of('/') + 1);
}

void add_made(Report& report, Options const& options)
{
  struct Made
  {
    char const* title;
    void (*make)(std::string const&, std::size_t);
    bool like_records;
  };
  std::string const file = "document_benchmark_" + std::to_string(getpid()) + ".xml";
  for (Made const& made :
    {Made{"records", make_records, true}, Made{"attributes", make_attributes, false}, Made{"text", make_text, false}})
  {
    made.make(file, options.megabytes * 1000000);
    Results const results = measure(file, options.rounds);
    report.add(std::string(made.title) + ", " + std::to_string(options.megabytes) + " MB", results,
      disagreements(file, results), made.like_records);
  }
  std::remove(file.c_str());
}
}

int main(int argc, char** argv)
{
  Options options;
  if (!read_options(argc, argv, options))
  {
    std::cerr << "usage: document_benchmark [--megabytes N] [--rounds N] [--output PREFIX] [FILE...]\n";
    return 2;
  }
  Report report(
    conditions({"libxml2 " LIBXML_DOTTED_VERSION, "Xerces-C " XERCES_FULLVERSIONDOT, pugixml_name(PUGIXML_VERSION)}));
  for (std::string const& file : options.files)
  {
    Results const results = measure(file, options.rounds);
    report.add(base_name(file), results, disagreements(file, results), false);
  }
  if (options.files.empty())
    add_made(report, options);
  report.add_limits();
  if (!options.output.empty() && !report.write(options.output))
  {
    std::cerr << "cannot write " << options.output << ".txt and .svg\n";
    return 1;
  }
  return report.all_agree() ? 0 : 1;
}
