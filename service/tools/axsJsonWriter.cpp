#include "axsJsonWriter.h"

#include <algorithm>

namespace
{
std::size_t const piece_size = std::size_t{64} * 1024;

// No line is indented by more of them, so that what is written of a deep document stays in proportion to it.
std::size_t const max_levels = 100;
}

void axsJsonWriter::key(std::string_view name)
{
  next();
  quote(name);
  out += indent > 0 ? ": " : ":";
  is_after_key = true;
}

void axsJsonWriter::text(std::string_view value)
{
  next();
  quote(value);
  flush(piece_size);
}

void axsJsonWriter::null()
{
  next();
  out += "null";
  flush(piece_size);
}

void axsJsonWriter::finish()
{
  out += '\n';
  flush(0);
}

void axsJsonWriter::begin(char bracket)
{
  next();
  out += bracket;
  open.push_back(false);
}

void axsJsonWriter::end(char bracket)
{
  bool const has_something = open.back();
  open.pop_back();
  if (has_something)
    new_line();
  out += bracket;
  flush(piece_size);
}

// Before a key, or before a value that has none.
void axsJsonWriter::next()
{
  bool const had_key = is_after_key;
  is_after_key = false;
  if (had_key || open.empty())
    return;
  if (open.back())
    out += ',';
  open.back() = true;
  new_line();
}

void axsJsonWriter::new_line()
{
  if (indent == 0)
    return;
  out += '\n';
  out.append(std::min(open.size(), max_levels) * indent, ' ');
}

void axsJsonWriter::quote(std::string_view value)
{
  char const digits[] = "0123456789abcdef";
  out += '"';
  for (char const c : value)
  {
    auto const code = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\')
      out += '\\';
    if (code >= 0x20)
      out += c;
    else if (c == '\n')
      out += "\\n";
    else if (c == '\t')
      out += "\\t";
    else if (c == '\r')
      out += "\\r";
    else
    {
      out += "\\u00";
      out += digits[code >> 4];
      out += digits[code & 15];
    }
  }
  out += '"';
}

void axsJsonWriter::flush(std::size_t limit)
{
  if (out.size() <= limit || !wanted)
    return;
  wanted = write(out);
  out.clear();
}
