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
/// Where what repeats becomes rows, every element of the record in which columns lie has rows of its own: one or, where its
/// children of one name have more together, as many as those. They come one after the other, the children of different names
/// side by side, and what there is one of stands in every row of its parent.
/// One object is used for all records, so that in the end nothing is allocated any more.
class axsRecord
{
public:
  using Row = axsRecordReader::Row;

  /// `pattern` must live longer.
  axsRecord(axsRecordPattern const& pattern, axsRecordReader::Repeat repeat, std::string separator);

  /// A new record begins: no values.
  void begin();

  /// An element of the record begins, of which the pattern has that number; what follows is of it until it ends.
  void begin_element(std::size_t number);
  void end_element();

  /// A value of the column begins; it has what append() adds until the next one begins.
  void begin_value(std::size_t column);
  void append(std::size_t column, std::string_view text);

  /// How many rows the record has, at least one, once all of its elements have ended.
  std::size_t row_count() const noexcept;

  /// The values of one row, which live until the next call of anything.
  Row const& row(std::size_t number);

private:
  static constexpr std::size_t none = static_cast<std::size_t>(-1);

  // One element of the record, with its rows.
  struct Instance
  {
    std::size_t element; // in the pattern
    std::size_t parent;
    std::size_t begin;
    std::size_t end;
    bool is_only; // of its name in its parent
  };

  // Of an element of the pattern, those in the parent that is open.
  struct Children
  {
    std::size_t last;
    std::size_t end; // of its rows
  };

  struct Value
  {
    std::size_t begin; // in the text of its column
    std::size_t instance;
  };

  struct Column
  {
    std::string text;
    std::vector<Value> values;
    bool is_closed = false; // nothing more is taken
  };

  std::optional<std::string_view> value_in_row(Column const& column, std::size_t number) const;
  Instance const& rows_of(Value const& value) const;
  static std::string_view text_of(Column const& column, std::size_t value);

  axsRecordPattern const& pattern;
  axsRecordReader::Repeat const repeats;
  std::string const between;
  std::vector<Column> columns;
  std::vector<Instance> instances;
  std::vector<Children> children;
  std::size_t open = none; // the innermost open one of the instances
  Row values;
};
