#include "SourceLine.h"

#include <apString.h>
#include <utUtf8.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <system_error>

namespace
{
std::size_t const widest = 100;

std::string const byte_order_mark = "\xEF\xBB\xBF";

char const* const stand_in = "\xEF\xBF\xBD";

// No more of the line than `longest` bytes and a byte-order mark: a document may be all one line. Lines end with LF, CR LF
// or CR (XML 1.0, 2.11).
std::string read_line(apPath const& file, int number, std::size_t longest)
{
  std::unique_ptr<std::FILE, int (*)(std::FILE*)> const stream(file.file_open(apPath::read_mode()), &std::fclose);
  std::string line;
  if (stream == nullptr)
    return line;
  int at = 1;
  int before = 0;
  for (int c = std::getc(stream.get()); c != EOF && at <= number && line.size() < longest + byte_order_mark.size();
       c = std::getc(stream.get()))
  {
    if (c == '\r' || (c == '\n' && before != '\r'))
      ++at;
    else if (c != '\n' && at == number)
      line += static_cast<char>(c);
    before = c;
  }
  return line;
}

// Where the character of that column begins. One of four bytes takes two columns.
std::size_t offset_of(std::string const& line, int column)
{
  std::size_t at = 0;
  for (int i = 1; i < column && at < line.size(); ++i)
  {
    bool const takes_two = utUtf8::length_from_first(line[at]) == 4;
    i += takes_two ? 1 : 0;
    do
      ++at;
    while (at < line.size() && utUtf8::is_continuation(line[at]));
  }
  return at;
}

// The characters of `text`, each with what stands for it; tabs stay.
std::string without_controls(std::string const& text)
{
  std::string const characters = apString(text.c_str()).to_utf8().c_str();
  std::string safe;
  for (std::size_t at = 0; at < characters.size(); ++at)
  {
    auto const c = static_cast<unsigned char>(characters[at]);
    bool const is_c1 = c == 0xC2 && at + 1 < characters.size() && static_cast<unsigned char>(characters[at + 1]) < 0xA0;
    if (is_c1)
      ++at;
    if (is_c1 || (c < ' ' && c != '\t') || c == 0x7F)
      safe += stand_in;
    else
      safe += characters[at];
  }
  return safe;
}
}

std::string shown(std::string const& text)
{
  std::string line = text;
  std::replace_if(
    line.begin(), line.end(), [](char c) { return c == '\t' || c == '\n' || c == '\r'; }, ' ');
  return without_controls(line);
}

std::string shown_place(apPath const& file, int number, int column)
{
  // What was read from a pipe is gone, and waiting for more of it could take for ever.
  std::error_code ignored;
  if (!std::filesystem::is_regular_file(std::filesystem::u8path(file.path().view()), ignored))
    return std::string();
  // No column takes more than three bytes.
  std::size_t const longest = 3 * (static_cast<std::size_t>(std::max(column, 1)) + widest);
  std::string raw = read_line(file, number, longest);
  if (number == 1 && raw.compare(0, byte_order_mark.size(), byte_order_mark) == 0)
    raw.erase(0, byte_order_mark.size()); // takes no column
  if (raw.empty() || raw.find('\0') != std::string::npos)
    return std::string();
  std::string const line = without_controls(raw);
  std::size_t const mark = offset_of(line, column);
  std::size_t start = mark > widest ? mark - widest / 2 : 0;
  while (start < mark && utUtf8::is_continuation(line[start]))
    ++start;
  std::size_t end = std::min(line.size(), start + widest);
  while (end < line.size() && utUtf8::is_continuation(line[end]))
    ++end;

  std::string under;
  for (std::size_t i = start; i < mark; ++i)
    if (!utUtf8::is_continuation(line[i]))
      under += line[i] == '\t' ? '\t' : ' ';
  return line.substr(start, end - start) + '\n' + under + "^\n";
}
