#pragma once

#include "axsRecordPattern.h"
#include "axsRecordReader.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The values of the record that is being read, gathered in the order of the document.
///
/// One object is used for all records, so that in the end nothing is allocated any more.
class axsRecord
{
public:
  using Row = axsRecordReader::Row;

  axsRecord(axsRecordPattern const& pattern, axsRecordReader::Repeat repeat, std::string separator);

  /// A new record begins: no values.
  void clear() noexcept;

  /// Another child of the record, of that group, begins: what follows is of it.
  void begin_instance(std::size_t group) noexcept { ++instances[group]; }

  /// A value of the column begins; it has what append() adds until the next one begins.
  void begin_value(std::size_t column);
  void append(std::size_t column, std::string_view text);

  /// How many rows the record has, at least one.
  std::size_t row_count() const noexcept;

  /// The values of one row, which live until the next call of anything.
  Row const& row(std::size_t number);

private:
  struct Value
  {
    std::size_t begin;    // in the text of its column
    std::size_t instance; // of its group, counted from 1
  };

  struct Column
  {
    std::string text;
    std::vector<Value> values;
    std::size_t group;
    bool is_closed = false; // nothing more is taken
  };

  std::optional<std::string_view> value_in_row(Column const& column, std::size_t number) const;
  static std::string_view text_of(Column const& column, std::size_t value);

  axsRecordReader::Repeat const repeats;
  std::string const between;
  std::vector<Column> columns;
  std::vector<std::size_t> instances;
  Row values;
};
