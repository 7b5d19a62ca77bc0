#pragma once

#include "axmStructuralScan.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

// Where the elements of a document begin and end, found in one pass from the root element on and only as far as asked, or
// as the characters go that are looked at together (axmStructuralScan::bytes).
//
// A memory of what axmPositionX::skip_object() finds: an element is in it as soon as its opening tag has been passed, and
// is closed as soon as skip_object() from its `<` would have come to its end. What skip_object() would throw for, be it
// only further down, brings the pass to a halt for good; the cursor's own steps are what is left then, and throw in the
// right place. Running out of memory brings it to a halt as well: a memory is never needed.
//
// Elements have numbers in the order of their opening tags, the root being 0; a number handed in must be below count().
// All places are offsets from the beginning of the text, which must end with a NUL and must not change. Not installed.
class axmElementIndex
{
public:
  using Place = std::uint32_t;
  using Id = std::uint32_t;

  static constexpr Id none = 0x7FFFFFFF;

  // Forgets everything and begins with the root element at `root` of the `size` bytes before the NUL at the end of
  // `text`.
  void restart(char const* text, Place size, Place root);

  // How many elements the pass has come to.
  Id count() const { return used; }

  // What is known of an element.
  class Element
  {
  public:
    // The place of its `<`.
    Place start() const { return start_and_flag & mask; }

    bool is_closed() const { return end_and_flag != 0; }

    // The end of the closing tag of a closed element.
    Place end() const { return end_and_flag & mask; }

    // The first element after a closed one that is not in it.
    Id next() const { return next_and_flag & mask; }

    // Whether a closed element has no closing tag.
    bool is_self_closing() const { return (next_and_flag & flag) != 0; }

  private:
    friend class axmElementIndex;

    // The first one has the flag when a section at the start has markup, the second when one after the element has, the
    // third when the element closes itself. As long as the element is open, the second is 0 and the third the parent.
    Place start_and_flag;
    Place end_and_flag;
    Id next_and_flag;
  };

  Element const& operator[](Id id) const { return pages[id >> page_shift][id & (page_size - 1)]; }

  // The element `to`, where `element` is the one with the number `from`: faster than by the number alone.
  Element const* moved(Element const* element, Id from, Id to) const
  {
    return (from ^ to) < page_size ? element + (to - from) : &(*this)[to];
  }

  // Whether a CDATA section with a `<` in it stands between the opening tag and the first child, or between an element
  // that is closed and the next tag of its parent. To be asked when the pass has come to that next tag.
  bool has_markup_in_section_at_start(Id id) const { return ((*this)[id].start_and_flag & flag) != 0; }
  bool has_markup_in_section_after(Id id) const { return ((*this)[id].end_and_flag & flag) != 0; }

  // Whether there is any such section so far.
  bool has_markup_in_sections() const { return markup_in_sections; }

  // Goes on until there is an element `id` or `parent` is closed; false when the pass halts before.
  bool reach_child(Id parent, Id id) { return id < used || (*this)[parent].is_closed() || pass(id, parent); }

  // Goes on until the element is closed; false when the pass halts before.
  bool reach_end(Id id) { return (*this)[id].is_closed() || pass(none, id); }

  // The element that begins at `place`, none if the pass knows of none there.
  Id find(Place place);

  // The first element that begins at `place` or after it; count() if there is none (yet).
  Id first_from(Place place) const;

private:
  class Pass;

  static constexpr Place flag = 0x80000000;
  static constexpr Place mask = flag - 1;
  static constexpr int page_shift = 12;
  static constexpr Id page_size = 1u << page_shift;

  Element& element(Id id) { return pages[id >> page_shift][id & (page_size - 1)]; }

  bool pass(Id wanted, Id parent);
  bool pass_special(Place at);
  bool find_section_end(Place from, char mark, Place& end) const;
  bool matches(Place start, Place name, Place tag_end) const;
  bool make_room();
  bool add_pages(std::size_t count);
  void seek(Place place);
  void scan();

  char const* text = nullptr;
  Place size = 0;
  bool halted = true;

  Id used = 0;
  Id open = none;        // the innermost open element
  Id last_closed = none; // the last child of it that was closed, none at its beginning
  std::vector<std::unique_ptr<Element[]>> blocks_of_pages; // ever larger ones, so that they stay few
  std::vector<Element*> pages;
  Id room = 0; // for how many elements there are pages in use
  bool markup_in_sections = false;

  Place frontier = 0;   // the end of the last tag, comment or section passed
  Place scan_begin = 0; // of what `masks` tell
  int current = 0;      // the mask in which the pass stands, and what is left of it
  std::uint64_t current_mask = 0;
  std::uint64_t masks[axmStructuralScan::masks] = {};
};
