#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// One value of a row; none where the document has none.
using Value = std::optional<std::string_view>;

/// How rows are written as text.
class RowFormat
{
public:
  virtual ~RowFormat() = default;

  /// The format of that name: "csv", "tsv" or "jsonl".
  static std::unique_ptr<RowFormat> of(std::string const& name);

  /// Adds the text before the first row to `text`; `columns` are the names.
  virtual void append_header(std::string& text, std::vector<std::string> const& columns) const = 0;

  /// Adds the text of a row with one value for each of `columns`.
  virtual void append_row(
    std::string& text, std::vector<std::string> const& columns, std::vector<Value> const& values) const = 0;
};

/// Comma-separated values (RFC 4180): fields with a comma, a quote or a line end stand in quotes, lines end with CR LF.
/// A row of one empty field is written with quotes, so that it is no empty line.
class CsvFormat : public RowFormat
{
public:
  void append_header(std::string& text, std::vector<std::string> const& columns) const override;
  void append_row(
    std::string& text, std::vector<std::string> const& columns, std::vector<Value> const& values) const override;
};

/// Fields with a TAB between them, a line feed after each row; TAB, LF, CR and backslash in a field are written as \t,
/// \n, \r and \\.
class TsvFormat : public RowFormat
{
public:
  void append_header(std::string& text, std::vector<std::string> const& columns) const override;
  void append_row(
    std::string& text, std::vector<std::string> const& columns, std::vector<Value> const& values) const override;
};

/// One JSON object a line (RFC 8259) with the columns as names; a value that the document does not have is null. Bytes
/// that are not UTF-8 become U+FFFD.
class JsonLinesFormat : public RowFormat
{
public:
  void append_header(std::string& text, std::vector<std::string> const& columns) const override;
  void append_row(
    std::string& text, std::vector<std::string> const& columns, std::vector<Value> const& values) const override;
};
