#include "Task.h"
#include "Timing.h"
#include "measures.h"

#include <axmSimpleXmlFactory.h>
#include <pugixml.hpp>

#include <unistd.h>

#include <fstream>
#include <memory>
#include <stdexcept>

namespace
{
std::string const declaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";

std::string write(TemporaryFolder const& folder, std::string const& name, std::string const& root)
{
  std::string const file = folder.file(name);
  std::ofstream(file, std::ios::binary) << declaration << root << '\n';
  return file;
}

std::string repeated(std::string const& part, std::size_t times)
{
  std::string text;
  text.reserve(part.size() * times);
  for (std::size_t i = 0; i < times; ++i)
    text += part;
  return text;
}

std::string record(std::size_t i)
{
  std::string const n = std::to_string(i);
  return "<item id=\"" + n + "\" kind=\"k" + std::to_string(i % 7) + "\"><name>Name of item " + n + "</name><value>" +
         std::to_string(i * 37 % 1000) + ".25</value></item>\n";
}

// Records of two kinds of fields up to a size.
std::string records(std::size_t bytes)
{
  std::string text = "<r>\n";
  for (std::size_t i = 0; text.size() < bytes; ++i)
    text += record(i);
  return text + "</r>";
}

// The same number of bytes with the records so many levels down, a hundred in a branch.
std::string nested_records(std::size_t bytes, std::size_t depth)
{
  std::string text = "<r>\n";
  for (std::size_t i = 0; text.size() < bytes;)
  {
    text += repeated("<d>", depth - 2);
    for (std::size_t k = 0; k < 100; ++k)
      text += record(i++);
    text += repeated("</d>", depth - 2);
  }
  return text + "</r>";
}

std::unique_ptr<axmAbstractXmlReader> read(std::string const& file)
{
  auto reader = axmSimpleXmlFactory().create_xml_reader_path(utPtrReleaseToCaller, apPath(file.c_str()));
  if (!reader->read_file())
    throw std::runtime_error("cannot read " + file);
  return reader;
}

std::function<void()> extraction(std::string const& file, Task const& task)
{
  return [=]
  {
    Digest digest;
    if (!extract_with_reader(file, task, digest) || digest.values == 0)
      throw std::runtime_error("nothing in " + file);
  };
}

void measure_size(TemporaryFolder const& folder, int runs, Report& report)
{
  Task const task = {{"r", "item"}, {"id"}, {"value"}};
  std::vector<double> per_megabyte;
  for (std::size_t const megabytes : {1, 10, 100})
  {
    std::string const file = write(folder, "size.xml", records(megabytes * 1000000));
    double const seconds = interleaved({extraction(file, task)}, runs)[0].seconds;
    per_megabyte.push_back(seconds * 1e3 / static_cast<double>(megabytes));
    report.line(padded("  " + std::to_string(megabytes) + " MB, ms a MB", 62) + number(per_megabyte.back(), 3));
  }
  report.target("100 MB against 1 MB, per byte", per_megabyte[2] / per_megabyte[0], 1.3, true);
}

void measure_depth(TemporaryFolder const& folder, int runs, Report& report)
{
  std::vector<std::function<void()>> calls;
  std::vector<std::size_t> const depths = {2, 4, 8, 16, 32, 64};
  for (std::size_t const depth : depths)
  {
    Task task = {{"r"}, {"id"}, {"value"}};
    task.path.insert(task.path.end(), depth - 2, "d");
    task.path.push_back("item");
    calls.push_back(
      extraction(write(folder, "depth" + std::to_string(depth) + ".xml", nested_records(10000000, depth)), task));
  }
  std::vector<Cost> const costs = interleaved(calls, runs);
  for (std::size_t i = 0; i < depths.size(); ++i)
    report.line(padded("  depth " + std::to_string(depths[i]) + ", ms", 62) + number(costs[i].seconds * 1e3, 2));
  report.target("depth 64 against depth 2, same size", costs.back().seconds / costs.front().seconds, 1.25, true);
}

// The time for going from the last of many siblings to the first and back, a thousand times, in a tree or a file that has
// been passed once before.
void measure_siblings(TemporaryFolder const& folder, int runs, Report& report)
{
  int const turns = 1000;
  for (std::size_t const siblings : {10, 1000, 100000})
  {
    std::string const file = write(folder, "siblings.xml",
      "<r><first k=\"1\"></first>" + repeated("<item k=\"2\"></item>", siblings - 2) + "<last k=\"3\"></last></r>");
    auto const with_reader = [&](int times)
    {
      return [&file, times]
      {
        auto const reader = read(file);
        utString const first("first");
        utString const last("last");
        bool good = reader->down_to("r");
        for (int i = 0; i < times && good; ++i)
        {
          good = reader->down_to(last);
          reader->up();
          good = good && (reader->down_to(first) || reader->down_to(first));
          reader->up();
        }
        if (!good)
          throw std::runtime_error("siblings");
      };
    };
    auto const with_pugixml = [&](int times)
    {
      return [&file, times]
      {
        pugi::xml_document document;
        bool good = document.load_file(file.c_str());
        pugi::xml_node const root = document.child("r");
        for (int i = 0; i < times && good; ++i)
          good = root.child("last") && root.child("first");
        if (!good)
          throw std::runtime_error("siblings");
      };
    };
    std::vector<Cost> const costs = interleaved(
      {with_reader(1), with_reader(turns + 1), with_pugixml(1), with_pugixml(turns + 1)}, std::min(runs, 3));
    double const reader_seconds = costs[1].seconds - costs[0].seconds;
    double const pugixml_seconds = costs[3].seconds - costs[2].seconds;
    report.line(padded("  " + std::to_string(siblings) + " siblings, ms, reader and pugixml", 62) +
                padded(number(reader_seconds * 1e3, 2), 10) + number(pugixml_seconds * 1e3, 2));
    if (siblings == 100000)
      report.target(
        "the last of 100,000 siblings, then the first, against pugixml", reader_seconds / pugixml_seconds, 2, true);
  }
}

void measure_absent_attributes(TemporaryFolder const& folder, int runs, Report& report)
{
  std::vector<std::function<void()>> calls;
  std::vector<std::size_t> const counts = {1000, 4000, 16000};
  for (std::size_t const count : counts)
    calls.push_back(extraction(write(folder, "absent" + std::to_string(count) + ".xml",
                                 "<r>" + repeated("<item k=\"1\"/>\n", count) + "<z k=\"1\"></z></r>"),
      {{"r", "item"}, {"absent", "missing"}, {}}));
  std::vector<Cost> const costs = interleaved(calls, runs);
  for (std::size_t i = 0; i < counts.size(); ++i)
    report.line(padded("  absent attributes of " + std::to_string(counts[i]) + " self-closing siblings, ms", 62) +
                number(costs[i].seconds * 1e3, 3));
  report.target("absent attributes, 16,000 against 1,000", costs.back().seconds / costs.front().seconds, 20, true);
}

void measure_first_record(TemporaryFolder const& folder, int runs, Report& report)
{
  std::string const file = write(folder, "first.xml", records(10000000));
  std::vector<Cost> const costs =
    interleaved({[&] { read(file); },
                  [&]
                  {
                    auto const reader = read(file);
                    if (!reader->down_to("r") || !reader->down_to("item") || reader->attribute("id", "").length() != 1)
                      throw std::runtime_error("no first record");
                  }},
      runs);
  report.target("first record of 10 MB against reading the file", costs[1].seconds / costs[0].seconds, 1.2, true);
}

void measure_memory(TemporaryFolder const& folder, Report& report)
{
  std::size_t const elements = 2000000;
  std::string const file = write(folder, "memory.xml", "<r>" + repeated("<a/>\n", elements) + "</r>");
  Cost const only_read = cost_of([&] { read(file); });
  Cost const passed = cost_of(
    [&]
    {
      auto const reader = read(file);
      reader->down_to("r");
      reader->down_to("none");
    });
  report.target("bytes of memory for each element passed",
    (passed.megabytes - only_read.megabytes) * 1024 * 1024 / static_cast<double>(elements), 16.5, true);

  Digest digest;
  std::string const values = write(folder, "values.xml", records(1000000));
  Task const task = {{"r", "item"}, {"id"}, {"value"}};
  extract_with_reader(values, task, digest);
  Cost const cost = cost_of(extraction(values, task));
  report.target("allocations for each value that is not empty",
    static_cast<double>(cost.allocations) / static_cast<double>(digest.values), 1.01, true);
}
}

TemporaryFolder::TemporaryFolder()
  : path(std::filesystem::temp_directory_path() / ("bench_reader_" + std::to_string(getpid())))
{
  std::filesystem::create_directories(path);
}

TemporaryFolder::~TemporaryFolder()
{
  std::error_code failed;
  std::filesystem::remove_all(path, failed);
}

std::string generate_documents(TemporaryFolder const& folder)
{
  std::filesystem::create_directories(folder.path / "documents");
  write(folder, "documents/records.xml", records(10000000));
  write(folder, "documents/deep.xml", nested_records(10000000, 16));
  std::string dense = "<r>\n";
  std::string wide = "<r>\n";
  std::string texts = "<r>\n";
  for (std::size_t i = 0; i < 200000; ++i)
    dense += "<line number=\"" + std::to_string(i % 3000) + "\" hits=\"" + std::to_string(i % 2) + "\"/>\n";
  for (std::size_t i = 0; i < 40000; ++i)
  {
    wide += "\t<node id=\"" + std::to_string(1000000 + i);
    for (char name = 'a'; name < 'h'; ++name)
      wide += std::string("\" ") + name + "=\"" + std::to_string(i * 7919 % 100003) + "." + std::to_string(i % 97);
    wide += "\"/>\n";
  }
  for (std::size_t i = 0; i < 10000; ++i)
    texts += "<p n=\"" + std::to_string(i) + "\"><body>" + repeated("some words of a longer text, ", 20 + i % 30) +
             "end</body></p>\n";
  write(folder, "documents/dense.xml", dense + "</r>");
  write(folder, "documents/wide.xml", wide + "</r>");
  write(folder, "documents/texts.xml", texts + "</r>");
  return folder.file("documents");
}

void measure_growth(TemporaryFolder const& folder, int runs, Report& report)
{
  report.line("");
  measure_size(folder, runs, report);
  measure_depth(folder, runs, report);
  measure_siblings(folder, runs, report);
  measure_absent_attributes(folder, runs, report);
  measure_first_record(folder, runs, report);
  measure_memory(folder, report);
}
