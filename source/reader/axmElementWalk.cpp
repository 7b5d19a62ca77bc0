#include "axmElementWalk.h"

#include "axmFind.h"
#include "axmPositionSteps.h"
#include "axmText.h"

#include <axmEndException.h>

#include <algorithm>
#include <cstring>
#include <new>

namespace
{
// Those bits of a word that are its first `count` bytes, fewer than all.
std::uint64_t first_bytes(std::size_t count)
{
  return ~(~std::uint64_t(0) << (8 * count));
}
}

axmElementWalk::axmElementWalk(char const* given, int given_size)
  : text(const_cast<char*>(given)),
    text_end(given + given_size),
    size(static_cast<Place>(given_size)),
    attributes(text_end)
{
}

void axmElementWalk::add_cursor(axmPositionX& cursor)
{
  Standing const nowhere = {axmElementIndex::none, axmElementIndex::none, axmElementIndex::none, true};
  if (!levels.append({&cursor, nowhere, false, 0}))
    throw std::bad_alloc();
}

bool axmElementWalk::down_to_root(axmPositionX& document, utString const& name)
{
  if (!document.find_sub_tag(name))
    return false;
  Place const place = place_of(document.current_pos);
  if (index.count() == 0 || index[0].start() != place)
    index.restart(text, size, place);
  Id const id = index.count() == 0 ? axmElementIndex::none : 0;
  enter(id, document, 0, *levels[0].cursor);
  levels[0].standing = at_start_of(id);
  levels[0].has_traces = false;
  return true;
}

bool axmElementWalk::down_to_child(int depth, utString const& name)
{
  Level& level = levels[depth];
  Wanted const wanted(name);
  if (!(level.standing.by_itself ? find_child_step_by_step(level, wanted.name) : find_child(level, wanted)))
    return false;
  Id const id = level.standing.by_itself ? index.find(place_of(level.cursor->current_pos)) : level.standing.upcoming;
  enter(id, *level.cursor, wanted.is_plain ? static_cast<Place>(wanted.name.length()) : 0, *levels[depth + 1].cursor);
  levels[depth + 1].standing = at_start_of(id);
  levels[depth + 1].has_traces = false;
  return true;
}

void axmElementWalk::pass_child(int depth)
{
  Level& level = levels[depth];
  axmPositionX& cursor = *level.cursor;
  Id const id = levels[depth + 1].standing.element;
  if (id == axmElementIndex::none || !index.reach_end(id))
  {
    level.standing.by_itself = true;
    level.has_traces = false;
    cursor.skip_object();
  }
  else
  {
    axmElementIndex::Element const& child = index[id];
    cursor.current_pos = text + child.end();
    level.standing.upcoming = child.next();
    level.standing.passed = id;
  }
  tag = cursor.object_start;
}

void axmElementWalk::pass_children()
{
  Level& level = levels[0];
  if (!level.standing.by_itself && index.reach_end(level.standing.element) && !index.has_markup_in_sections())
  {
    return_to_start(level);
    return;
  }
  // No tag has a NUL in its name.
  char const no_name[] = "";
  find_child_step_by_step(level, {no_name, no_name + 1});
}

utString axmElementWalk::text_node(int depth)
{
  Level& level = levels[depth];
  axmPositionX& element = *level.cursor;
  level.standing.upcoming = axmElementIndex::none;

  // Most often a text is all there is up to the next tag.
  char const* at = element.current_pos;
  if (static_cast<unsigned char>(*at) <= ' ')
    at = axm_find_no_space(at, text_end);
  if (*at != '<' && *at != '\0')
  {
    char const* const next = axm_find(at, text_end, '<');
    if (next[0] == '<' && next[1] != '!' && next[1] != '\0' && next[2] != '\0')
    {
      char const* const begin = element.current_pos;
      element.current_pos = text + (next - text);
      return axm_text(begin, next, text_end);
    }
  }
  return element.text_of([&](auto& sink) { return element.pass_text_node(sink, [&] { skip(element); }); });
}

inline axmElementWalk::Wanted::Wanted(utString const& given) : name(axmTagName::of(given))
{
  std::size_t const length = static_cast<std::size_t>(given.length());
  word = apBits::load(name.begin);
  if (length <= sizeof word)
  {
    mask = length < sizeof word ? first_bytes(length) : ~std::uint64_t(0);
    word &= mask;
    // No byte is a `>` when none is 0 where `>` has been taken away.
    std::uint64_t const low_bits = 0x0101010101010101u;
    std::uint64_t const without = word ^ (low_bits * '>');
    is_plain = ((without - low_bits) & ~without & (low_bits << 7)) == 0;
  }
  else
  {
    mask = ~std::uint64_t(0);
    is_plain = std::memchr(name.begin, '>', length) == nullptr;
  }
}

// Whether no child has such a name; only for some of those names that no child has.
inline bool axmElementWalk::is_without_trace(Level const& level, Wanted const& wanted)
{
  return level.has_traces && wanted.is_plain && wanted.name.length() >= 2 &&
         (level.traces & trace_of(wanted.name.begin)) == 0;
}

inline std::uint64_t axmElementWalk::trace_of(char const* name)
{
  unsigned const number = static_cast<unsigned char>(name[0]) * 5u + static_cast<unsigned char>(name[1]);
  return std::uint64_t(1) << (number % 64);
}

// Behind the opening tag of an element. What is read from a self-closing element is not in it.
inline axmElementWalk::Standing axmElementWalk::at_start_of(Id id) const
{
  if (id == axmElementIndex::none)
    return {id, axmElementIndex::none, axmElementIndex::none, true};
  axmElementIndex::Element const& element = index[id];
  if (element.is_closed() && element.is_self_closing())
    return {id, axmElementIndex::none, axmElementIndex::none, true};
  return {id, id + 1, id, false};
}

// Moves to the next child of that name by the index.
[[gnu::always_inline]] inline bool axmElementWalk::find_child(Level& level, Wanted const& wanted)
{
  if (is_without_trace(level, wanted))
    return return_to_start(level);

  Standing& standing = level.standing;
  axmPositionX& cursor = *level.cursor;
  if (standing.upcoming == axmElementIndex::none)
    find_upcoming(level);
  Id const id = standing.element;
  Id child = standing.upcoming;
  Id passed = standing.passed;
  bool const sees_all = passed == id;
  std::uint64_t traces = 0;
  for (;;)
  {
    if (!index.reach_child(id, child) || (index.has_markup_in_sections() && has_markup_in_section(standing, passed)))
      break;
    if (index[id].is_closed() && child >= index[id].next())
    {
      if (sees_all)
      {
        level.has_traces = true;
        level.traces = traces;
      }
      return return_to_start(level);
    }
    Place const start = index[child].start();
    cursor.current_pos = text + start;
    if (is_named(start, wanted))
    {
      standing.upcoming = child;
      standing.passed = axmElementIndex::none;
      return true;
    }
    traces |= trace_of(cursor.current_pos + 1);
    if (!index.reach_end(child))
      break;
    passed = child;
    child = index[child].next();
    if (!index.has_markup_in_sections())
      pass_others(id, wanted, passed, child, traces);
    cursor.current_pos = text + index[passed].end();
  }
  return find_child_step_by_step(level, wanted.name);
}

// Passes the children of an element, from one behind a closed one on, as long as they are closed and have other names.
void axmElementWalk::pass_others(Id id, Wanted const& wanted, Id& passed, Id& child, std::uint64_t& traces) const
{
  Id const behind = index[id].is_closed() ? index[id].next() : index.count();
  if (child >= behind)
    return;
  axmElementIndex::Element const* element = &index[child];
  while (element->is_closed() && !is_named(element->start(), wanted))
  {
    traces |= trace_of(text + element->start() + 1);
    passed = child;
    child = element->next();
    if (child >= behind)
      break;
    element = index.moved(element, passed, child);
  }
}

// Back behind the opening tag of an element that the index knows; there is no such child.
bool axmElementWalk::return_to_start(Level& level)
{
  level.cursor->current_pos = text + place_of(content_of(level.standing.element, 0));
  level.standing = at_start_of(level.standing.element);
  return false;
}

// The same by the steps of the cursor. Where these find something, the element may have been left: a closing tag in a
// CDATA section is one to them.
bool axmElementWalk::find_child_step_by_step(Level& level, axmTagName const& name)
{
  axmPositionX& cursor = *level.cursor;
  level.standing.by_itself = true;
  level.has_traces = false;
  if (cursor.find_sub_tag_by(name, [&] { skip(cursor); }))
    return true;
  level.standing = at_start_of(level.standing.element);
  return false;
}

// Finds out where a cursor stands after it has read text: on a tag, or back behind the opening tag.
void axmElementWalk::find_upcoming(Level& level) const
{
  Place const place = place_of(level.cursor->current_pos);
  if (place == place_of(content_of(level.standing.element, 0)))
    level.standing = at_start_of(level.standing.element);
  else
  {
    level.standing.upcoming = index.first_from(place);
    level.standing.passed = axmElementIndex::none;
  }
}

bool axmElementWalk::has_markup_in_section(Standing const& standing, Id passed) const
{
  if (passed == axmElementIndex::none)
    return false;
  return passed == standing.element ? index.has_markup_in_section_at_start(passed)
                                    : index.has_markup_in_section_behind(passed);
}

// As axmPositionX::is_tag_name() has it, for a tag that the index knows: behind its `>` is at least one character, so a
// comparison that does not go on behind the `>` does not come to the end of the document.
inline bool axmElementWalk::is_named(Place start, Wanted const& wanted) const
{
  char const* const name = text + start + 1;
  if (!wanted.is_plain || text_end - name < static_cast<std::ptrdiff_t>(sizeof wanted.word))
    return axmPositionX(text + start).is_tag_named(wanted.name);
  std::uint64_t const word = apBits::load(name);
  if ((word & wanted.mask) != wanted.word)
    return false;
  char const* at = name + sizeof word;
  for (char const* rest = wanted.name.begin + sizeof word; rest < wanted.name.end; ++rest, ++at)
    if (*at != *rest)
      return false;
  return true;
}

// Moves a cursor past the element on which it stands.
void axmElementWalk::skip(axmPositionX& cursor)
{
  Id const id = index.count() == 0 ? axmElementIndex::none : index.find(place_of(cursor.current_pos));
  if (id == axmElementIndex::none || !index.reach_end(id))
    return cursor.skip_object();
  cursor.current_pos = text + index[id].end();
}

// Behind the opening tag of an element that the index knows; `name_length` characters behind its `<` are part of its name.
inline char const* axmElementWalk::content_of(Id id, Place name_length) const
{
  axmElementIndex::Element const& element = index[id];
  if (element.is_closed() && element.is_self_closing())
    return text + element.end();
  char const* const name_end = text + element.start() + 1 + name_length;
  return (*name_end == '>' ? name_end : axm_find(name_end, text_end, '>')) + 1;
}

// Makes `child` stand in the content of the element on which `parent` stands.
inline void axmElementWalk::enter(Id id, axmPositionX const& parent, Place name_length, axmPositionX& child)
{
  child.object_start = parent.current_pos;
  child.current_pos = parent.current_pos;
  if (id == axmElementIndex::none)
    child.object_setup();
  else
  {
    char const* content = content_of(id, name_length);
    if (static_cast<unsigned char>(*content) <= ' ')
      content = axm_find_no_space(content, text_end);
    if (*content == '\0')
      throw axmEndException();
    child.current_pos = text + place_of(content);
  }
  tag = child.object_start;
}

axmElementWalk::Place axmElementWalk::place_of(char const* at) const
{
  return static_cast<Place>(at - text);
}
