#include "Loading.h"

#include "BuiltInEngine.h"

#include <algorithm>
#include <cstdio>
#include <iostream>

namespace
{
std::size_t const widest = 100;

bool is_tail(char c)
{
  return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

std::string read_line(apPath const& file, int number)
{
  std::string line;
  std::FILE* const stream = file.file_open(apPath::read_mode());
  if (stream == nullptr)
    return line;
  int at = 1;
  for (int c = std::getc(stream); c != EOF && at <= number; c = std::getc(stream))
    if (c == '\n')
      ++at;
    else if (at == number && c != '\r')
      line += static_cast<char>(c);
  std::fclose(stream);
  return line;
}

// Where the character of that column begins.
std::size_t offset_of(std::string const& line, int column)
{
  std::size_t at = 0;
  for (int i = 1; i < column && at < line.size(); ++i)
    do
      ++at;
    while (at < line.size() && is_tail(line[at]));
  return at;
}

// The line, or the part of a long one around the column, and a mark under the column.
void show_place(apPath const& file, int number, int column)
{
  std::string const line = read_line(file, number);
  if (line.empty())
    return;
  std::size_t const mark = offset_of(line, column);
  std::size_t start = mark > widest ? mark - widest / 2 : 0;
  while (start < mark && is_tail(line[start]))
    ++start;
  std::size_t end = std::min(line.size(), start + widest);
  while (end < line.size() && is_tail(line[end]))
    ++end;

  std::string under;
  for (std::size_t i = start; i < mark; ++i)
    if (!is_tail(line[i]))
      under += line[i] == '\t' ? '\t' : ' ';
  std::cerr << line.substr(start, end - start) << '\n' << under << "^\n";
}
}

std::shared_ptr<axmDocument> load_or_complain(
  axmDocumentFactory const& factory, std::string const& file, axmLoadOptions const& options)
{
  axmParseError error;
  std::shared_ptr<axmDocument> document = factory.loadDocument(apPath(file.c_str()), options, error);
  if (document != nullptr)
    return document;

  std::string const where = error.url().empty() ? file : error.url().to_utf8().c_str();
  std::cerr << where;
  if (error.line_number() > 0)
    std::cerr << ':' << error.line_number() << ':' << std::max(error.column_number(), 1);
  std::cerr << ": " << error.message().to_utf8() << '\n';
  if (error.line_number() > 0)
    show_place(apPath(where.c_str()), error.line_number(), error.column_number());
  return nullptr;
}

std::shared_ptr<axmDocumentFactory> engine_or_complain()
{
  std::shared_ptr<axmDocumentFactory> factory = built_in_engine();
  if (factory == nullptr)
    std::cerr << "axm: this program was built without an engine\n";
  return factory;
}
