#include "Report.h"

#include "writing.h"

#include <algorithm>
#include <cmath>
#include <iostream>
#include <sstream>

Report::Report(std::string const& given, std::vector<std::string> const& lines) : prefix(given), conditions(lines)
{
  for (std::string const& condition : conditions)
    line(condition);
  line("");
}

void Report::line(std::string const& line_text)
{
  std::cout << line_text << std::endl;
  text += line_text + '\n';
}

void Report::ratios(std::string const& what, std::vector<double> const& values)
{
  rows.push_back({what, values});
}

void Report::target(std::string const& what, double value, double limit, bool at_most)
{
  bool const reached = at_most ? value <= limit : value >= limit;
  line(fitted(what, 65) + " " + padded(number(value, 3), 10) + padded(at_most ? "at most" : "at least", 9) +
       padded(number(limit, 2), 7) + (reached ? "met" : "MISSED"));
}

void Report::finish()
{
  if (prefix.empty())
    return;
  written = write_report(prefix, text, plot());
  std::cout << "Written: " << prefix << ".txt, " << prefix << ".svg\n";
}

// A bar for each contender and row, as long as the time of the contender is in times of the reader, on a scale of powers
// of two.
std::string Report::plot() const
{
  std::vector<std::string> const colours = fills(contenders);
  int const bar = 9;
  int const left = 330;
  int const unit = 110;
  int const group = bar * static_cast<int>(contenders.size()) + 14;
  int const bottom = 70 + group * static_cast<int>(rows.size());
  int const height = bottom + 10 + 13 * static_cast<int>(conditions.size());
  auto const x = [&](double ratio) { return left + unit * (std::log2(std::clamp(ratio, 0.25, 32.0)) + 2); };

  std::ostringstream svg;
  svg << svg_begin(1180, height, 11)
      << "<text x=\"10\" y=\"18\" font-size=\"13\">Time of each library in times of the reader (right of 1: the reader "
         "is "
         "faster)</text>\n";
  for (std::size_t i = 0; i < contenders.size(); ++i)
    svg << "<rect x=\"" << 10 + 150 * i << "\" y=\"28\" width=\"9\" height=\"9\" " << colours[i] << "/><text x=\""
        << 23 + 150 * i << "\" y=\"37\">" << escaped(contenders[i]) << "</text>\n";
  for (double ratio = 0.25; ratio <= 32; ratio *= 2)
    svg << "<line x1=\"" << x(ratio) << "\" x2=\"" << x(ratio) << "\" y1=\"58\" y2=\"" << bottom - 6 << "\" stroke=\""
        << (ratio == 1 ? "black" : "#cccccc") << "\"/><text x=\"" << x(ratio) << "\" y=\"55\" text-anchor=\"middle\">"
        << ratio << "</text>\n";
  int y = 64;
  for (Row const& row : rows)
  {
    svg << "<text x=\"" << left - 8 << "\" y=\"" << y + group / 2 << "\" text-anchor=\"end\">" << escaped(row.what)
        << "</text>\n";
    for (std::size_t i = 0; i < row.values.size(); ++i)
    {
      double const from = std::min(x(1), x(row.values[i]));
      if (row.values[i] > 0)
        svg << "<rect x=\"" << from << "\" y=\"" << y + bar * static_cast<int>(i) << "\" width=\""
            << std::abs(x(row.values[i]) - x(1)) + 1 << "\" height=\"" << bar - 2 << "\" " << colours[i] << "/>\n";
    }
    y += group;
  }
  svg << svg_lines(conditions, bottom + 10) << "</svg>\n";
  return svg.str();
}
