#include "axsEntities.h"

#include "axsCharacters.h"
#include "axsGrowth.h"
#include "axsInputBuffer.h"
#include "axsReference.h"

#include <algorithm>
#include <utility>

namespace
{
// What could be or become markup is none, nor is what could end a CDATA section, or is a line end to some.
bool is_plain(std::string_view replacement)
{
  return replacement.find_first_of("<&]>\r") == std::string_view::npos;
}

bool is_tab_or_line_end(char c)
{
  return c == '\t' || c == '\n';
}
}

void axsEntities::declare(std::string_view name, std::string_view replacement)
{
  replacements.emplace(name, is_plain(replacement) ? replacement : std::string_view());
}

bool axsEntities::read(char const*& at, std::string& text, Place place)
{
  char const* const begin = at;
  if (axsReference::read(at, text))
    return true;
  // A reference to a character that is wrong has moved it.
  if (at != begin || replacements.empty() || !axsCharacters::skip_character(at, '&'))
    return false;
  char const* const name_begin = at;
  if (!axsCharacters::skip_name(at))
    return false;
  std::string const name(name_begin, at);
  if (!axsCharacters::skip_character(at, ';'))
    return false;
  auto const found = replacements.find(name);
  if (found == replacements.end() || found->second.empty())
    return false;

  std::string const& replacement = found->second;
  std::size_t const room = text.size() + replacement.size() + document.capacity();
  if (text.capacity() < room)
  {
    lacking_room = room;
    return false;
  }
  if (expansions_left == 0 || !grown.add(replacement.size()))
    return false;
  --expansions_left;
  text += replacement;
  if (place == Place::attribute)
    std::replace_if(
      text.end() - static_cast<std::string::difference_type>(replacement.size()), text.end(), is_tab_or_line_end, ' ');
  return true;
}

std::size_t axsEntities::take_lacking_room() noexcept
{
  return std::exchange(lacking_room, 0);
}
