#include "RowFormat.h"

#include <apString.h>

#include <string_view>

namespace
{
std::string_view text(Value const& value)
{
  return value ? std::string_view(value->c_str(), static_cast<std::size_t>(value->length())) : std::string_view();
}

std::vector<Value> names(std::vector<std::string> const& columns)
{
  std::vector<Value> values;
  for (std::string const& column : columns)
    values.emplace_back(utString(column.c_str()));
  return values;
}

void append_csv(std::string& line, std::string_view field, bool alone)
{
  if (field.find_first_of(",\"\r\n") == std::string_view::npos && !(alone && field.empty()))
  {
    line += field;
    return;
  }
  line += '"';
  for (char const c : field)
  {
    if (c == '"')
      line += '"';
    line += c;
  }
  line += '"';
}

void append_tsv(std::string& line, std::string_view field)
{
  for (char const c : field)
    switch (c)
    {
    case '\t':
      line += "\\t";
      break;
    case '\n':
      line += "\\n";
      break;
    case '\r':
      line += "\\r";
      break;
    case '\\':
      line += "\\\\";
      break;
    default:
      line += c;
    }
}

bool is_ascii(std::string_view field)
{
  for (char const c : field)
    if (static_cast<unsigned char>(c) >= 0x80)
      return false;
  return true;
}

void append_json(std::string& line, std::string_view field)
{
  utString valid;
  if (!is_ascii(field))
  {
    valid = apString::from_utf8(field).to_utf8();
    field = std::string_view(valid.c_str(), static_cast<std::size_t>(valid.length()));
  }
  line += '"';
  for (char const c : field)
  {
    char const digits[] = "0123456789abcdef";
    auto const code = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\')
      line += '\\';
    if (code >= 0x20)
      line += c;
    else if (c == '\n')
      line += "\\n";
    else if (c == '\t')
      line += "\\t";
    else if (c == '\r')
      line += "\\r";
    else
    {
      line += "\\u00";
      line += digits[code >> 4];
      line += digits[code & 15];
    }
  }
  line += '"';
}
}

std::string CsvFormat::header(std::vector<std::string> const& columns) const
{
  return row(columns, names(columns));
}

std::string CsvFormat::row(std::vector<std::string> const&, std::vector<Value> const& values) const
{
  std::string line;
  for (Value const& value : values)
  {
    if (&value != &values.front())
      line += ',';
    append_csv(line, text(value), values.size() == 1);
  }
  return line + "\r\n";
}

std::string TsvFormat::header(std::vector<std::string> const& columns) const
{
  return row(columns, names(columns));
}

std::string TsvFormat::row(std::vector<std::string> const&, std::vector<Value> const& values) const
{
  std::string line;
  for (Value const& value : values)
  {
    if (&value != &values.front())
      line += '\t';
    append_tsv(line, text(value));
  }
  return line + '\n';
}

std::string JsonLinesFormat::header(std::vector<std::string> const&) const
{
  return {}; // every row has the names
}

std::string JsonLinesFormat::row(std::vector<std::string> const& columns, std::vector<Value> const& values) const
{
  std::string line = "{";
  for (std::size_t i = 0; i < values.size(); ++i)
  {
    if (i > 0)
      line += ',';
    append_json(line, columns[i]);
    line += ':';
    if (values[i])
      append_json(line, text(values[i]));
    else
      line += "null";
  }
  return line + "}\n";
}
