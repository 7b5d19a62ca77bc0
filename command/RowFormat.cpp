#include "RowFormat.h"

#include <apString.h>

#include <string_view>

namespace
{
std::vector<Value> names(std::vector<std::string> const& columns)
{
  return {columns.begin(), columns.end()};
}

// Fields are short: looking at each byte once is quicker than a search for each in the set.
bool needs_quotes(std::string_view field)
{
  for (char const c : field)
    if (c == ',' || c == '"' || c == '\r' || c == '\n')
      return true;
  return false;
}

void append_csv(std::string& line, std::string_view field, bool alone)
{
  if (!needs_quotes(field) && !(alone && field.empty()))
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
  utString valid; // where the field has bytes that are not UTF-8
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

std::unique_ptr<RowFormat> RowFormat::of(std::string const& name)
{
  if (name == "tsv")
    return std::make_unique<TsvFormat>();
  if (name == "jsonl")
    return std::make_unique<JsonLinesFormat>();
  return std::make_unique<CsvFormat>();
}

void CsvFormat::append_header(std::string& text, std::vector<std::string> const& columns) const
{
  append_row(text, columns, names(columns));
}

void CsvFormat::append_row(std::string& text, std::vector<std::string> const&, std::vector<Value> const& values) const
{
  for (std::size_t i = 0; i < values.size(); ++i)
  {
    if (i > 0)
      text += ',';
    append_csv(text, values[i].value_or(std::string_view()), values.size() == 1);
  }
  text += "\r\n";
}

void TsvFormat::append_header(std::string& text, std::vector<std::string> const& columns) const
{
  append_row(text, columns, names(columns));
}

void TsvFormat::append_row(std::string& text, std::vector<std::string> const&, std::vector<Value> const& values) const
{
  for (std::size_t i = 0; i < values.size(); ++i)
  {
    if (i > 0)
      text += '\t';
    append_tsv(text, values[i].value_or(std::string_view()));
  }
  text += '\n';
}

// Every row has the names.
void JsonLinesFormat::append_header(std::string&, std::vector<std::string> const&) const {}

void JsonLinesFormat::append_row(
  std::string& text, std::vector<std::string> const& columns, std::vector<Value> const& values) const
{
  text += '{';
  for (std::size_t i = 0; i < values.size(); ++i)
  {
    if (i > 0)
      text += ',';
    append_json(text, columns[i]);
    text += ':';
    if (values[i])
      append_json(text, *values[i]);
    else
      text += "null";
  }
  text += "}\n";
}
