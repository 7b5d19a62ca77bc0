#include "SchemaMutator.h"

#include <algorithm>

namespace
{
std::string const white = " \t\r\n";

bool is_one_of(char c, std::string const& set)
{
  return set.find(c) != std::string::npos;
}
}

SchemaMutator::SchemaMutator(std::string const& given, std::uint32_t seed) : text(given), state(seed * 2654435761u + 1)
{
  look();
}

unsigned SchemaMutator::pick(std::size_t below) noexcept
{
  state = state * 1664525u + 1013904223u;
  return static_cast<unsigned>((static_cast<std::uint64_t>(state >> 8) * below) >> 24);
}

std::string const& SchemaMutator::mutate()
{
  unsigned const wanted = 1 + pick(2);
  for (unsigned done = 0, tries = 0; done < wanted && tries < 20; ++tries)
  {
    done += change() ? 1U : 0U;
    look();
  }
  return text;
}

// Finds the elements and attributes; comments, sections and instructions are passed over.
void SchemaMutator::look()
{
  attributes.clear();
  elements.clear();
  std::vector<std::size_t> open;
  for (std::size_t at = text.find('<'); at != std::string::npos && at + 1 < text.size(); at = text.find('<', at))
  {
    std::string const end_mark = text.compare(at, 4, "<!--") == 0        ? "-->"
                                 : text.compare(at, 9, "<![CDATA[") == 0 ? "]]>"
                                 : text[at + 1] == '?'                   ? "?>"
                                                                         : ">";
    std::size_t end = text.find(end_mark, at);
    if (end == std::string::npos)
      return;
    end += end_mark.size();
    bool const is_tag = end_mark == ">" && text[at + 1] != '!';
    if (is_tag && text[at + 1] != '/')
    {
      look_at_tag(at, end);
      open.push_back(at);
    }
    bool const is_end = is_tag && (text[at + 1] == '/' || text[end - 2] == '/');
    if (is_end && !open.empty())
    {
      if (open.size() > 1)
        elements.push_back({open.back(), end});
      open.pop_back();
    }
    at = end;
  }
}

// Declarations of namespaces are left alone.
void SchemaMutator::look_at_tag(std::size_t begin, std::size_t end)
{
  std::size_t at = text.find_first_of(white, begin);
  while (at != std::string::npos && at < end)
  {
    std::size_t const name = text.find_first_not_of(white, at);
    std::size_t const equals = text.find('=', at);
    if (name == std::string::npos || equals == std::string::npos || equals > end)
      return;
    std::size_t const quote = text.find_first_of("'\"", equals);
    std::size_t const close = quote == std::string::npos ? quote : text.find(text[quote], quote + 1);
    if (close == std::string::npos || close >= end)
      return;
    std::string const word = text.substr(name, text.find_first_of(white + "=", name) - name);
    if (word.compare(0, 5, "xmlns") != 0)
      attributes.push_back({word, {at, close + 1}, {quote + 1, close}});
    at = close + 1;
    if (!is_one_of(text[at], white))
      return;
  }
}

// Mostly one that such attributes have somewhere.
std::string SchemaMutator::other_value(Attribute const& attribute)
{
  static std::vector<std::string> const usual = {"0", "1", "2", "unbounded", "true", "false", "lax", "skip", "strict",
    "##any", "##other", "##local", "##targetNamespace", "required", "optional", "prohibited", "qualified", "#all",
    "extension", "restriction", "", "a", "1.5"};
  std::vector<std::string> same;
  for (Attribute const& other : attributes)
    if (other.name == attribute.name)
      same.push_back(text.substr(other.value.begin, other.value.end - other.value.begin));
  return pick(4) != 0 ? same[pick(same.size())] : usual[pick(usual.size())];
}

bool SchemaMutator::change()
{
  unsigned const kind = pick(8);
  if (kind < 5 && !attributes.empty())
  {
    Attribute const attribute = attributes[pick(attributes.size())];
    std::string const before = text;
    if (kind == 0)
      text.erase(attribute.whole.begin, attribute.whole.end - attribute.whole.begin);
    else
      text.replace(attribute.value.begin, attribute.value.end - attribute.value.begin, other_value(attribute));
    return text != before;
  }
  if (elements.empty())
    return false;
  Span const element = elements[pick(elements.size())];
  std::string const whole = text.substr(element.begin, element.end - element.begin);
  if (kind == 5)
    text.erase(element.begin, whole.size());
  else if (kind == 6)
    text.insert(element.end, whole);
  else
  {
    // Before another one, but not within itself.
    Span const other = elements[pick(elements.size())];
    if (other.begin >= element.begin && other.begin < element.end)
      return false;
    text.insert(other.begin, whole);
    text.erase(other.begin < element.begin ? element.begin + whole.size() : element.begin, whole.size());
  }
  return true;
}
