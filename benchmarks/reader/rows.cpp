// Takes rows out of documents, the same columns with the exact readers, the command and other libraries.

#include "Folder.h"
#include "Report.h"
#include "RowContender.h"
#include "Timing.h"
#include "conditions.h"
#include "made.h"
#include "writing.h"

#include <expat.h>
#include <libxml/xmlversion.h>
#include <pugixml.hpp>

#include <malloc.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace
{
RowContender const contenders[] = {
  {"record reader", rows_with_record_reader},
  {"xml reader", rows_with_xml_reader},
  {"pugixml", rows_with_pugixml},
  {"expat", rows_with_expat},
  {"libxml2 reader", rows_with_libxml2_reader},
  {"axm table", rows_with_command},
};

std::size_t const pugixml = 2;
std::size_t const expat = 3;
std::size_t const command = 5;

// Below that, the start of a program counts for more than what it does.
std::size_t const least_size_for_command = 2000000;

std::string name_of(RowTask const& task)
{
  return std::filesystem::path(task.file).filename().string();
}

RowDigest expected(RowTask const& task)
{
  RowDigest digest(task.columns.size());
  if (!rows_expected(task, digest) || digest.rows == 0)
    throw std::runtime_error("nothing is to be found in " + task.file + " at " + task.path_text);
  return digest;
}

// `sample` brings the code of a library into memory before.
Run extraction(RowContender const& contender, RowTask const& sample, RowTask const& task, RowDigest const& wanted)
{
  auto const warm_up = [&contender, &sample]
  {
    RowDigest digest(sample.columns.size());
    contender.extract(sample, digest);
  };
  return {warm_up, [&contender, &task, &wanted]
    {
      RowDigest digest(task.columns.size());
      if (!contender.extract(task, digest))
        throw std::runtime_error(std::string(contender.name) + " reports an error in " + task.file);
      // The command's rows go to nowhere.
      if (contender.extract != rows_with_command && digest != wanted)
        throw std::runtime_error(std::string(contender.name) + " finds something else in " + task.file + " at " +
                                 task.path_text + ' ' + task.columns.front());
    }};
}

std::string cell(double value)
{
  return aligned_right(number(value, 2), 8);
}

// The geometric means of what was measured on the tasks of one document.
using Ratios = std::map<std::string, std::vector<double>>;

void target_of_all(Report& report, std::string const& what, Ratios const& ratios, double mean, double least)
{
  std::vector<double> means;
  std::string least_name;
  double least_mean = 1e9;
  for (auto const& [name, values] : ratios)
  {
    means.push_back(geometric_mean(values));
    if (means.back() < least_mean)
    {
      least_mean = means.back();
      least_name = name;
    }
  }
  report.target("rows, geometric mean over the documents, against " + what, geometric_mean(means), mean, false);
  report.target("least of any, against " + what + ": " + least_name, least_mean, least, false);
}

RowTask task_of(std::string const& file, std::string const& path)
{
  return {file, path, {"@id", "name", "value"}};
}

void measure_tasks(TemporaryFolder const& folder, std::vector<RowTask> const& tasks, int runs, Report& report)
{
  RowTask const sample = task_of(write_document(folder, "sample.xml", records(2000)), "r/item");
  report.line("Rows: the time of each in times of the record reader's");
  for (std::size_t i = 1; i < std::size(contenders); ++i)
    report.contenders.push_back(contenders[i].name);
  std::vector<std::string> columns = {"rows", "ms"};
  columns.insert(columns.end(), report.contenders.begin(), report.contenders.end());
  report.line(headings(columns, 43, 8));
  Ratios of_pugixml;
  Ratios of_expat;
  std::vector<double> of_command;
  for (RowTask const& task : tasks)
  {
    RowDigest const wanted = expected(task);
    std::vector<Run> all;
    for (RowContender const& contender : contenders)
      all.push_back(extraction(contender, sample, task, wanted));
    std::vector<Cost> const costs = interleaved(all, runs);
    std::string const name = name_of(task);
    std::string const what = name + ' ' + task.path.back() + ' ' + task.columns.front();
    std::string line = fitted(what, 43) + aligned_right(std::to_string(wanted.rows), 8) + cell(costs[0].seconds * 1e3);
    std::vector<double> ratios;
    for (std::size_t i = 1; i < costs.size(); ++i)
    {
      ratios.push_back(costs[i].seconds / costs[0].seconds);
      line += cell(ratios.back());
    }
    report.line(line);
    report.ratios(what, ratios);
    of_pugixml[name].push_back(ratios[pugixml - 1]);
    of_expat[name].push_back(ratios[expat - 1]);
    if (std::filesystem::file_size(task.file) >= least_size_for_command)
      of_command.push_back(ratios[command - 1]);
  }
  target_of_all(report, "pugixml", of_pugixml, 1.3, 0.9);
  target_of_all(report, "expat", of_expat, 3, 0);
  report.target("axm table against the record reader, geometric mean", geometric_mean(of_command), 1.6, true);
}

std::vector<Cost> costs_of(std::vector<RowTask> const& tasks, int runs)
{
  std::vector<RowDigest> wanted;
  wanted.reserve(tasks.size());
  std::vector<Run> all;
  for (RowTask const& task : tasks)
  {
    wanted.push_back(expected(task));
    all.push_back(extraction(contenders[0], tasks.front(), task, wanted.back()));
  }
  return interleaved(all, runs);
}

void measure_growth(TemporaryFolder const& folder, int runs, Report& report)
{
  std::vector<RowTask> sizes;
  for (std::size_t const megabytes : {1, 10, 100})
    sizes.push_back(task_of(
      write_document(folder, "size" + std::to_string(megabytes) + ".xml", records(megabytes * 1000000)), "r/item"));
  std::vector<Cost> const of_sizes = costs_of(sizes, runs);
  report.target("100 MB against 1 MB, per byte", of_sizes[2].seconds / of_sizes[0].seconds / 100, 1.3, true);
  report.target(
    "megabytes of memory at 100 MB beyond those at 1 MB", of_sizes[2].megabytes - of_sizes[0].megabytes, 1, true);

  std::vector<RowTask> depths;
  for (std::size_t const depth : {2, 64})
  {
    std::string path = "r";
    for (std::size_t i = 2; i < depth; ++i)
      path += "/d";
    depths.push_back(
      task_of(write_document(folder, "depth" + std::to_string(depth) + ".xml", nested_records(10000000, depth)),
        path + "/item"));
  }
  std::vector<Cost> const of_depths = costs_of(depths, runs);
  report.target("depth 64 against depth 2, same size", of_depths[1].seconds / of_depths[0].seconds, 1.25, true);
}

char const usage[] = "usage: bench_rows FOLDER [--tasks FILE] [--output PREFIX] [--runs N]\n"
                     "Takes the rows that FILE asks for (one line each: document, path, columns, with tabs between) "
                     "out of the documents in\n"
                     "FOLDER; with --output, writes PREFIX.txt and PREFIX.svg.\n";
}

int main(int argc, char** argv)
{
  std::string folder_name;
  std::string tasks = ROW_TASKS;
  std::string output;
  int runs = 9;
  for (int i = 1; i < argc; ++i)
  {
    std::string const argument = argv[i];
    bool const has_value = i + 1 < argc;
    if (argument == "--tasks" && has_value)
      tasks = argv[++i];
    else if (argument == "--output" && has_value)
      output = argv[++i];
    else if (argument == "--runs" && has_value)
      runs = std::max(1, std::atoi(argv[++i]));
    else if (argument.front() != '-' && folder_name.empty())
      folder_name = argument;
    else
      return std::cerr << usage, 2;
  }
  if (folder_name.empty())
    return std::cerr << usage, 2;
  mallopt(M_MMAP_THRESHOLD, 128 * 1024); // see main.cpp
  try
  {
    TemporaryFolder const folder;
    Report report(output, conditions({pugixml_name(PUGIXML_VERSION), "libxml2 " LIBXML_DOTTED_VERSION,
                            std::string("expat ") + (XML_ExpatVersion() + 6)}));
    measure_tasks(folder, read_row_tasks(tasks, folder_name), runs, report);
    measure_growth(folder, runs, report);
    report.finish();
    return report.good() ? 0 : 1;
  }
  catch (std::exception const& error)
  {
    std::cerr << "bench_rows: " << error.what() << '\n';
    return 1;
  }
}
