#include "axmAttributes.h"

#include "axmFind.h"
#include "axmText.h"

#include <axmEndException.h>

namespace
{
std::ptrdiff_t const block_size = apByteBlock::size;
}

utString axmAttributes::value(char const* tag, utString const& name, utString const& default_value)
{
  if (tag != tag_start)
    enter(tag);

  axmTagName const wanted = axmTagName::of(name);
  std::uint64_t const trace = trace_of(wanted);
  if ((traces & trace) == 0)
  {
    // Most often it is the very next one, and short.
    char const* const at = rest;
    int const length = wanted.length();
    if (count < most && length < block_size - 2 && text_end - at >= 3 * block_size)
    {
      apByteBlock const text(at);
      unsigned const behind_name = 1u << length;
      char const* const value = at + length + 2;
      apByteBlock const value_text(value);
      if ((text.is('=').bits() & (2 * behind_name - 1)) == behind_name &&
          (~text.is(apByteBlock(wanted.begin)).bits() & (behind_name - 1)) == 0 && !text.is('\0').any())
        if (auto const ends = value_text.is(value[-1]) | value_text.is('\0'); ends.any())
        {
          char const* const end = value + ends.first();
          if (end[0] != '\0' && end[1] != '\0')
          {
            char const* const behind = skip_space(end + 1);
            begins[count++] = at;
            traces |= trace;
            rest = behind;
            return axm_text(value, end, text_end);
          }
        }
    }
  }
  return any_value(name, trace, default_value);
}

// The same, wherever and however long the attribute is.
utString axmAttributes::any_value(utString const& name, std::uint64_t trace, utString const& default_value)
{
  axmTagName const wanted = axmTagName::of(name);
  if ((traces & trace) != 0)
    if (char const* const begin = known_value(wanted))
      return axm_text(begin, value_end(begin), text_end);

  for (char const* at = rest; *at != '>';)
  {
    if (*at == '/')
    {
      Search const& search = search_beyond(at, name);
      return search.value == nullptr ? default_value : axm_text(search.value, search.value_end, text_end);
    }
    Attribute found;
    bool const is_wanted = read(at, wanted, found);
    if (count < most)
    {
      begins[count++] = at;
      traces |= is_wanted ? trace : trace_of({at, found.value - 2});
      rest = found.behind;
    }
    if (is_wanted)
      return axm_text(found.value, found.value_end, text_end);
    at = found.behind;
  }
  return default_value;
}

// Goes to the place where the attributes of a tag begin.
void axmAttributes::enter(char const* tag)
{
  tag_start = nullptr;
  char const* at = tag;
  for (; axm_has_block(at, text_end); at += block_size)
  {
    apByteBlock const text(at);
    if (text.is('\0').any())
      break;
    auto const found = text.is(' ') | text.is('>');
    if (found.any())
    {
      at += found.first();
      break;
    }
  }
  while (*at != ' ' && *at != '>')
    if (*at++ == '\0')
      throw axmEndException();
  rest = skip_space(at);
  count = 0;
  traces = 0;
  tag_start = tag;
}

// Where the value of that attribute begins, null if it is not among those in front.
char const* axmAttributes::known_value(axmTagName wanted) const
{
  for (int i = 0; i < count; ++i)
    if (is_named(begins[i], wanted))
      return begins[i] + wanted.length() + 2;
  return nullptr;
}

[[gnu::always_inline]] inline char const* axmAttributes::skip_space(char const* at) const
{
  // Most often it is one blank or none.
  if (*at == ' ')
    ++at;
  if (static_cast<unsigned char>(*at) > ' ')
    return at;
  at = axm_find_no_space(at, text_end);
  if (*at == '\0')
    throw axmEndException();
  return at;
}

// Where the value ends that begins at `value`.
inline char const* axmAttributes::value_end(char const* value) const
{
  char const* const end = axm_find(value, text_end, value[-1]);
  if (end[0] == '\0' || end[1] == '\0')
    throw axmEndException();
  return end;
}

// Whether an attribute that has been read has that name.
bool axmAttributes::is_named(char const* at, axmTagName wanted) const
{
  return axmTagName{at, axm_find(at, text_end, '=')} == wanted;
}

// Finds the end of the name at `at`, behind which stand a quote and one character more, and tells whether it is the name
// wanted.
inline bool axmAttributes::read_name(char const* at, axmTagName wanted, char const*& name_end) const
{
  if (axm_has_block(at, text_end))
  {
    apByteBlock const text(at);
    // So that two characters more are in the block.
    unsigned const equals = text.is('=').bits() & ((1u << (block_size - 2)) - 1);
    if (equals != 0 && !text.is('\0').any())
    {
      int const length = apBits::lowest(equals);
      name_end = at + length;
      unsigned const in_name = (equals - 1) & ~equals;
      return length == wanted.length() && (~text.is(apByteBlock(wanted.begin)).bits() & in_name) == 0;
    }
  }
  return read_long_name(at, wanted, name_end);
}

// The same for a name of any length.
bool axmAttributes::read_long_name(char const* at, axmTagName wanted, char const*& name_end) const
{
  name_end = axm_find(at, text_end, '=');
  if (name_end[0] == '\0' || name_end[1] == '\0' || name_end[2] == '\0')
    throw axmEndException();
  return axmTagName{at, name_end} == wanted;
}

// Reads the attribute at `at` and tells whether it is the one wanted.
bool axmAttributes::read(char const* at, axmTagName wanted, Attribute& found) const
{
  char const* name_end;
  bool const is_wanted = read_name(at, wanted, name_end);
  found.value = name_end + 2;
  found.value_end = value_end(found.value);
  found.behind = skip_space(found.value_end + 1);
  return is_wanted;
}

// What a search for `name` from `at` on, a place behind an attribute, comes to.
axmAttributes::Search const& axmAttributes::search_beyond(char const* at, utString const& name)
{
  axmTagName const wanted = axmTagName::of(name);
  Search& known = search_of(name);
  Attribute found;
  if (known.at <= at && at <= known.end)
  {
    while (known.at < at)
    {
      read(known.at, wanted, found);
      known.at = found.behind;
    }
    if (known.at == at)
      return known;
  }

  Search search = {name, at, at, nullptr, nullptr};
  while (*search.end != '>')
  {
    if (read(search.end, wanted, found))
    {
      search.value = found.value;
      search.value_end = found.value_end;
      break;
    }
    search.end = found.behind;
  }
  return search_of(name) = search;
}

// What is kept for `name`. Whoever looks for very many names that are not there gets the place of another one.
axmAttributes::Search& axmAttributes::search_of(utString const& name)
{
  std::size_t const most_searches = 64;
  axmTagName const wanted = axmTagName::of(name);
  for (Search& search : searches)
    if (axmTagName::of(search.name) == wanted)
      return search;
  Search const nothing = {name, text_end, nullptr, nullptr, nullptr};
  if (searches.size() < most_searches)
  {
    searches.push_back(nothing);
    return searches.back();
  }
  next_search = (next_search + 1) % most_searches;
  return searches[next_search] = nothing;
}

// One bit of 64 for a name.
inline std::uint64_t axmAttributes::trace_of(axmTagName name)
{
  auto const first = name.begin == name.end ? 0u : static_cast<unsigned char>(*name.begin);
  return std::uint64_t(1) << ((first + 13 * static_cast<unsigned>(name.end - name.begin)) & 63);
}
