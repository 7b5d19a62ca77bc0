#include "axmElementWalk.h"

#include "axmFind.h"
#include "axmPositionSteps.h"

#include <axmEndException.h>

#include <new>

namespace
{
utString text_between(char const* begin, char const* end)
{
  return utString(begin, static_cast<int>(end - begin));
}
}

axmElementWalk::axmElementWalk(char const* given, int given_size)
  : text(const_cast<char*>(given)),
    text_end(given + given_size),
    size(static_cast<Place>(given_size))
{
}

bool axmElementWalk::down_to_root(axmPositionX& document, utString const& name, axmPositionX& root)
{
  make_room(0);
  if (!document.find_sub_tag(name))
    return false;
  Place const place = place_of(document);
  if (index.count() == 0 || index.start(0) != place)
    index.restart(text, size, place);
  enter(index.count() == 0 ? axmElementIndex::none : 0, document, root);
  levels[0] = at_start_of(index.count() == 0 ? axmElementIndex::none : 0);
  return true;
}

bool axmElementWalk::down_to_child(axmPositionX& parent, int depth, utString const& name, axmPositionX& child)
{
  make_room(depth + 1);
  Level& level = levels[depth];
  axmTagName const wanted = axmTagName::of(name);
  if (!(level.by_itself ? find_child_step_by_step(parent, level, wanted) : find_child(parent, level, wanted)))
    return false;
  Id const id = level.by_itself ? index.find(place_of(parent)) : level.upcoming;
  enter(id, parent, child);
  levels[depth + 1] = at_start_of(id);
  return true;
}

void axmElementWalk::pass_child(axmPositionX& parent, int depth)
{
  Id const id = levels[depth + 1].element;
  if (id == axmElementIndex::none || !index.reach_end(id))
  {
    levels[depth].by_itself = true;
    return parent.skip_object();
  }
  parent.current_pos = text + index.end(id);
  levels[depth].upcoming = index.next(id);
  levels[depth].passed = id;
}

void axmElementWalk::pass_children(axmPositionX& root)
{
  // No tag has a NUL in its name.
  static char const no_name[] = "";
  Level& level = levels[0];
  axmTagName const none = {no_name, no_name + 1};
  if (level.by_itself)
    find_child_step_by_step(root, level, none);
  else
    find_child(root, level, none);
}

inline char const* axmElementWalk::skip_space(char const* at) const
{
  while (*at == ' ' || *at == '\t' || *at == '\n' || *at == '\r')
    ++at;
  if (*at == '\0')
    throw axmEndException();
  return at;
}

// The place where the attributes of a tag begin.
inline char const* axmElementWalk::first_attribute(char const* start) const
{
  char const* at = start;
  while (*at != ' ' && *at != '>')
    if (*at++ == '\0')
      throw axmEndException();
  return skip_space(at);
}

// The attribute at `at`, as axmPositionX::find_attribute() takes it.
inline void axmElementWalk::read_attribute(char const* at, Attribute& found) const
{
  char const* const name_end = axm_find(at, text_end, '=');
  if (*name_end == '\0' || name_end[1] == '\0' || name_end[2] == '\0')
    throw axmEndException();
  char const* const value = name_end + 2;
  char const* const value_end = axm_find(value, text_end, name_end[1]);
  if (*value_end == '\0' || value_end[1] == '\0')
    throw axmEndException();
  found.name = {at, name_end};
  found.value = value;
  found.value_end = value_end;
  found.behind = skip_space(value_end + 1);
}

utString axmElementWalk::attribute(axmPositionX const& element, utString const& name, utString const& default_value)
{
  if (tag.start != element.object_start)
  {
    tag.start = nullptr;
    tag.rest = first_attribute(element.object_start);
    tag.start = element.object_start;
    tag.count = 0;
  }

  axmTagName const wanted = axmTagName::of(name);
  for (Attribute const* known = tag.attributes; known != tag.attributes + tag.count; ++known)
    if (known->name == wanted)
      return text_between(known->value, known->value_end);

  char const* at = tag.rest;
  while (*at != '>')
  {
    if (*at == '/')
    {
      Search const& search = search_beyond(at, name);
      return search.value == nullptr ? default_value : text_between(search.value, search.value_end);
    }
    Attribute& found = tag.attributes[tag.count];
    read_attribute(at, found);
    at = found.behind;
    if (tag.count < Tag::most)
    {
      ++tag.count;
      tag.rest = at;
    }
    if (found.name == wanted)
      return text_between(found.value, found.value_end);
  }
  return default_value;
}

utString axmElementWalk::text_node(axmPositionX& element, int depth)
{
  Level& level = levels[depth];
  level.upcoming = axmElementIndex::none;

  // Most often a text is all there is up to the next tag.
  char* at = element.current_pos;
  while (*at == ' ' || *at == '\t' || *at == '\n' || *at == '\r')
    ++at;
  if (*at != '<' && *at != '\0')
  {
    char const* const next = axm_find(at, text_end, '<');
    if (next[0] == '<' && next[1] != '!' && next[1] != '\0' && next[2] != '\0')
    {
      char const* const begin = element.current_pos;
      element.current_pos = text + (next - text);
      return text_between(begin, next);
    }
  }
  return element.text_of([&](auto& sink) { return element.pass_text_node(sink, [&] { skip(element); }); });
}

// What a search for `name` from `at` on, a place behind an attribute, comes to.
axmElementWalk::Search const& axmElementWalk::search_beyond(char const* at, utString const& name)
{
  Search& known = search_of(name);
  Attribute found;
  if (known.at <= at && at <= known.end)
  {
    while (known.at < at)
    {
      read_attribute(known.at, found);
      known.at = found.behind;
    }
    if (known.at == at)
      return known;
  }

  axmTagName const wanted = axmTagName::of(name);
  Search search = {name, at, at, nullptr, nullptr};
  while (*search.end != '>')
  {
    read_attribute(search.end, found);
    if (found.name == wanted)
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
axmElementWalk::Search& axmElementWalk::search_of(utString const& name)
{
  std::size_t const most = 64;
  axmTagName const wanted = axmTagName::of(name);
  for (Search& search : searches)
    if (axmTagName::of(search.name) == wanted)
      return search;
  Search const nothing = {name, text_end, nullptr, nullptr, nullptr};
  if (searches.size() < most)
  {
    searches.push_back(nothing);
    return searches.back();
  }
  next_search = (next_search + 1) % most;
  return searches[next_search] = nothing;
}

// Behind the opening tag of an element. What is read from a self-closing element is not in it.
axmElementWalk::Level axmElementWalk::at_start_of(Id element) const
{
  if (element == axmElementIndex::none || index.is_self_closing(element))
    return {element, axmElementIndex::none, axmElementIndex::none, true};
  return {element, element + 1, element, false};
}

// Moves to the next child of that name by the index.
bool axmElementWalk::find_child(axmPositionX& parent, Level& level, axmTagName const& name)
{
  if (level.upcoming == axmElementIndex::none)
    find_upcoming(parent, level);
  Id const element = level.element;
  Id child = level.upcoming;
  Id passed = level.passed;
  for (;;)
  {
    if (!index.reach_child(element, child) || has_markup_in_section(level, passed))
      return find_child_step_by_step(parent, level, name);
    if (index.is_closed(element) && child >= index.next(element))
    {
      level = at_start_of(element);
      parent.current_pos = text + index.content(element);
      return false;
    }
    parent.current_pos = text + index.start(child);
    passed = axmElementIndex::none;
    if (is_named(child, name))
    {
      level.upcoming = child;
      level.passed = axmElementIndex::none;
      return true;
    }
    if (!index.reach_end(child))
      return find_child_step_by_step(parent, level, name);
    parent.current_pos = text + index.end(child);
    passed = child;
    child = index.next(child);
  }
}

// The same by the steps of the cursor. Where these find something, the element may have been left: a closing tag in a
// CDATA section is one to them.
bool axmElementWalk::find_child_step_by_step(axmPositionX& parent, Level& level, axmTagName const& name)
{
  level.by_itself = true;
  if (parent.find_sub_tag_by(name, [&] { skip(parent); }))
    return true;
  level = at_start_of(level.element);
  return false;
}

// Finds out where a cursor stands after it has read text: on a tag, or back behind the opening tag.
void axmElementWalk::find_upcoming(axmPositionX const& cursor, Level& level) const
{
  Place const place = place_of(cursor);
  if (place == index.content(level.element))
    level = at_start_of(level.element);
  else
  {
    level.upcoming = index.first_from(place);
    level.passed = axmElementIndex::none;
  }
}

bool axmElementWalk::has_markup_in_section(Level const& level, Id passed) const
{
  if (passed == axmElementIndex::none)
    return false;
  return passed == level.element ? index.has_markup_in_section_at_start(passed)
                                 : index.has_markup_in_section_behind(passed);
}

// As axmPositionX::is_tag_name() has it.
inline bool axmElementWalk::is_named(Id id, axmTagName const& name) const
{
  char const* at = text + index.start(id) + 1;
  for (char const* wanted = name.begin; wanted != name.end; ++wanted, ++at)
  {
    if (at[0] == '\0' || at[1] == '\0')
      return axmPositionX(text + index.start(id)).is_tag_named(name); // which throws
    if (*at != *wanted)
      return false;
  }
  return true;
}

// Moves a cursor past the element on which it stands.
void axmElementWalk::skip(axmPositionX& cursor)
{
  Id const id = index.count() == 0 ? axmElementIndex::none : index.find(place_of(cursor));
  if (id == axmElementIndex::none || !index.reach_end(id))
    return cursor.skip_object();
  cursor.current_pos = text + index.end(id);
}

// Makes `child` stand in the content of the element on which `parent` stands.
void axmElementWalk::enter(Id id, axmPositionX& parent, axmPositionX& child)
{
  child.object_start = parent.current_pos;
  child.current_pos = parent.current_pos;
  if (id == axmElementIndex::none)
    return child.object_setup();
  child.current_pos = text + (skip_space(text + index.content(id)) - text);
}

void axmElementWalk::make_room(int depth)
{
  if (depth >= levels.count() && !levels.set_count(depth + 1))
    throw std::bad_alloc();
}

axmElementWalk::Place axmElementWalk::place_of(axmPositionX const& cursor) const
{
  return static_cast<Place>(cursor.current_pos - text);
}
