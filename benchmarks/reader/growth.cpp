#include "Bytes.h"
#include "Contender.h"
#include "made.h"
#include "measures.h"
#include "writing.h"

#include <axmSimpleXmlFactory.h>
#include <pugixml.hpp>

#include <algorithm>
#include <memory>
#include <stdexcept>

namespace
{
Contender const reader_itself = {"reader", false, extract_with_reader};

std::unique_ptr<axmAbstractXmlReader> read(std::string const& file)
{
  auto reader = axmSimpleXmlFactory().create_xml_reader_path(utPtrReleaseToCaller, apPath(file.c_str()));
  if (!reader->read_file())
    throw std::runtime_error("cannot read " + file);
  return reader;
}

// Documents of the same kind, each with a copy that all get.
std::vector<Document> documents_of(TemporaryFolder const& folder, std::vector<std::string> const& roots)
{
  std::vector<Document> documents;
  for (std::string const& root : roots)
    documents.emplace_back(
      write_document(folder, "given.xml", root), folder.file("growth" + std::to_string(documents.size()) + ".xml"));
  return documents;
}

std::vector<Cost> extraction_costs(std::vector<Document> const& documents, int times)
{
  std::vector<Run> runs;
  for (Document const& document : documents)
    runs.push_back(extraction(reader_itself, document));
  return interleaved(runs, times);
}

void measure_size(TemporaryFolder const& folder, int runs, Report& report)
{
  std::vector<double> const megabytes = {1, 10, 100};
  std::vector<Cost> const costs =
    extraction_costs(documents_of(folder, {records(1000000), records(10000000), records(100000000)}), runs);
  for (std::size_t i = 0; i < megabytes.size(); ++i)
    report.line(
      padded("  " + number(megabytes[i], 0) + " MB, ms a MB", 70) + number(costs[i].seconds * 1e3 / megabytes[i], 3));
  report.target("100 MB against 1 MB, per byte", costs[2].seconds / costs[0].seconds / 100, 1.3, true);
}

void measure_depth(TemporaryFolder const& folder, int runs, Report& report)
{
  std::vector<std::size_t> const depths = {2, 4, 8, 16, 32, 64};
  std::vector<std::string> roots;
  for (std::size_t const depth : depths)
    roots.push_back(nested_records(10000000, depth));
  std::vector<Cost> const costs = extraction_costs(documents_of(folder, roots), runs);
  for (std::size_t i = 0; i < depths.size(); ++i)
    report.line(padded("  depth " + std::to_string(depths[i]) + ", ms", 70) + number(costs[i].seconds * 1e3, 2));
  report.target("depth 64 against depth 2, same size", costs.back().seconds / costs.front().seconds, 1.25, true);
}

// The time for going from the last of many siblings to the first and back, a thousand times, in a tree or a file that has
// been passed once before.
void measure_siblings(TemporaryFolder const& folder, int runs, Report& report)
{
  int const turns = 1000;
  for (std::size_t const siblings : {10, 100, 1000, 10000, 100000})
  {
    std::string const file = write_document(folder, "siblings.xml",
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
      {{{}, with_reader(1)}, {{}, with_reader(turns + 1)}, {{}, with_pugixml(1)}, {{}, with_pugixml(turns + 1)}},
      std::min(runs, 3));
    double const reader_seconds = costs[1].seconds - costs[0].seconds;
    double const pugixml_seconds = costs[3].seconds - costs[2].seconds;
    report.line(padded("  " + std::to_string(siblings) + " siblings, ms, reader and pugixml", 70) +
                padded(number(reader_seconds * 1e3, 2), 10) + number(pugixml_seconds * 1e3, 2));
    if (siblings == 100000)
      report.target(
        "the last of 100,000 siblings, then the first, against pugixml", reader_seconds / pugixml_seconds, 2, true);
  }
}

void measure_absent_attributes(TemporaryFolder const& folder, int runs, Report& report)
{
  std::vector<Run> calls;
  std::vector<std::size_t> const counts = {1000, 4000, 16000};
  for (std::size_t const count : counts)
  {
    std::string const file = write_document(folder, "absent" + std::to_string(count) + ".xml",
      "<r>" + repeated("<item k=\"1\"/>\n", count) + "<z k=\"1\"></z></r>");
    calls.push_back({{}, [file, count]
      {
        auto const reader = read(file);
        utString const item("item");
        utString const names[] = {"absent", "missing"};
        utString const none;
        std::size_t seen = 0;
        std::size_t found = 0;
        if (reader->down_to("r"))
          for (; reader->down_to(item); reader->up(), ++seen)
            for (utString const& name : names)
              found += reader->attribute(name, none).has_storage();
        if (seen != count || found != 0)
          throw std::runtime_error("absent attributes");
      }});
  }
  std::vector<Cost> const costs = interleaved(calls, runs);
  for (std::size_t i = 0; i < counts.size(); ++i)
    report.line(padded("  absent attributes of " + std::to_string(counts[i]) + " self-closing siblings, ms", 70) +
                number(costs[i].seconds * 1e3, 3));
  report.target("absent attributes, 16,000 against 1,000", costs.back().seconds / costs.front().seconds, 20, true);
}

void measure_first_record(TemporaryFolder const& folder, int runs, Report& report)
{
  std::string const file = write_document(folder, "first.xml", records(10000000));
  auto const plainly = [&]
  {
    Bytes bytes(file);
    if (bytes.size() < 10000000)
      throw std::runtime_error("cannot read " + file);
  };
  auto const first_record = [&]
  {
    auto const reader = read(file);
    if (!reader->down_to("r") || !reader->down_to("item") || reader->attribute("id", "").length() != 1)
      throw std::runtime_error("no first record");
  };
  std::vector<Cost> const costs = interleaved({{{}, plainly}, {{}, first_record}}, std::max(runs, 9));
  report.line(padded("  first record of 10 MB, ms, and reading the file alone", 70) +
              padded(number(costs[1].seconds * 1e3, 3), 10) + number(costs[0].seconds * 1e3, 3));
  report.target("first record of 10 MB against reading the file", costs[1].seconds / costs[0].seconds, 1.2, true);
}

void measure_memory(TemporaryFolder const& folder, Report& report)
{
  std::size_t const elements = 2000000;
  std::string const file = write_document(folder, "memory.xml", "<r>" + repeated("<a/>\n", elements) + "</r>");
  Cost const only_read = cost_of({{}, [&] { read(file); }});
  Cost const entered = cost_of({{}, [&] { read(file)->down_to("r"); }});
  Cost const passed = cost_of({{}, [&]
    {
      auto const reader = read(file);
      reader->down_to("r");
      reader->down_to("none");
    }});
  double const mega = 1024 * 1024;
  report.line(padded("  kB of memory beside the file before anything is passed", 70) +
              number((entered.megabytes - only_read.megabytes) * 1024, 0));
  report.target("bytes of memory for each element passed",
    (passed.megabytes - entered.megabytes) * mega / static_cast<double>(elements), 16, true);
}

// What comes on top of one allocation for each value must stay few, however many values there are: long values, each of
// which needs one, and short ones.
void measure_allocations(TemporaryFolder const& folder, Report& report)
{
  for (bool const is_long : {false, true})
  {
    std::string const value = is_long ? "a value that has no place in the text itself" : "value";
    std::string const part = "<item id=\"" + value + "\"><value>" + value + "</value><none></none></item>\n";
    long more = 0;
    for (long const values : {2000, 40000, 400000})
    {
      Document const document(
        write_document(folder, "given.xml", "<r>" + repeated(part, static_cast<std::size_t>(values) / 2) + "</r>"),
        folder.file("allocations.xml"));
      long const allocations = cost_of(extraction(reader_itself, document)).allocations;
      more = is_long ? allocations - values : allocations;
      report.line(padded("  allocations for " + std::to_string(values) + (is_long ? " long" : " short") +
                           " values that are not empty",
                    70) +
                  std::to_string(allocations));
    }
    report.target(
      is_long ? "allocations beyond one for each of 400,000 long values" : "allocations for 400,000 short values",
      static_cast<double>(more), 100, true);
  }
}
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
  measure_allocations(folder, report);
}
