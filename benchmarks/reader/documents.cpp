#include "Contender.h"
#include "made.h"
#include "measures.h"
#include "writing.h"

#include <algorithm>
#include <filesystem>
#include <stdexcept>

namespace
{
Contender const contenders[] = {
  {"reader", false, extract_with_reader},
  {"pugixml", true, extract_with_pugixml},
  {"pugixml minimal", false, extract_with_pugixml_minimal},
  {"rapidxml", true, extract_with_rapidxml},
  {"rapidxml fastest", false, extract_with_rapidxml_fastest},
  {"expat", true, extract_with_expat},
  {"libxml2 SAX2", true, extract_with_libxml2_sax},
  {"libxml2 reader", true, extract_with_libxml2_reader},
};

std::size_t const pugixml = 1;
std::size_t const rapidxml = 3;
std::size_t const rapidxml_fastest = 4;
std::size_t const expat = 5;

// The least of some ratios, and the file it is of.
struct Least
{
  void take(double ratio, std::string const& name)
  {
    if (ratio >= value)
      return;
    value = ratio;
    file = name;
  }

  double value = 1e9;
  std::string file;
};

std::string cell(double value, int digits)
{
  return aligned_right(number(value, digits), 9);
}
}

Run extraction(Contender const& contender, Document const& document)
{
  Digest const& expected = contender.decodes ? document.decoded : document.written;
  return {{}, [&contender, &document, &expected]
    {
      Digest digest(document.task.fields);
      if (!contender.extract(document.file, document.task, digest))
        throw std::runtime_error(std::string(contender.name) + " reports an error in " + document.file);
      if (digest != expected)
        throw std::runtime_error(std::string(contender.name) + " finds something else in " + document.file);
    }};
}

void measure_documents(
  TemporaryFolder const& folder, std::vector<std::string> const& files, Extent const& extent, Report& report)
{
  std::size_t const count = extent.only_pugixml ? pugixml + 1 : std::size(contenders);
  report.line("Extraction of all fields: the time of each library in times of the reader's, and peak memory");
  for (std::size_t i = 1; i < count; ++i)
    report.contenders.push_back(contenders[i].name);
  std::vector<std::string> columns = {"reader ms"};
  columns.insert(columns.end(), report.contenders.begin(), report.contenders.end());
  report.line(headings(columns, 28, 9));

  Document const sample(write_document(folder, "sample.xml", records(200)), folder.file("sample_copy.xml"));
  std::vector<double> of_pugixml;
  Least least_pugixml;
  Least least_rapidxml;
  Least least_expat;
  for (std::string const& file : files)
  {
    std::string const name = std::filesystem::path(file).filename().string();
    std::unique_ptr<Document> document;
    try
    {
      document = std::make_unique<Document>(file, folder.file("copy.xml"));
    }
    catch (std::runtime_error const& error)
    {
      report.line(shortened(name + " not measured: " + error.what(), line_width));
      continue;
    }
    if (document->values_taken == 0)
    {
      report.line(shortened(name + " not measured: the reader can take nothing out of it", line_width));
      continue;
    }
    std::vector<Run> runs;
    for (std::size_t i = 0; i < count; ++i)
      runs.push_back({extraction(contenders[i], sample).work, extraction(contenders[i], *document).work});
    std::vector<Cost> const costs = interleaved(runs, extent.runs);

    std::vector<double> ratios;
    for (std::size_t i = 1; i < count; ++i)
      ratios.push_back(costs[i].seconds / costs[0].seconds);
    double const all = static_cast<double>(document->values_taken + document->values_left_out);
    double const megabytes = static_cast<double>(std::filesystem::file_size(document->file)) / 1e6;
    std::string line = fitted(name, 22) + aligned_right(number(megabytes, 1), 6) + cell(costs[0].seconds * 1e3, 2);
    std::string const taken = std::to_string(document->values_taken) + " values, " +
                              number(100 * static_cast<double>(document->values_taken) / all, 0) + " %";
    std::string memory = fitted("  " + taken, 25) + "MB:";
    for (std::size_t i = 0; i < count; ++i)
    {
      if (i > 0)
        line += cell(ratios[i - 1], 2);
      memory += cell(costs[i].megabytes, 1);
    }
    report.line(line);
    report.line(memory);
    for (std::string const& note : document->notes)
      report.line(shortened("  changed for all: " + note, line_width));
    report.ratios(name, ratios);

    of_pugixml.push_back(ratios[pugixml - 1]);
    least_pugixml.take(ratios[pugixml - 1], name);
    if (extent.only_pugixml)
      continue;
    least_rapidxml.take(std::min(ratios[rapidxml - 1], ratios[rapidxml_fastest - 1]), name);
    least_expat.take(ratios[expat - 1], name);
  }
  report.line("");
  report.target(
    "extraction, geometric mean over the files, against pugixml", geometric_mean(of_pugixml), extent.least_mean, false);
  if (extent.only_pugixml)
    return;
  report.target("least of any, against pugixml: " + least_pugixml.file, least_pugixml.value, 1, false);
  report.target("least of any, against rapidxml's faster mode: " + least_rapidxml.file, least_rapidxml.value, 1, false);
  report.target("least of any, against expat: " + least_expat.file, least_expat.value, 4, false);
}
