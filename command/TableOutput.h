#pragma once

#include "OutputFile.h"
#include "Progress.h"
#include "RowFormat.h"
#include "TableRequest.h"

#include <memory>
#include <string>
#include <vector>

/// Where the rows of a table go: formats them, writes them in larger pieces and shows how many there are.
class TableOutput
{
public:
  explicit TableOutput(TableRequest const& request);

  /// Whether everything could be written so far.
  bool good() const { return file.good(); }

  /// Writes a row of one value for each column. Whether more can be written.
  bool write(std::vector<Value> const& values);

  long long rows() const noexcept { return count; }

  /// Writes what is left. False if not everything could be written.
  bool finish();

  /// Why it is false; see OutputFile.
  std::string fault() const { return file.fault(); }

private:
  void flush();

  TableRequest const& table;
  std::unique_ptr<RowFormat> const format;
  OutputFile file;
  Progress progress;
  std::string pending;
  std::vector<Value> filled;
  long long count = 0;
};
