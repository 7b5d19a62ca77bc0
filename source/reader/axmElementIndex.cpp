#include "axmElementIndex.h"

#include <apBits.h>
#include <apMemory.h>

#include <cstring>
#include <new>
#include <utility>

namespace
{
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
  markup_in_sections = false;
  current = axmStructuralScan::masks; // nothing of this text has been scanned yet
  seek(root);
  pass(0, none);
}

axmElementIndex::Id axmElementIndex::find(Place place)
{
  while (!halted && frontier <= place)
    pass(used, none);
  Id const id = first_from(place);
  return id < used && (*this)[id].start() == place ? id : none;
}

axmElementIndex::Id axmElementIndex::first_from(Place place) const
{
  Id low = 0;
  Id high = used;
  while (low < high)
  {
    Id const middle = low + (high - low) / 2;
    if ((*this)[middle].start() < place)
      low = middle + 1;
    else
      high = middle;
  }
  return low;
}

// One run of the pass. It keeps what changes with every tag: what nobody else knows can stay in registers, if the
// operations are made a part of the loop that calls them.
class axmElementIndex::Pass
{
public:
  explicit Pass(axmElementIndex& passed)
    : index(passed),
      bytes(passed.text),
      innermost(passed.open),
      closed(passed.last_closed),
      count(passed.used)
  {
    take_mask();
  }

  // Whether there is an element `wanted` or `parent` is closed.
  bool has_come_to(Id wanted, Id parent) const
  {
    return wanted < count || (parent != none && index[parent].is_closed());
  }

  // Whether there is a bracket among those that have been scanned.
  [[gnu::always_inline]] inline bool has_bracket_at_hand()
  {
    while (bits == 0)
    {
      if (index.current == axmStructuralScan::masks - 1)
        return false;
      next_mask();
    }
    return true;
  }

  // Passes what begins at the next bracket; false when the pass halts there.
  [[gnu::always_inline]] inline bool step()
  {
    Place const at = next_bracket();
    if (bytes[at] == '>')
      return true;
    if (bytes[at] == '\0')
      return false;
    return begins_section(at) ? pass_section(at) : pass_tag(at);
  }

  void put_back()
  {
    index.current_mask = bits;
    index.open = innermost;
    index.last_closed = closed;
    index.used = count;
  }

private:
  void take_mask()
  {
    bits = index.current_mask;
    mask_begin = index.scan_begin + static_cast<Place>(index.current * axmStructuralScan::mask_bytes);
  }

  [[gnu::always_inline]] inline void next_mask()
  {
    if (++index.current == axmStructuralScan::masks)
    {
      index.scan_begin += axmStructuralScan::bytes;
      index.scan();
      index.current = 0;
    }
    index.current_mask = index.masks[index.current];
    take_mask();
  }

  // The place of the next `<`, `>` or NUL.
  [[gnu::always_inline]] inline Place next_bracket()
  {
    while (bits == 0)
      next_mask();
    Place const at = mask_begin + static_cast<Place>(apBits::lowest(bits));
    bits &= bits - 1;
    return at;
  }

  [[gnu::always_inline]] inline bool begins_section(Place at) const
  {
    return bytes[at + 1] == '!' &&
           (std::strncmp(bytes + at, "<!--", 4) == 0 || std::strncmp(bytes + at, "<![CDATA[", 9) == 0);
  }

  bool pass_section(Place at)
  {
    put_back();
    bool const has_end = index.pass_special(at);
    take_mask();
    return has_end;
  }

  [[gnu::always_inline]] inline bool pass_tag(Place at)
  {
    Place tag_end = next_bracket();
    while (bytes[tag_end] == '<')
      tag_end = next_bracket();
    // What is left must be more than the tag.
    if (bytes[tag_end] == '\0' || bytes[tag_end + 1] == '\0')
      return false;
    if (bytes[at + 1] == '/' ? !pass_closing(at, tag_end) : !pass_opening(at, tag_end))
      return false;
    index.frontier = tag_end + 1;
    return innermost != none; // once the root is closed, that is all there is
  }

  [[gnu::always_inline]] inline bool pass_closing(Place at, Place tag_end)
  {
    Element& element = index.element(innermost);
    if (!index.matches(element.start(), at + 2, tag_end))
      return false;
    closed = innermost;
    innermost = element.next_and_flag;
    element.end_and_flag = tag_end + 1;
    element.next_and_flag = count;
    return true;
  }

  [[gnu::always_inline]] inline bool pass_opening(Place at, Place tag_end)
  {
    if (count == index.room && !index.make_room())
      return false;
    Element& element = index.element(count);
    element.start_and_flag = at;
    if (bytes[tag_end - 1] == '/')
    {
      closed = count;
      element.end_and_flag = tag_end + 1;
      element.next_and_flag = (count + 1) | flag;
    }
    else
    {
      element.end_and_flag = 0;
      element.next_and_flag = innermost;
      innermost = count;
      closed = none;
    }
    ++count;
    return true;
  }

  axmElementIndex& index;
  char const* const bytes;
  std::uint64_t bits = 0;
  Place mask_begin = 0;
  Id innermost;
  Id closed;
  Id count;
};

// Goes on until there is an element `wanted` or `parent` is closed, and from there on to the end of what has been scanned;
// false when the pass halts before.
bool axmElementIndex::pass(Id const wanted, Id const parent)
{
  if (halted)
    return false;
  Pass run(*this);
  do
    if (!run.has_bracket_at_hand() && run.has_come_to(wanted, parent))
    {
      run.put_back();
      return true;
    }
  while (run.step());
  run.put_back();
  halted = true;
  return run.has_come_to(wanted, parent);
}

// Passes a comment or a CDATA section.
bool axmElementIndex::pass_special(Place at)
{
  bool const is_comment = text[at + 2] == '-';
  Place const content = at + (is_comment ? 4 : 9);
  Place end = 0;
  if (!find_section_end(content, is_comment ? '-' : ']', end))
    return false;
  if (!is_comment && std::memchr(text + content, '<', end - content) != nullptr)
  {
    (last_closed == none ? element(open).start_and_flag : element(last_closed).end_and_flag) |= flag;
    markup_in_sections = true;
  }
  seek(end);
  return true;
}

// Finds the end of what ends with two marks and a `>`, where the character after a lone mark is no mark.
bool axmElementIndex::find_section_end(Place from, char mark, Place& end) const
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
    end = at + 3;
    return text[at + 2] == '>' && text[end] != '\0' && std::memchr(text + from, '\0', end - from) == nullptr;
  }
}

// Whether the name that ends at the first space from `name` on, at `tag_end` at the latest, is that of an opened element.
inline bool axmElementIndex::matches(Place start, Place name, Place tag_end) const
{
  char const* const open_name = text + start + 1;
  Place const length = tag_end - name;
  // Without a space in the name, which is the rule, its length need not be looked for; with one, names that are equal
  // beyond it are equal up to it.
  if (std::memcmp(open_name, text + name, length) == 0 && (open_name[length] == '>' || open_name[length] == ' '))
    return true;
  Place const name_length = name_end(text, name) - name;
  Place const open_length = name_end(open_name, 0);
  return name_length == open_length && std::memcmp(open_name, text + name, name_length) == 0;
}

// Takes one page more into use. There is always a quarter more of them, so that allocations stay few.
bool axmElementIndex::make_room()
{
  std::size_t const in_use = room >> page_shift;
  if (in_use == pages.size() && !add_pages(in_use / 4 + 1))
    return false;
  if (in_use > 0)
    apMemory::will_fill(pages[in_use], page_size * sizeof(Element));
  room += page_size;
  return true;
}

bool axmElementIndex::add_pages(std::size_t count)
{
  try
  {
    pages.reserve(pages.size() + count);
    std::unique_ptr<Element[]> block_of_pages(new Element[count * page_size]);
    Element* page = block_of_pages.get();
    blocks_of_pages.push_back(std::move(block_of_pages));
    for (; count > 0; --count, page += page_size)
      pages.push_back(page);
    return true;
  }
  catch (std::bad_alloc const&)
  {
    return false;
  }
}

// Goes on from `place`.
void axmElementIndex::seek(Place place)
{
  frontier = place;
  if (place < scan_begin || place - scan_begin >= axmStructuralScan::bytes || current == axmStructuralScan::masks)
  {
    scan_begin = place;
    scan();
  }
  current = static_cast<int>((place - scan_begin) / axmStructuralScan::mask_bytes);
  current_mask = masks[current] & (~std::uint64_t(0) << (place - scan_begin) % axmStructuralScan::mask_bytes);
}

void axmElementIndex::scan()
{
  if (size - scan_begin >= axmStructuralScan::bytes)
    return axmStructuralScan::find(text + scan_begin, masks);
  // Nothing after the text may be read. What stands for it is NUL.
  char rest[axmStructuralScan::bytes] = {};
  std::memcpy(rest, text + scan_begin, size - scan_begin);
  axmStructuralScan::find(rest, masks);
}
