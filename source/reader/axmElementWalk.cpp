#include "axmElementWalk.h"

#include "axmCursor.h"
#include "axmEndException.h"
#include "axmFind.h"
#include "axmText.h"

#include <apBits.h>

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace
{
// Those bits of a word that are its first `count` bytes, fewer than all.
std::uint64_t first_bytes(std::size_t count)
{
  return ~(~std::uint64_t(0) << (8 * count));
}

char*& place(axmPositionX& cursor)
{
  return axmCursor::place(cursor);
}
}

axmElementWalk::axmElementWalk(
  char const* given, int given_size, axmPositionX& before_root, axmPositionXcoPageArrPrgcoPrgcoPageArr& cursors)
  : text(const_cast<char*>(given)),
    text_end(given + given_size),
    size(static_cast<Place>(given_size)),
    document(before_root),
    stack(cursors),
    attributes(text_end)
{
}

std::vector<axmElementWalk::Entered> axmElementWalk::entered()
{
  std::vector<Entered> result;
  for (int level = 0; level < depth(); ++level)
  {
    axmPositionX& cursor = *stack[level].cursor;
    result.push_back({place_of(axmCursor::start(cursor)), place_of(place(cursor))});
  }
  return result;
}

// What the index knows begins with a root element that is found: here the cursor takes its own steps.
void axmElementWalk::enter_again(Entered const& element)
{
  Level& again = stack.upcoming();
  axmCursor::start(*again.cursor) = text + std::min(element.start, size);
  place(*again.cursor) = text + std::min(element.place, size);
  again.state = axmCursorState();
  tag = axmCursor::start(*again.cursor);
  stack.push();
}

bool axmElementWalk::down_to(utString const& name)
{
  Level& entered = stack.upcoming();
  if (!(depth() == 0 ? find_root(entered, name) : find_child(entered, name)))
    return false;
  stack.push();
  return true;
}

void axmElementWalk::up()
{
  if (depth() == 1)
    pass_children(stack.top());
  Id const left = stack.top().state.element;
  stack.pop();
  if (depth() > 0)
    pass_child(stack.top(), left);
}

utString axmElementWalk::text_node()
{
  Level& level = stack.top();
  axmPositionX& cursor = *level.cursor;
  level.state.upcoming = axmElementIndex::none;

  // Most often a text is all there is up to the next tag.
  char const* at = place(cursor);
  if (static_cast<unsigned char>(*at) <= ' ')
    at = axm_find_no_space(at, text_end);
  if (*at != '<' && *at != '\0')
  {
    char const* const next = axm_find(at, text_end, '<');
    if (next[0] == '<' && next[1] != '!' && next[1] != '\0' && next[2] != '\0')
    {
      char const* const begin = place(cursor);
      place(cursor) = text + (next - text);
      return axm_text(begin, next, text_end);
    }
  }
  return axmCursor::move(
    cursor, [this](axmCursor& moved) { return moved.find_text_node([this](axmPositionX& child) { skip(child); }); });
}

inline axmElementWalk::Wanted::Wanted(utString const& given)
  : name(given),
    text(given.view()),
    word(apBits::load(text.data()))
{
  std::size_t const length = text.size();
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
    is_plain = std::memchr(text.data(), '>', length) == nullptr;
  }
}

// Whether no child has such a name; only for some of those names that no child has.
inline bool axmElementWalk::is_filtered_out(axmCursorState const& state, Wanted const& wanted)
{
  return state.has_name_filter && wanted.is_plain && wanted.text.size() >= 2 &&
         (state.name_filter & filter_bit(wanted.text.data())) == 0;
}

// One bit of 64 for the first two characters of a name.
inline std::uint64_t axmElementWalk::filter_bit(char const* name)
{
  unsigned const number = static_cast<unsigned char>(name[0]) * 5u + static_cast<unsigned char>(name[1]);
  return std::uint64_t(1) << (number % 64);
}

// At the end of the opening tag of an element. What is read from a self-closing element is not in it.
inline axmCursorState axmElementWalk::at_start_of(Id id) const
{
  if (id == axmElementIndex::none)
    return {};
  axmElementIndex::Element const& element = index[id];
  if (element.is_closed() && element.is_self_closing())
    return {id, axmElementIndex::none, axmElementIndex::none, true, false, 0};
  return {id, id + 1, id, false, false, 0};
}

// The same for a cursor that has gone back there. The names of the children are as they were.
inline void axmElementWalk::go_to_start(axmCursorState& state) const
{
  axmCursorState const start = at_start_of(state.element);
  state.upcoming = start.upcoming;
  state.passed = start.passed;
  state.must_scan = start.must_scan;
}

// Moves the cursor of the document to the next root element of that name, and `entered` into it.
bool axmElementWalk::find_root(Level& entered, utString const& name)
{
  if (!axmCursor::move(document,
        [&](axmCursor& moved) { return moved.find_child(name, [](axmPositionX& child) { child.skip_object(); }); }))
    return false;
  Place const root = place_of(place(document));
  if (index.count() == 0 || index[0].start() != root)
    index.restart(text, size, root);
  enter(index.count() == 0 ? axmElementIndex::none : 0, document, 0, entered);
  return true;
}

// Moves the innermost cursor to the next child of that name, and `entered` into it.
bool axmElementWalk::find_child(Level& entered, utString const& name)
{
  Level& level = stack.top();
  Wanted const wanted(name);
  if (!(level.state.must_scan ? find_child_by_steps(level, name) : find_child_by_index(level, wanted)))
    return false;
  Id const id = level.state.must_scan ? index.find(place_of(place(*level.cursor))) : level.state.upcoming;
  enter(id, *level.cursor, wanted.is_plain ? static_cast<Place>(wanted.text.size()) : 0, entered);
  return true;
}

[[gnu::always_inline]] inline bool axmElementWalk::find_child_by_index(Level& level, Wanted const& wanted)
{
  axmCursorState& state = level.state;
  if (is_filtered_out(state, wanted))
    return return_to_start(level);

  char*& cursor = place(*level.cursor);
  if (state.upcoming == axmElementIndex::none)
    find_upcoming(level);
  Id const id = state.element;
  Id child = state.upcoming;
  Id passed = state.passed;
  bool const sees_all = passed == id;
  std::uint64_t name_filter = 0;
  for (;;)
  {
    if (!index.reach_child(id, child) || (index.has_markup_in_sections() && has_markup_in_section(state, passed)))
      break;
    if (index[id].is_closed() && child >= index[id].next())
    {
      if (sees_all)
      {
        state.has_name_filter = true;
        state.name_filter = name_filter;
      }
      return return_to_start(level);
    }
    Place const start = index[child].start();
    cursor = text + start;
    if (is_named(start, wanted))
    {
      state.upcoming = child;
      state.passed = axmElementIndex::none;
      return true;
    }
    name_filter |= filter_bit(cursor + 1);
    if (!index.reach_end(child))
      break;
    passed = child;
    child = index[child].next();
    cursor = text + index[passed].end();
  }
  return find_child_by_steps(level, wanted.name);
}

// The same by the steps of the cursor. Where these find something, the element may have been left: a closing tag in a
// CDATA section is one to them.
bool axmElementWalk::find_child_by_steps(Level& level, utString const& name)
{
  level.state.must_scan = true;
  level.state.has_name_filter = false;
  if (axmCursor::move(*level.cursor,
        [&](axmCursor& moved) { return moved.find_child(name, [this](axmPositionX& child) { skip(child); }); }))
    return true;
  go_to_start(level.state);
  return false;
}

// Back to the end of the opening tag of an element that the index knows. There is no such child: false.
bool axmElementWalk::return_to_start(Level& level)
{
  place(*level.cursor) = text + place_of(content_of(level.state.element, 0));
  go_to_start(level.state);
  return false;
}

// Moves a cursor, which stands on the child, to its end.
void axmElementWalk::pass_child(Level& level, Id child)
{
  axmPositionX& cursor = *level.cursor;
  if (child == axmElementIndex::none || !index.reach_end(child))
  {
    level.state.must_scan = true;
    level.state.has_name_filter = false;
    cursor.skip_object();
  }
  else
  {
    place(cursor) = text + index[child].end();
    level.state.upcoming = index[child].next();
    level.state.passed = child;
  }
  tag = axmCursor::start(cursor);
}

// Moves a cursor past all children that are left, and back to the end of the opening tag.
void axmElementWalk::pass_children(Level& level)
{
  if (!level.state.must_scan && index.reach_end(level.state.element) && !index.has_markup_in_sections())
  {
    return_to_start(level);
    return;
  }
  // No tag has a NUL in its name.
  find_child_by_steps(level, utString("", 1));
}

// Finds out where a cursor stands after it has read text: on a tag, or back at the end of the opening tag.
void axmElementWalk::find_upcoming(Level& level) const
{
  Place const at = place_of(place(*level.cursor));
  if (at == place_of(content_of(level.state.element, 0)))
    go_to_start(level.state);
  else
  {
    level.state.upcoming = index.first_from(at);
    level.state.passed = axmElementIndex::none;
  }
}

bool axmElementWalk::has_markup_in_section(axmCursorState const& state, Id passed) const
{
  if (passed == axmElementIndex::none)
    return false;
  return passed == state.element ? index.has_markup_in_section_at_start(passed)
                                 : index.has_markup_in_section_after(passed);
}

// As axmPositionX::is_tag_name() has it, for a tag that the index knows: after its `>` is at least one character, so a
// comparison that does not go beyond the `>` does not come to the end of the document.
inline bool axmElementWalk::is_named(Place start, Wanted const& wanted) const
{
  char const* const name = text + start + 1;
  if (!wanted.is_plain || text_end - name < static_cast<std::ptrdiff_t>(sizeof wanted.word))
    return axmCursor(axmPositionX(text + start)).is_tag_name(wanted.name);
  if ((apBits::load(name) & wanted.mask) != wanted.word)
    return false;
  for (std::size_t i = sizeof wanted.word; i < wanted.text.size(); ++i)
    if (name[i] != wanted.text[i])
      return false;
  return true;
}

// Moves a cursor past the element on which it stands.
void axmElementWalk::skip(axmPositionX& cursor)
{
  Id const id = index.count() == 0 ? axmElementIndex::none : index.find(place_of(place(cursor)));
  if (id == axmElementIndex::none || !index.reach_end(id))
    return cursor.skip_object();
  place(cursor) = text + index[id].end();
}

// The end of the opening tag of an element that the index knows; `name_length` characters after its `<` are part of its
// name.
inline char const* axmElementWalk::content_of(Id id, Place name_length) const
{
  axmElementIndex::Element const& element = index[id];
  if (element.is_closed() && element.is_self_closing())
    return text + element.end();
  char const* const name_end = text + element.start() + 1 + name_length;
  return (*name_end == '>' ? name_end : axm_find(name_end, text_end, '>')) + 1;
}

// Makes `entered` stand in the content of the element on which `parent` stands.
inline void axmElementWalk::enter(Id id, axmPositionX& parent, Place name_length, Level& entered)
{
  axmPositionX& child = *entered.cursor;
  axmCursor::start(child) = place(parent);
  place(child) = place(parent);
  if (id == axmElementIndex::none)
    child.object_setup();
  else
  {
    char const* content = content_of(id, name_length);
    if (static_cast<unsigned char>(*content) <= ' ')
      content = axm_find_no_space(content, text_end);
    if (*content == '\0')
      throw axmEndException();
    place(child) = text + place_of(content);
  }
  tag = axmCursor::start(child);
  entered.state = at_start_of(id);
}
