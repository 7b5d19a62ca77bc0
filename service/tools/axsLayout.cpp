#include "axsLayout.h"

#include <utUtf8.h>

#include <algorithm>

namespace
{
std::size_t const piece_size = std::size_t{64} * 1024;

// No line is indented by more of them, so that what is written of a deep document stays in proportion to it.
std::size_t const max_levels = 100;

bool is_space(std::string_view text)
{
  return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}
}

axsLayout::axsLayout(std::string_view document, axsLayoutNotes const& given, axsFormatOptions const& wanted,
  char const* line_end, Write const& target)
  : text(document),
    notes(given),
    options(wanted),
    ends_with_carriage_return(*line_end == '\r'),
    write(target),
    scanner(document)
{
}

bool axsLayout::write_mark()
{
  return write("\xEF\xBB\xBF");
}

void axsLayout::run()
{
  find_mixed();
  while (is_wanted && scanner.next())
    piece(scanner.kind(), scanner.piece());
  put("\n");
  flush(0);
}

// Which elements have text in them shows at their ends only, so that is found out first.
void axsLayout::find_mixed()
{
  struct Found
  {
    std::size_t element;
    Content content;
  };
  std::vector<Found> stack;
  axsMarkupScanner all(text);
  while (all.next())
  {
    Kind const kind = all.kind();
    if (kind == Kind::end_tag)
    {
      mixed[stack.back().element] = stack.back().content.is_mixed();
      stack.pop_back();
      continue;
    }
    if (!stack.empty())
    {
      Content& content = stack.back().content;
      bool const is_white = kind == Kind::text && is_space(all.piece());
      content.has_space = content.has_space || is_white;
      content.has_text = content.has_text || kind == Kind::cdata || (kind == Kind::text && !is_white);
      content.has_markup = content.has_markup || (kind != Kind::text && kind != Kind::cdata);
    }
    if (kind == Kind::start_tag)
      stack.push_back({mixed.size(), {}});
    if (kind == Kind::start_tag || kind == Kind::empty_tag)
      mixed.push_back(false);
  }
}

void axsLayout::piece(Kind kind, std::string_view what)
{
  switch (kind)
  {
  case Kind::text:
    return text_between(what);
  case Kind::cdata:
    return put(what);
  case Kind::end_tag:
    return end_element();
  case Kind::start_tag:
    begin_line(kind);
    write_tag(false);
    return open_element();
  case Kind::empty_tag:
    begin_line(kind);
    write_tag(true);
    while (next_space < notes.spaces.size() && notes.spaces[next_space].element == elements)
      ++next_space;
    ++elements;
    return;
  case Kind::declaration:
  case Kind::doctype:
  case Kind::comment:
  case Kind::instruction:
    begin_line(kind);
    return put(what);
  }
}

// White space of which nothing depends is only looked at.
void axsLayout::text_between(std::string_view what)
{
  if (is_verbatim())
    return put(what);
  line_feeds = static_cast<std::size_t>(std::count(what.begin(), what.end(), '\n'));
  has_blank = true;
}

void axsLayout::begin_line(Kind kind)
{
  bool const is_first = open.empty() ? !has_written : open.back().is_empty;
  bool const stays = kind == Kind::comment && has_blank && line_feeds == 0 && !is_first;
  bool const is_apart = line_feeds > 1 && !is_first;
  has_written = true;
  line_feeds = 0;
  has_blank = false;
  if (is_verbatim())
    return;
  if (!open.empty())
    open.back().is_empty = false;
  if (stays)
    return put(" ");
  if (is_apart)
    put("\n");
  // Nothing stands before the first piece of the document.
  if (column > 0 || !open.empty() || !is_first)
    break_line(open.size());
}

void axsLayout::open_element()
{
  bool is_preserved = !open.empty() && open.back().is_preserved;
  for (; next_space < notes.spaces.size() && notes.spaces[next_space].element == elements; ++next_space)
    is_preserved = notes.spaces[next_space].is_preserved;
  bool const is_mixed = mixed[elements] || (!open.empty() && open.back().is_mixed);
  open.push_back({is_mixed || is_preserved, is_mixed, is_preserved, true});
  ++elements;
}

void axsLayout::end_element()
{
  Open const ended = open.back();
  open.pop_back();
  line_feeds = 0;
  has_blank = false;
  if (!ended.is_verbatim && !ended.is_empty)
    break_line(open.size());
  put("</");
  put(scanner.name());
  put(">");
}

void axsLayout::write_tag(bool is_empty)
{
  if (is_verbatim())
    return put(scanner.piece());
  put("<");
  put(scanner.name());
  std::size_t on_line = 0;
  std::size_t at = 0;
  std::string_view name;
  std::string_view value;
  while (scanner.next_attribute(at, name, value))
  {
    std::size_t const first_line = std::min(value.find('\n'), value.size());
    std::size_t const length = utUtf8::count(name) + 2 + utUtf8::count(value.substr(0, first_line));
    // Two more for what ends the tag.
    bool const is_too_long = options.width > 0 && column + length + 2 > options.width && on_line > 0;
    bool const are_enough = options.attributes_per_line > 0 && on_line == options.attributes_per_line;
    if (is_too_long || are_enough)
    {
      break_line(open.size() + 2);
      on_line = 0;
    }
    else
      put(" ");
    ++on_line;
    put(name);
    put("=");
    put(value);
  }
  put(is_empty ? "/>" : ">");
}

void axsLayout::break_line(std::size_t levels)
{
  put("\n");
  std::size_t const indent = std::min(levels, max_levels) * options.indent;
  out.append(indent, options.has_tabs ? '\t' : ' ');
  column = indent;
}

void axsLayout::put(std::string_view what)
{
  std::size_t const last = what.rfind('\n');
  if (last == std::string_view::npos)
    column += utUtf8::count(what);
  else
    column = utUtf8::count(what.substr(last + 1));
  if (!ends_with_carriage_return)
    out += what;
  else
    for (char const c : what)
    {
      if (c == '\n')
        out += '\r';
      out += c;
    }
  flush(piece_size);
}

void axsLayout::flush(std::size_t limit)
{
  if (out.size() <= limit || !is_wanted)
    return;
  is_wanted = write(out);
  out.clear();
}
