#pragma once

#include "Measuring.h"

#include <string>
#include <vector>

/// Shows the results as they come, and in the end what they mean; keeps them for files.
class Report
{
public:
  /// What the figures hold for, in lines, comes first.
  explicit Report(std::vector<std::string> const& lines);

  /// A document, with what the libraries do not agree on. Of documents like records loading has a further limit.
  void add(
    std::string const& title, Results const& results, std::vector<std::string> const& disagreements, bool like_records);

  /// The limits that axs is to keep, over all documents.
  void add_limits();

  bool all_agree() const { return agree; }

  /// Writes PREFIX.txt and PREFIX.svg; false when a file does not take it.
  bool write(std::string const& prefix) const;

private:
  struct Document
  {
    std::string title;
    Results results;
    bool like_records;
  };

  void line(std::string const& text);
  void limit(Document const& document, Measure measure, Library other, double least);
  std::string plot() const;

  std::vector<std::string> conditions;
  std::string text;
  std::vector<Document> documents;
  bool agree = true;
};
