#include "axsScanner.h"

#include "axsCharacters.h"
#include "axsName.h"
#include "axsNameCache.h"
#include "axsNamespaceScope.h"
#include "axsProlog.h"
#include "axsReadingEvents.h"
#include "axsSource.h"
#include "axsWindow.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

namespace
{
using namespace axsCharacters;

enum class Step
{
  next,
  // Something needs a look at more than there is in the window.
  more,
  end,
  refused
};

// Nothing looks further ahead than this without looking at every byte up to there.
std::ptrdiff_t const look_ahead = 16;

struct Entity
{
  std::string_view reference;
  char character;
};

Entity const predefined[] = {{"&lt;", '<'}, {"&gt;", '>'}, {"&amp;", '&'}, {"&quot;", '"'}, {"&apos;", '\''}};

// One run over a document. Each step reads one text or piece of markup at `at` and tells of it when it has seen the
// whole; a step that ends with `more` is made again.
class Scan
{
public:
  Scan(axsSource& source, axsReadingEvents& told);

  bool run();

private:
  bool is_in_encoding() const;
  Step step();
  Step outside();
  Step doctype();
  Step text();
  Step start_tag();
  Step end_tag();
  Step comment();
  Step cdata();
  Step processing_instruction();

  Step stop(char const* place) const;
  bool attribute(char const*& p);
  bool value(char const*& p, std::string_view& value);
  bool section(char const*& p, std::string_view closing, std::string_view& data);
  bool reference(char const*& p);
  void take(char const* from, char const* to) { normal.append(from, static_cast<std::size_t>(to - from)); }
  void take_line_end(char const*& p, char as);

  axsReadingEvents& events;
  axsWindow window;
  axsNameCache names;
  axsNamespaceScope namespaces;
  std::vector<axsName const*> open;
  axsNamespaceScope::Attributes attributes;
  // The texts of this step that do not stand in the window as they are. It has room for whatever can come out of the
  // window, so that views of it stay good.
  std::string normal;
  char const* at;
  std::uint64_t elements = 0;
  bool doctype_seen = false;
  bool root_seen = false;
  axsProlog::Encoding encoding = axsProlog::Encoding::utf8;
};

Scan::Scan(axsSource& source, axsReadingEvents& told) : events(told), window(source), names(told), at(window.begin())
{
  normal.reserve(window.capacity());
}

bool Scan::run()
{
  if (!axsProlog::skip_declaration(at, encoding) || !is_in_encoding())
    return false;
  while (true)
    switch (step())
    {
    case Step::next:
      break;
    case Step::more:
      at = window.advance(at);
      if (normal.capacity() < window.capacity())
        normal.reserve(window.capacity());
      if (!is_in_encoding())
        return false;
      break;
    case Step::end:
      return true;
    case Step::refused:
      return false;
    }
}

// Whether the bytes can be of the encoding that is declared. Those of UTF-8 are looked at as they are read.
bool Scan::is_in_encoding() const
{
  return encoding == axsProlog::Encoding::utf8 || std::all_of(window.begin(), window.end(), is_ascii);
}

Step Scan::step()
{
  if (open.empty())
    return outside();
  if (*at != '<')
    return text();
  switch (at[1])
  {
  case '/':
    return end_tag();
  case '?':
    return processing_instruction();
  case '!':
    return at[2] == '-' ? comment() : cdata();
  default:
    return start_tag();
  }
}

Step Scan::outside()
{
  at = behind_spaces(at);
  if (*at == '<')
  {
    if (at[1] == '?')
      return processing_instruction();
    if (at[1] == '!')
      return at[2] == '-' ? comment() : doctype();
    return root_seen ? stop(at) : start_tag();
  }
  if (at == window.end() && window.is_last() && root_seen)
    return Step::end;
  return stop(at);
}

Step Scan::doctype()
{
  char const* p = at;
  if (root_seen || doctype_seen || !axsProlog::skip_doctype(p))
    return stop(p);
  doctype_seen = true;
  events.doctype({at, static_cast<std::size_t>(p - at)});
  at = p;
  return Step::next;
}

Step Scan::text()
{
  normal.clear();
  char const* from = at;
  char const* p = at;
  while (true)
  {
    p = behind_text<axsByteBlock, '<', '&', ']', '\r'>(p);
    switch (*p)
    {
    case '<':
      if (from != at)
        take(from, p);
      events.text(from == at ? std::string_view(from, static_cast<std::size_t>(p - from)) : normal);
      at = p;
      return Step::next;
    case '&':
      take(from, p);
      if (!reference(p))
        return stop(p);
      from = p;
      break;
    case '\r':
      take(from, p);
      take_line_end(p, '\n');
      from = p;
      break;
    case ']':
      if (begins(p, "]]>"))
        return stop(p);
      ++p;
      break;
    default:
      if (!skip_multibyte(p))
        return stop(p);
    }
  }
}

Step Scan::start_tag()
{
  char const* const begin = at + 1;
  char const* p = behind_name(begin);
  if (p == begin || *p == '\0')
    return stop(p);
  axsReadName const& name = names.find({begin, static_cast<std::size_t>(p - begin)});

  ++elements;
  attributes.clear();
  normal.clear();
  while (*p != '>' && *p != '/')
    if (!skip_spaces(p) || (*p != '>' && *p != '/' && !attribute(p)))
      return stop(p);
  bool const is_empty = *p == '/';
  if (!skip(p, is_empty ? "/>" : ">"))
    return stop(p);
  if (!namespaces.open(name, attributes) || open.size() == axsScanner::most_levels)
    return Step::refused;

  events.start_element(*name.name);
  for (axsReadAttribute const& read : attributes)
    events.attribute(*read.name->name, read.value);
  if (is_empty)
  {
    namespaces.close();
    events.end_element();
  }
  else
    open.push_back(name.name);
  root_seen = true;
  at = p;
  return Step::next;
}

bool Scan::attribute(char const*& p)
{
  char const* const begin = p;
  p = behind_name(begin);
  if (p == begin || *p == '\0')
    return false;
  axsReadName& name = names.find({begin, static_cast<std::size_t>(p - begin)});
  if (name.last_element == elements)
    return false;
  name.last_element = elements;

  skip_spaces(p);
  if (!skip(p, "="))
    return false;
  skip_spaces(p);
  std::string_view read;
  if (!value(p, read))
    return false;
  attributes.push_back({&name, read});
  return true;
}

// Reads a value in quotes and normalises it as that of an attribute that nothing declares (3.3.3).
bool Scan::value(char const*& p, std::string_view& value)
{
  char const quote = *p;
  if (quote != '"' && quote != '\'')
    return false;
  char const* const begin = ++p;
  char const* from = begin;
  std::size_t const before = normal.size();
  while (true)
  {
    p = behind_value(p, quote);
    if (*p == quote)
      break;
    switch (*p)
    {
    case '&':
      take(from, p);
      if (!reference(p))
        return false;
      from = p;
      break;
    case '\t':
    case '\n':
    case '\r':
      take(from, p);
      take_line_end(p, ' ');
      from = p;
      break;
    default:
      if (!skip_multibyte(p))
        return false;
    }
  }
  if (from == begin)
    value = {begin, static_cast<std::size_t>(p - begin)};
  else
  {
    take(from, p);
    value = std::string_view(normal).substr(before);
  }
  ++p;
  return true;
}

Step Scan::end_tag()
{
  std::string_view const name = open.back()->utf8();
  char const* p = at + 2;
  if (static_cast<std::size_t>(window.end() - p) < name.size())
    return window.is_last() ? Step::refused : Step::more;
  if (std::memcmp(p, name.data(), name.size()) != 0)
    return Step::refused;
  p = behind_spaces(p + name.size());
  if (*p != '>')
    return stop(p);
  open.pop_back();
  namespaces.close();
  events.end_element();
  at = p + 1;
  return Step::next;
}

Step Scan::comment()
{
  char const* p = at;
  std::string_view data;
  if (!skip(p, "<!--") || !section(p, "-->", data))
    return stop(p);
  // 2.5, [15] Comment
  if (data.find("--") != std::string_view::npos || (!data.empty() && data.back() == '-'))
    return Step::refused;
  events.comment(data);
  at = p;
  return Step::next;
}

Step Scan::cdata()
{
  char const* p = at;
  std::string_view data;
  if (!skip(p, "<![CDATA[") || !section(p, "]]>", data))
    return stop(p);
  events.cdata(data);
  at = p;
  return Step::next;
}

Step Scan::processing_instruction()
{
  char const* const begin = at + 2;
  char const* p = behind_name(begin);
  if (p == begin || *p == '\0')
    return stop(p);
  std::string_view const target(begin, static_cast<std::size_t>(p - begin));
  if (target.find(':') != std::string_view::npos || is_equal_in_any_case(target, "xml"))
    return Step::refused;
  std::string_view data;
  if ((!skip_spaces(p) && !begins(p, "?>")) || !section(p, "?>", data))
    return stop(p);
  events.processing_instruction(target, data);
  at = p;
  return Step::next;
}

// Where a step finds what it does not take: at the end of the window it may be only a part of what it is.
Step Scan::stop(char const* place) const
{
  return window.is_last() || window.end() - place >= look_ahead ? Step::refused : Step::more;
}

// Reads up to `closing` and moves behind that.
bool Scan::section(char const*& p, std::string_view closing, std::string_view& data)
{
  normal.clear();
  char const* const begin = p;
  char const* from = begin;
  while (true)
  {
    p = behind_text<axsByteBlock, '-', ']', '?', '\r'>(p);
    switch (*p)
    {
    case '-':
    case ']':
    case '?':
      if (!begins(p, closing))
      {
        ++p;
        break;
      }
      if (from == begin)
        data = {begin, static_cast<std::size_t>(p - begin)};
      else
      {
        take(from, p);
        data = normal;
      }
      p += closing.size();
      return true;
    case '\r':
      take(from, p);
      take_line_end(p, '\n');
      from = p;
      break;
    default:
      if (!skip_multibyte(p))
        return false;
    }
  }
}

// Takes the character for which the reference at `p` stands and moves behind it (4.1, [66] CharRef; 4.6).
bool Scan::reference(char const*& p)
{
  for (Entity const& entity : predefined)
    if (skip(p, entity.reference))
    {
      normal += entity.character;
      return true;
    }
  if (!skip(p, "&#"))
    return false;
  char32_t const base = skip(p, "x") ? 16 : 10;
  char32_t code = 0;
  char const* const digits = p;
  // Eight digits make no number that does not fit.
  for (; p - digits < 8; ++p)
  {
    char32_t digit = 0;
    if (*p >= '0' && *p <= '9')
      digit = static_cast<char32_t>(*p - '0');
    else if (base == 16 && *p >= 'a' && *p <= 'f')
      digit = static_cast<char32_t>(*p - 'a' + 10);
    else if (base == 16 && *p >= 'A' && *p <= 'F')
      digit = static_cast<char32_t>(*p - 'A' + 10);
    else
      break;
    code = code * base + digit;
  }
  if (p == digits || !is_character(code) || !skip(p, ";"))
    return false;
  append_utf8(code, normal);
  return true;
}

// Moves behind a tab or line end and takes it as one character (2.11).
void Scan::take_line_end(char const*& p, char as)
{
  p += begins(p, "\r\n") ? 2 : 1;
  normal += as;
}
}

bool axsScanner::scan(axsSource& source, axsReadingEvents& events)
{
  return Scan(source, events).run();
}
