#pragma once

#include "axmMarks.h"

#include <cstdint>
#include <memory>
#include <vector>

// Where the elements of a document begin and end, found in one pass from the root element on and only as far as asked.
//
// A memory of what axmPositionX::skip_object() finds: an element is in it as soon as its opening tag has been passed, and
// is closed as soon as skip_object() from its `<` would have come to its end. What skip_object() would throw for, be it
// only further down, brings the pass to a halt for good; the cursor's own steps are what is left then, and throw in the
// right place. Running out of memory brings it to a halt as well: a memory is never needed.
//
// Elements have numbers in the order of their opening tags, the root being 0; a number handed in must be below count(). All places are offsets from the beginning
// of the text, which must end with a NUL and must not change. Not installed.
class axmElementIndex
{
public:
  using Place = std::uint32_t;
  using Id = std::uint32_t;

  static constexpr Id none = 0xFFFFFFFF;

  // Forgets everything and begins with the root element at `root` of the `size` bytes before the NUL at the end of
  // `text`.
  void restart(char const* text, Place size, Place root);

  // How many elements the pass has come to.
  Id count() const { return used; }

  // Behind `<` it is the name.
  Place start(Id id) const { return entry(id).start; }

  // Behind the opening tag.
  Place content(Id id) const { return entry(id).content & place_mask; }

  bool is_closed(Id id) const { return entry(id).end != 0; }

  // Behind the closing tag of a closed element.
  Place end(Id id) const { return entry(id).end & place_mask; }

  // The first element behind a closed one that is not in it.
  Id next(Id id) const { return entry(id).next; }

  bool is_self_closing(Id id) const { return content(id) == end(id); }

  // Whether a CDATA section with a `<` in it stands between the opening tag and the first child, or between an element
  // that is closed and the next tag of its parent. To be asked when the pass has come to that next tag.
  bool has_markup_in_section_at_start(Id id) const { return (entry(id).content & flag) != 0; }
  bool has_markup_in_section_behind(Id id) const { return (entry(id).end & flag) != 0; }

  // Goes on until there is an element `id` or `parent` is closed; false when the pass halts before.
  bool reach_child(Id parent, Id id) { return id < used || is_closed(parent) || pass(id, parent); }

  // Goes on until the element is closed; false when the pass halts before.
  bool reach_end(Id id) { return is_closed(id) || pass(none, id); }

  // The element that begins at `place`, none if the pass knows of none there.
  Id find(Place place);

  // The first element that begins at `place` or behind it; count() if there is none (yet).
  Id first_from(Place place) const;

private:
  static constexpr Place flag = 0x80000000;
  static constexpr Place place_mask = flag - 1;
  static constexpr int page_shift = 12;

  // `end` is 0 and `next` the parent as long as the element is open.
  struct Entry
  {
    Place start;
    Place content;
    Place end;
    Id next;
  };

  Entry const& entry(Id id) const { return pages[id >> page_shift][id & ((1u << page_shift) - 1)]; }
  Entry& entry(Id id) { return pages[id >> page_shift][id & ((1u << page_shift) - 1)]; }

  bool pass(Id wanted, Id parent);
  bool pass_special(Place at);
  bool pass_marked(Place from, char mark, Place& behind) const;
  bool matches(Entry const& opened, Place name, Place tag_end) const;
  bool make_room();
  bool halt();
  void seek(Place place);
  void find_marks();

  char const* text = nullptr;
  Place size = 0;
  bool halted = true;

  Id used = 0;
  Id open = none;        // the innermost open element
  Id last_closed = none; // the last child of it that was closed, none at its beginning
  std::vector<std::unique_ptr<Entry[]>> pages;

  Place frontier = 0; // behind the last tag, comment or section passed
  Place marks_begin = 0;
  int block = 0;
  std::uint64_t block_marks = 0;
  std::uint64_t marks[axmMarks::blocks] = {};
};
