#include "Task.h"
#include "Timing.h"
#include "measures.h"

#include <algorithm>
#include <functional>
#include <iostream>
#include <stdexcept>

namespace
{
Contender const contenders[] = {
  {"reader", extract_with_reader},
  {"pugixml", extract_with_pugixml},
  {"pugixml minimal", extract_with_pugixml_minimal},
  {"rapidxml", extract_with_rapidxml},
  {"rapidxml fastest", extract_with_rapidxml_fastest},
  {"expat", extract_with_expat},
  {"libxml2 SAX2", extract_with_libxml2_sax},
  {"libxml2 reader", extract_with_libxml2_reader},
};

Digest whole_digest(Contender const& contender, std::string const& file, Task const& task)
{
  Digest digest;
  digest.whole = true;
  if (!contender.extract(file, task, digest))
    digest.values = 0;
  return digest;
}

// The first task with attributes and the first with children that the rules of the reader allow: names are not the
// beginnings of others, and so on.
std::vector<Task> choose_tasks(std::string const& file)
{
  std::vector<Task> chosen;
  bool attributes = false;
  bool children = false;
  int tried = 0;
  for (Task const& task : find_tasks(file))
  {
    if ((task.attributes.empty() ? children : attributes) || ++tried > 40)
      continue;
    Digest const expected = whole_digest(contenders[1], file, task);
    if (expected.values < 20 || !whole_digest(contenders[0], file, task).agrees_with(expected))
      continue;
    (task.attributes.empty() ? children : attributes) = true;
    chosen.push_back(task);
  }
  return chosen;
}

// The ratios of one task; 0 for a contender that cannot do it.
std::vector<double> measure(
  std::string const& file, Task const& task, int runs, double& reader_seconds, std::vector<double>& megabytes)
{
  Digest const expected = whole_digest(contenders[0], file, task);
  std::vector<std::function<void()>> calls;
  std::vector<bool> takes_part;
  for (Contender const& contender : contenders)
  {
    takes_part.push_back(whole_digest(contender, file, task).agrees_with(expected));
    if (!takes_part.back())
      continue;
    Digest first;
    contender.extract(file, task, first);
    calls.emplace_back(
      [&contender, &file, &task, first]
      {
        Digest digest;
        if (!contender.extract(file, task, digest) || digest != first)
          throw std::runtime_error(std::string(contender.name) + " found something else in " + file);
      });
  }
  std::vector<Cost> const costs = interleaved(calls, runs);
  reader_seconds = costs[0].seconds;
  megabytes = {costs[0].megabytes};
  std::vector<double> ratios;
  std::size_t next = 1;
  for (std::size_t i = 1; i < takes_part.size(); ++i)
  {
    megabytes.push_back(takes_part[i] ? costs[next].megabytes : 0);
    ratios.push_back(takes_part[i] ? costs[next++].seconds / costs[0].seconds : 0);
  }
  return ratios;
}
}

void measure_documents(std::vector<std::string> const& files, int runs, double least_mean, Report& report)
{
  report.contenders.clear();
  std::string heading = padded("times of the reader's time", 62) + padded("MB", 7) + padded("reader ms", 11);
  for (std::size_t i = 1; i < std::size(contenders); ++i)
  {
    report.contenders.push_back(contenders[i].name);
    heading += padded(contenders[i].name, 17);
  }
  report.line(heading);

  std::vector<double> pugixml;
  double least_pugixml = 1e9;
  double least_rapidxml = 1e9;
  double least_expat = 1e9;
  for (std::string const& file : files)
  {
    std::string const name = std::filesystem::path(file).filename().string();
    std::vector<Task> const tasks = choose_tasks(file);
    if (tasks.empty())
      report.line(padded(name, 62) + "no records by the rules of the reader");
    std::vector<double> of_file;
    for (Task const& task : tasks)
    {
      double reader_seconds = 0;
      std::vector<double> megabytes;
      std::vector<double> const ratios = measure(file, task, runs, reader_seconds, megabytes);
      std::string line = padded(name + " " + task.name(), 61) + " " +
                         padded(number(static_cast<double>(std::filesystem::file_size(file)) / 1e6, 1), 7) +
                         padded(number(reader_seconds * 1e3, 2), 11);
      for (double const ratio : ratios)
        line += padded(ratio > 0 ? number(ratio, 2) : "-", 17);
      report.line(line);
      std::string memory = padded("  peak MB of memory", 69) + padded(number(megabytes[0], 1), 11);
      for (std::size_t i = 1; i < megabytes.size(); ++i)
        memory += padded(ratios[i - 1] > 0 ? number(megabytes[i], 1) : "-", 17);
      report.line(memory);
      report.ratios(name + (task.attributes.empty() ? " (children)" : " (attributes)"), ratios);
      of_file.push_back(ratios[0]);
      least_pugixml = std::min(least_pugixml, ratios[0]);
      if (ratios[3] > 0)
        least_rapidxml = std::min(least_rapidxml, ratios[3]);
      if (ratios[4] > 0)
        least_expat = std::min(least_expat, ratios[4]);
    }
    if (!of_file.empty())
      pugixml.push_back(geometric_mean(of_file));
  }
  report.line("");
  report.target("geometric mean over the files, against pugixml", geometric_mean(pugixml), least_mean, false);
  report.target("least of any task, against pugixml", least_pugixml, 1, false);
  report.target("least of any task, against rapidxml fastest", least_rapidxml, 1, false);
  report.target("least of any task, against expat", least_expat, 4, false);
}
