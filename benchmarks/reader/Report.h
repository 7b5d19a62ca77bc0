#pragma once

#include <string>
#include <vector>

// Shows the results and writes them to a text file, with a plot of the ratios beside it.
class Report
{
public:
  // What the figures hold for, in lines, comes first. Without a prefix no files are written.
  Report(std::string const& prefix, std::vector<std::string> const& conditions);

  void line(std::string const& text);

  // A row of ratios to the reader, one for each contender that is not the reader; 0 where there is none.
  void ratios(std::string const& what, std::vector<double> const& values);

  // A result that has to keep to a limit.
  void target(std::string const& what, double value, double limit, bool at_most);

  // Contenders in the order of the ratios.
  std::vector<std::string> contenders;

  void finish();

  // Whether every file could be written.
  bool good() const { return written; }

private:
  struct Row
  {
    std::string what;
    std::vector<double> values;
  };

  std::string plot() const;

  std::string prefix;
  std::vector<std::string> conditions;
  std::string text;
  std::vector<Row> rows;
  bool written = true;
};
