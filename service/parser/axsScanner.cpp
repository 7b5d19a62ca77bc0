#include "axsScanner.h"

#include "axsAttributeList.h"
#include "axsAttributeValue.h"
#include "axsCharacters.h"
#include "axsDtd.h"
#include "axsEntities.h"
#include "axsGrowth.h"
#include "axsInputBuffer.h"
#include "axsLocator.h"
#include "axsName.h"
#include "axsNameCache.h"
#include "axsNamespaceScope.h"
#include "axsParseHandler.h"
#include "axsProlog.h"
#include "axsSource.h"
#include "axsStartTag.h"
#include "axsSubset.h"

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

// One run over a document. Each step reads one text or piece of markup at `at` and tells of it when it has seen the
// whole; a step that ends with `more` is made again.
class Scan final : private axsLocator
{
public:
  Scan(axsSource& source, axsParseHandler& handler, std::size_t most_expansions);

  bool run();

private:
  apString url() const override { return document.url(); }
  axsPlace begin() const override { return place_of(event_begin); }
  axsPlace attribute(std::size_t index) const override;
  axsPlace end() const override { return place_of(event_end); }
  axsPlace place_of(char const* to) const { return window.place(to); }

  void told(char const* to) { event_begin = at, event_end = to; }
  Step step();
  Step outside();
  Step doctype();
  Step text();
  Step start_tag();
  Step end_tag();
  Step comment();
  Step cdata();
  Step processing_instruction();

  Step stop(char const* place);
  bool attribute(char const*& p, axsReadName const& element);
  void tell_start(axsReadName const& name);
  bool section(char const*& p, std::string_view closing, std::string_view& data);
  void take(char const* from, char const* to) { normal.append(from, static_cast<std::size_t>(to - from)); }
  void take_line_end(char const*& p);

  axsSource const& document;
  axsParseHandler& events;
  axsInputBuffer window;
  axsNameCache names;
  axsNamespaceScope namespaces;
  axsGrowth growth;
  axsEntities entities;
  axsSubset subset;
  std::vector<axsName const*> open;
  axsNamespaceScope::Attributes attributes;
  // The texts of this step that do not stand in the window as they are. It has room for whatever can come out of the
  // window, so that views of it stay good; where entities lack room for more, the step is made again with more room.
  std::string normal;
  std::vector<axsTagAttribute> tag_attributes;
  // Where the names of the attributes stand that are specified.
  std::vector<char const*> attribute_places;
  char const* at;
  char const* event_begin = nullptr;
  char const* event_end = nullptr;
  std::uint64_t elements = 0;
  bool doctype_seen = false;
  bool root_seen = false;
};

Scan::Scan(axsSource& source, axsParseHandler& handler, std::size_t most_expansions)
  : document(source),
    events(handler),
    window(source),
    names(handler),
    namespaces(names),
    growth(window),
    entities(window, growth, most_expansions),
    subset(names, entities),
    at(window.begin())
{
  normal.reserve(window.capacity());
}

bool Scan::run()
{
  events.start_document(*this);
  if (!axsProlog::skip_declaration(at))
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
      break;
    case Step::end:
      return true;
    case Step::refused:
      return false;
    }
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
  if (root_seen || doctype_seen || !axsProlog::skip_doctype_begin(p))
    return stop(p);
  if (skip(p, "["))
  {
    if (!subset.read(p))
      return stop(p);
    skip_spaces(p);
  }
  if (!skip(p, ">"))
    return stop(p);
  doctype_seen = true;
  auto const type = std::make_shared<axsDtd>();
  type->text.assign(at, p);
  told(p);
  events.doctype(type);
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
    p = behind_text<apByteBlock, '<', '&', ']', '\r'>(p);
    switch (*p)
    {
    case '<':
      if (from != at)
        take(from, p);
      told(p);
      events.text(from == at ? std::string_view(from, static_cast<std::size_t>(p - from)) : normal, false);
      at = p;
      return Step::next;
    case '&':
      take(from, p);
      if (!entities.read(p, normal, axsEntities::Place::text))
        return stop(p);
      from = p;
      break;
    case '\r':
      take(from, p);
      take_line_end(p);
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
  attribute_places.clear();
  normal.clear();
  while (*p != '>' && *p != '/')
    if (!skip_spaces(p) || (*p != '>' && *p != '/' && !attribute(p, name)))
      return stop(p);
  bool const is_empty = *p == '/';
  if (!skip(p, is_empty ? "/>" : ">"))
    return stop(p);
  if (name.attributes != nullptr && !growth.add(name.attributes->add_missing(attributes, elements)))
    return Step::refused;
  if (!namespaces.open(name, attributes) || open.size() == axsScanner::most_levels)
    return Step::refused;

  told(p);
  tell_start(name);
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

void Scan::tell_start(axsReadName const& name)
{
  tag_attributes.clear();
  for (axsReadAttribute const& read : attributes)
  {
    axsReadName const& attribute = *read.name;
    bool const is_tokens = name.attributes != nullptr && name.attributes->is_of_tokens(attribute);
    tag_attributes.push_back({attribute.name, namespaces.of_attribute(attribute), read.value,
      is_tokens ? axsAttributeType::nmtokens : axsAttributeType::cdata, tag_attributes.size() < attribute_places.size(),
      attribute.declared != nullptr});
  }
  events.start_element({name.name, namespaces.of_element(name), &tag_attributes, &namespaces});
}

axsPlace Scan::attribute(std::size_t index) const
{
  return index < attribute_places.size() ? place_of(attribute_places[index]) : begin();
}

bool Scan::attribute(char const*& p, axsReadName const& element)
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
  std::string_view value;
  if (!axsAttributeValue::read(p, normal, value, &entities))
    return false;
  if (element.attributes != nullptr && element.attributes->is_of_tokens(name))
    axsAttributeValue::collapse(normal, value);
  attributes.push_back({&name, value});
  attribute_places.push_back(begin);
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
  told(p + 1);
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
  told(p);
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
  told(p);
  events.text(data, true);
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
  told(p);
  events.processing_instruction(target, data);
  at = p;
  return Step::next;
}

// Where a step finds what it does not take: at the end of the window it may be only a part of what it is.
Step Scan::stop(char const* place)
{
  if (std::size_t const room = entities.take_lacking_room(); room > 0)
  {
    normal.reserve(2 * room);
    return Step::next;
  }
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
    p = behind_text<apByteBlock, '-', ']', '?', '\r'>(p);
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
      take_line_end(p);
      from = p;
      break;
    default:
      if (!skip_multibyte(p))
        return false;
    }
  }
}

void Scan::take_line_end(char const*& p)
{
  skip_line_end(p);
  normal += '\n';
}
}

bool axsScanner::scan(axsSource& source, axmLoadOptions const& options, axsParseHandler& events)
{
  return Scan(source, events, static_cast<std::size_t>(std::max(options.entity_expansion_limit(), 0))).run();
}
