#include "axmElementIndex.h"

#include <cstring>
#include <new>
#include <utility>

namespace
{
int lowest_bit(std::uint64_t mask)
{
#if defined(__GNUC__)
  return __builtin_ctzll(mask);
#else
  int bit = 0;
  for (; (mask & 1) == 0; mask >>= 1)
    ++bit;
  return bit;
#endif
}

// Most names are short, which a call is not worth.
bool are_equal(char const* one, char const* other, std::uint32_t length)
{
  for (; length >= 8; length -= 8, one += 8, other += 8)
  {
    std::uint64_t left;
    std::uint64_t right;
    std::memcpy(&left, one, 8);
    std::memcpy(&right, other, 8);
    if (left != right)
      return false;
  }
  for (std::uint32_t i = 0; i < length; ++i)
    if (one[i] != other[i])
      return false;
  return true;
}

std::uint32_t name_end(char const* text, std::uint32_t at)
{
  while (text[at] != ' ' && text[at] != '>')
    ++at;
  return at;
}
}

void axmElementIndex::restart(char const* given, Place given_size, Place root)
{
  text = given;
  size = given_size;
  halted = false;
  used = 0;
  open = none;
  last_closed = none;
  block = axmMarks::blocks; // no marks of this text are known yet
  seek(root);
  // The root is the first mark, and an opening tag.
  pass_opening_tag(next_mark());
}

axmElementIndex::Id axmElementIndex::find(Place place)
{
  while (!halted && frontier <= place)
    pass_tag();
  Id const id = first_from(place);
  return id < used && start(id) == place ? id : none;
}

axmElementIndex::Id axmElementIndex::first_from(Place place) const
{
  Id low = 0;
  Id high = used;
  while (low < high)
  {
    Id const middle = low + (high - low) / 2;
    if (start(middle) < place)
      low = middle + 1;
    else
      high = middle;
  }
  return low;
}

// Passes the next tag, and any comment and section before it; false when the pass halts instead.
bool axmElementIndex::pass_tag()
{
  if (halted)
    return false;
  for (;;)
  {
    Place const at = next_mark();
    char const mark = text[at];
    if (mark == '>')
      continue;
    if (mark == '\0')
      return halt();
    char const kind = text[at + 1];
    if (kind == '/')
      return pass_closing_tag(at);
    if (kind != '!')
      return pass_opening_tag(at);
    if (std::strncmp(text + at, "<!--", 4) != 0 && std::strncmp(text + at, "<![CDATA[", 9) != 0)
      return pass_opening_tag(at);
    if (!pass_special(at))
      return halt();
  }
}

bool axmElementIndex::pass_opening_tag(Place at)
{
  Place const tag_end = next_tag_end();
  if (tag_end == 0 || !add(at, tag_end + 1))
    return halt();
  Id const id = used - 1;
  if (text[tag_end - 1] == '/')
  {
    entry(id).end = tag_end + 1;
    entry(id).next = used;
    last_closed = id;
    if (id == 0)
      halted = true; // the root is all there is
    return true;
  }
  entry(id).next = open;
  open = id;
  last_closed = none;
  return true;
}

bool axmElementIndex::pass_closing_tag(Place at)
{
  Place const tag_end = next_tag_end();
  if (tag_end == 0 || !matches_open_tag(at + 2, tag_end))
    return halt();
  Entry& closed = entry(open);
  last_closed = open;
  open = closed.next;
  closed.end = tag_end + 1;
  closed.next = used;
  if (last_closed == 0)
    halted = true; // the root is all there is
  return true;
}

// Passes a comment or a CDATA section.
bool axmElementIndex::pass_special(Place at)
{
  bool const is_comment = text[at + 2] == '-';
  Place const content = at + (is_comment ? 4 : 9);
  Place behind = 0;
  if (!pass_marked(content, is_comment ? '-' : ']', behind))
    return false;
  if (!is_comment && std::memchr(text + content, '<', behind - content) != nullptr)
    (last_closed == none ? entry(open).content : entry(last_closed).end) |= flag;
  seek(behind);
  return true;
}

// Passes what ends with two marks and a `>`, where the character behind a lone mark is no mark.
bool axmElementIndex::pass_marked(Place from, char mark, Place& behind) const
{
  for (Place at = from;;)
  {
    auto const* const found = static_cast<char const*>(std::memchr(text + at, mark, size - at));
    if (found == nullptr)
      return false;
    at = static_cast<Place>(found - text);
    if (text[at + 1] != mark)
    {
      if (text[at + 1] == '\0')
        return false;
      at += 2;
      continue;
    }
    behind = at + 3;
    return text[at + 2] == '>' && text[behind] != '\0' && std::memchr(text + from, '\0', behind - from) == nullptr;
  }
}

// Whether the name that ends at the first space from `name` on, at `tag_end` at the latest, is that of the innermost open
// element.
bool axmElementIndex::matches_open_tag(Place name, Place tag_end) const
{
  char const* const open_name = text + start(open) + 1;
  Place const length = tag_end - name;
  // Without a space in the name, which is the rule, its length need not be looked for; with one, names that are equal
  // beyond it are equal up to it.
  if (are_equal(open_name, text + name, length) && (open_name[length] == '>' || open_name[length] == ' '))
    return true;
  Place const name_length = name_end(text, name) - name;
  Place const open_length = name_end(open_name, 0);
  return name_length == open_length && std::memcmp(open_name, text + name, name_length) == 0;
}

bool axmElementIndex::add(Place start, Place content)
{
  if (used >> page_shift == pages.size())
    try
    {
      std::unique_ptr<Entry[]> page(new Entry[1u << page_shift]);
      pages.push_back(std::move(page));
    }
    catch (std::bad_alloc const&)
    {
      return false;
    }
  entry(used) = {start, content, 0, none};
  ++used;
  return true;
}

bool axmElementIndex::halt()
{
  halted = true;
  return false;
}

// The place of the next `<`, `>` or NUL.
axmElementIndex::Place axmElementIndex::next_mark()
{
  while (block_marks == 0)
  {
    if (++block == axmMarks::blocks)
    {
      marks_begin += axmMarks::bytes;
      find_marks();
      block = 0;
    }
    block_marks = marks[block];
  }
  auto const bit = static_cast<Place>(lowest_bit(block_marks));
  block_marks &= block_marks - 1;
  return marks_begin + static_cast<Place>(block * axmMarks::block_bytes) + bit;
}

// The place of the next `>`; 0 if the document ends before it or with it.
axmElementIndex::Place axmElementIndex::next_tag_end()
{
  for (;;)
  {
    Place const at = next_mark();
    if (text[at] == '<')
      continue;
    if (text[at] == '\0' || text[at + 1] == '\0')
      return 0;
    frontier = at + 1;
    return at;
  }
}

// Goes on from `place`.
void axmElementIndex::seek(Place place)
{
  frontier = place;
  if (place < marks_begin || place - marks_begin >= axmMarks::bytes || block == axmMarks::blocks)
  {
    marks_begin = place;
    find_marks();
  }
  block = static_cast<int>((place - marks_begin) / axmMarks::block_bytes);
  block_marks = marks[block] & (~std::uint64_t(0) << (place - marks_begin) % axmMarks::block_bytes);
}

void axmElementIndex::find_marks()
{
  if (size - marks_begin >= axmMarks::bytes)
    return axmMarks::find(text + marks_begin, marks);
  // Nothing behind the text may be read. What stands for it is NUL.
  char rest[axmMarks::bytes] = {};
  std::memcpy(rest, text + marks_begin, size - marks_begin);
  axmMarks::find(rest, marks);
}
