#include "axmAttributes.h"

#include "axmEndException.h"
#include "axmFind.h"
#include "axmText.h"

namespace
{
std::ptrdiff_t const block_size = apByteBlock::size;

// One bit of 64 for a name.
std::uint64_t filter_bit(std::string_view name)
{
  auto const first = name.empty() ? 0u : static_cast<unsigned char>(name.front());
  return std::uint64_t(1) << ((first + 13 * static_cast<unsigned>(name.size())) & 63);
}

std::string_view between(char const* begin, char const* end)
{
  return {begin, static_cast<std::size_t>(end - begin)};
}
}

utString axmAttributes::value(char const* tag, utString const& name, utString const& default_value)
{
  if (tag != tag_start)
    enter(tag);

  // Most often it is the very next one, and short.
  std::uint64_t const bit = filter_bit(name.view());
  Attribute found;
  if ((name_filter & bit) == 0 && count < max_known && read_next_short(name, found))
  {
    keep(rest, bit, found.next);
    return axm_text(found.value, found.value_end, text_end);
  }
  return search(name, default_value);
}

// Reads the attribute where reading goes on, if it has that name, and name and value are so short that a block each shows
// all of them.
[[gnu::always_inline]] inline bool axmAttributes::read_next_short(utString const& name, Attribute& found) const
{
  int const length = name.length();
  if (length >= block_size - 2 || text_end - rest < 3 * block_size)
    return false;
  apByteBlock const text(rest);
  unsigned const name_end = 1u << length;
  if ((text.is('=').bits() & (2 * name_end - 1)) != name_end ||
      (~text.is(apByteBlock(name.c_str())).bits() & (name_end - 1)) != 0 || text.is('\0').any())
    return false;

  found.value = rest + length + 2;
  apByteBlock const value(found.value);
  auto const ends = value.is(found.value[-1]) | value.is('\0');
  if (!ends.any())
    return false;
  found.value_end = found.value + ends.first();
  if (found.value_end[0] == '\0' || found.value_end[1] == '\0')
    return false;
  found.next = skip_space(found.value_end + 1);
  return true;
}

// Finds the attribute wherever and however long it is.
utString axmAttributes::search(utString const& name, utString const& default_value)
{
  std::uint64_t const bit = filter_bit(name.view());
  if ((name_filter & bit) != 0)
    if (char const* const begin = known_value(name.view()))
      return axm_text(begin, value_end(begin), text_end);

  for (char const* at = rest; *at != '>';)
  {
    if (*at == '/')
    {
      Search const& beyond = search_beyond(at, name);
      return beyond.value == nullptr ? default_value : axm_text(beyond.value, beyond.value_end, text_end);
    }
    Attribute found;
    bool const is_wanted = read(at, name, found);
    if (count < max_known)
      keep(at, is_wanted ? bit : filter_bit(between(at, found.value - 2)), found.next);
    if (is_wanted)
      return axm_text(found.value, found.value_end, text_end);
    at = found.next;
  }
  return default_value;
}

// Keeps the attribute that begins at `at`, and goes on at `next`.
inline void axmAttributes::keep(char const* at, std::uint64_t bit, char const* next)
{
  begins[count++] = at;
  name_filter |= bit;
  rest = next;
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
  name_filter = 0;
  tag_start = tag;
}

// Where the value of that attribute begins, null if it is not among those in front.
char const* axmAttributes::known_value(std::string_view name) const
{
  for (int i = 0; i < count; ++i)
    if (between(begins[i], axm_find(begins[i], text_end, '=')) == name)
      return begins[i] + name.size() + 2;
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

// Finds the end of the name at `at`, after which stand a quote and one character more, and tells whether it is `name`.
inline bool axmAttributes::read_name(char const* at, utString const& name, char const*& name_end) const
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
      return length == name.length() && (~text.is(apByteBlock(name.c_str())).bits() & in_name) == 0;
    }
  }
  return read_long_name(at, name.view(), name_end);
}

// The same for a name of any length.
bool axmAttributes::read_long_name(char const* at, std::string_view name, char const*& name_end) const
{
  name_end = axm_find(at, text_end, '=');
  if (name_end[0] == '\0' || name_end[1] == '\0' || name_end[2] == '\0')
    throw axmEndException();
  return between(at, name_end) == name;
}

// Reads the attribute at `at` and tells whether it is the one wanted.
bool axmAttributes::read(char const* at, utString const& name, Attribute& found) const
{
  char const* name_end;
  bool const is_wanted = read_name(at, name, name_end);
  found.value = name_end + 2;
  found.value_end = value_end(found.value);
  found.next = skip_space(found.value_end + 1);
  return is_wanted;
}

// What a search for `name` from `at` on, where an attribute ends, comes to.
axmAttributes::Search const& axmAttributes::search_beyond(char const* at, utString const& name)
{
  Search& known = search_of(name);
  Attribute found;
  if (known.at <= at && at <= known.end)
  {
    while (known.at < at)
    {
      read(known.at, name, found);
      known.at = found.next;
    }
    if (known.at == at)
      return known;
  }

  Search search = {name, at, at, nullptr, nullptr};
  while (*search.end != '>')
  {
    if (read(search.end, name, found))
    {
      search.value = found.value;
      search.value_end = found.value_end;
      break;
    }
    search.end = found.next;
  }
  return search_of(name) = search;
}

// What is kept for `name`. Whoever looks for very many names that are not there gets the place of another one.
axmAttributes::Search& axmAttributes::search_of(utString const& name)
{
  std::size_t const max_searches = 64;
  for (Search& search : searches)
    if (search.name.view() == name.view())
      return search;
  Search const nothing = {name, text_end, nullptr, nullptr, nullptr};
  if (searches.size() < max_searches)
  {
    searches.push_back(nothing);
    return searches.back();
  }
  next_search = (next_search + 1) % max_searches;
  return searches[next_search] = nothing;
}
