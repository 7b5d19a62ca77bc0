#include "Report.h"

#include "writing.h"

#include <algorithm>
#include <cmath>
#include <iostream>

Report::Report(std::vector<std::string> const& lines) : conditions(lines)
{
  for (std::string const& condition : conditions)
    line(condition);
}

void Report::line(std::string const& line_text)
{
  std::cout << line_text << std::endl;
  text += line_text + '\n';
}

void Report::add(
  std::string const& title, Results const& results, std::vector<std::string> const& disagreements, bool like_records)
{
  documents.push_back({title, results, like_records});
  line("");
  std::string heading = fitted(title, 28);
  for (char const* const name : library_names)
    heading += aligned_right(name, 14);
  line(heading + aligned_right("libxml2 : axs", 16));
  for (std::size_t i = 0; i < measure_count; ++i)
  {
    std::string row = padded(measure_names[i], 28);
    for (Numbers const& numbers : results)
      row += aligned_right(numbers.best[i] > 0 ? number(numbers.best[i], 1) : "-", 14);
    double const axs = results[library_axs].best[i];
    double const other = results[library_libxml2].best[i];
    line(row + aligned_right(axs > 0 && other > 0 ? number(other / axs, 2) : "-", 16));
  }
  for (std::string const& disagreement : disagreements)
    line("DISAGREEMENT: " + disagreement);
  agree = agree && disagreements.empty();
}

void Report::add_limits()
{
  line("");
  line(padded("what axs is to reach", 66) + aligned_right("is", 8) + aligned_right("at least", 10));
  for (Document const& document : documents)
  {
    if (document.like_records)
      limit(document, measure_load, library_xerces, 2.5);
    limit(document, measure_load, library_libxml2, 0.75);
    limit(document, measure_traverse, library_libxml2, 1);
    limit(document, measure_all, library_libxml2, 1);
    limit(document, measure_predicate, library_libxml2, 1);
    limit(document, measure_save, library_libxml2, 1);
    limit(document, measure_memory, library_libxml2, 1 / 0.6);
  }
}

void Report::limit(Document const& document, Measure measure, Library other, double least)
{
  double const axs = document.results[library_axs].best[measure];
  double const ratio = axs > 0 ? document.results[other].best[measure] / axs : 0;
  line(fitted(document.title + ": " + measure_names[measure] + ", " + library_names[other] + " : axs", 66) +
       aligned_right(number(ratio, 2), 8) + aligned_right(number(least, 2), 10) +
       (ratio >= least ? "  met" : "  MISSED"));
}

bool Report::write(std::string const& prefix) const
{
  return write_report(prefix, text, plot());
}

// For every document and measure a bar for each of the others, from 1 to its time (or memory) in times of that of axs, on
// a scale of powers of two.
std::string Report::plot() const
{
  std::vector<std::string> const colours = fills({library_names.begin(), library_names.end()});
  int const bar = 8;
  int const row = bar * (library_count - 1) + 8;
  int const origin = 420;
  int const octave = 90;
  double const least = 1.0 / 16;
  double const most = 32;
  auto const x = [&](double ratio)
  { return number(origin + octave * (std::log2(std::clamp(ratio, least, most)) + 4), 1); };

  std::string rows;
  int y = 66;
  for (Document const& document : documents)
  {
    rows += "<text x=\"10\" y=\"" + std::to_string(y + 12) + "\" font-weight=\"bold\">" + escaped(document.title) +
            "</text>\n";
    y += 18;
    for (std::size_t i = 0; i < measure_count; ++i, y += row)
    {
      rows += "<text x=\"" + std::to_string(origin - 10) + "\" y=\"" + std::to_string(y + row / 2) +
              "\" text-anchor=\"end\">" + measure_names[i] + "</text>\n";
      double const axs = document.results[library_axs].best[i];
      for (std::size_t library = library_libxml2; library < library_count; ++library)
      {
        double const ratio = axs > 0 ? document.results[library].best[i] / axs : 0;
        if (ratio > 0)
          rows += "<path " + colours[library] + " d=\"M" + x(1) + " " +
                  std::to_string(y + bar * static_cast<int>(library - 1)) + "H" + x(ratio) + "v" +
                  std::to_string(bar - 1) + "H" + x(1) + "z\"/>\n";
      }
    }
  }

  int const height = y + 20 + 13 * static_cast<int>(conditions.size());
  std::string svg =
    svg_begin(1260, height, 12) +
    "<text x=\"10\" y=\"20\" font-size=\"14\">Time and memory of others in times of axs (right of 1: axs "
    "takes less)</text>\n";
  for (std::size_t library = library_libxml2; library < library_count; ++library)
  {
    int const at = 480 + 150 * static_cast<int>(library);
    svg += "<rect x=\"" + std::to_string(at) + "\" y=\"10\" width=\"10\" height=\"10\" " + colours[library] +
           "/><text x=\"" + std::to_string(at + 15) + "\" y=\"20\">" + library_names[library] + "</text>\n";
  }
  for (double ratio = least; ratio <= most; ratio *= 2)
    svg += "<path stroke=\"" + std::string(ratio == 1 ? "black" : "#dddddd") + "\" d=\"M" + x(ratio) + " 56V" +
           std::to_string(y) + "\"/><text text-anchor=\"middle\" x=\"" + x(ratio) + "\" y=\"50\">" +
           (ratio < 1 ? "1/" + number(1 / ratio, 0) : number(ratio, 0)) + "</text>\n";
  return svg + rows + svg_lines(conditions, y + 15) + "</svg>\n";
}
