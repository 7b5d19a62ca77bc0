#pragma once

#include "axmAttributes.h"
#include "axmCursorStack.h"
#include "axmElementIndex.h"
#include "axmPositionX.h"

#include <utString.h>

#include <cstdint>
#include <string_view>
#include <vector>

// Moves the cursors of a reader as they would move themselves, with the help of an index of the elements: an element that
// has been passed once is never scanned again. Where the index does not tell, the cursors take their own steps.
//
// It refers to the text and the cursors of the reader, which must live longer; what is kept here can be told again from
// them. Throws what axmPositionX throws. Not installed.
class axmElementWalk
{
public:
  // A walk over the `size` bytes before the NUL at the end of `text`, which stands before the elements as `document` does.
  axmElementWalk(char const* text, int size, axmPositionX& document, axmPositionXcoPageArrPrgcoPrgcoPageArr& cursors);

  // How many elements are entered.
  int depth() const { return stack.depth(); }

  // Whether there is a cursor for one element more. down_to() needs one: add_cursor().
  bool has_cursor() const { return stack.has_upcoming(); }

  // Adds a cursor, which must stay where it is. Throws std::bad_alloc when memory runs out.
  void add_cursor(axmPositionX& cursor) { stack.add(cursor); }

  // Where the cursor of an element that is entered stands, and where the element begins.
  struct Entered
  {
    std::uint32_t start;
    std::uint32_t place;
  };

  // All of them, the outermost first. Throws std::bad_alloc when memory runs out.
  std::vector<Entered> entered();

  // Enters an element as the walk over another text had entered it: at those places in this one, or at its end. Needs a
  // cursor as down_to() does.
  void enter_again(Entered const& element);

  // Enters the next child element of that name, the next root element where none is entered. False if there is none.
  bool down_to(utString const& name);

  // Leaves the innermost element, the outermost one only after all its children. Where it throws for these, it stays.
  void up();

  // An attribute of the element entered last, or come back to.
  utString attribute(utString const& name, utString const& default_value)
  {
    return attributes.value(tag, name, default_value);
  }

  // The text of the innermost element.
  utString text_node();

private:
  using Place = axmElementIndex::Place;
  using Id = axmElementIndex::Id;
  using Level = axmCursorStack::Level;

  // A name to look for, and what speeds that up.
  struct Wanted
  {
    explicit Wanted(utString const& given);

    utString const& name;
    std::string_view text; // of `name`
    std::uint64_t word;    // the first eight bytes, 0 where there are fewer
    std::uint64_t mask;    // those that count
    bool is_plain;         // without `>`: it cannot be found beyond a tag
  };

  static std::uint64_t filter_bit(char const* name);
  static bool is_filtered_out(axmCursorState const& state, Wanted const& wanted);

  axmCursorState at_start_of(Id element) const;
  void go_to_start(axmCursorState& state) const;
  bool find_root(Level& entered, utString const& name);
  bool find_child(Level& entered, utString const& name);
  bool find_child_by_index(Level& level, Wanted const& wanted);
  bool find_child_by_steps(Level& level, utString const& name);
  bool return_to_start(Level& level);
  void pass_child(Level& level, Id child);
  void pass_children(Level& level);
  void find_upcoming(Level& level) const;
  bool has_markup_in_section(axmCursorState const& state, Id passed) const;
  bool is_named(Place start, Wanted const& wanted) const;
  void skip(axmPositionX& cursor);
  void enter(Id id, axmPositionX& parent, Place name_length, Level& entered);
  char const* content_of(Id id, Place name_length) const;

  Place place_of(char const* at) const { return static_cast<Place>(at - text); }

  char* text;
  char const* text_end; // the NUL
  Place size;
  axmPositionX& document;
  axmCursorStack stack;
  char const* tag = nullptr; // where the current element begins
  axmElementIndex index;
  axmAttributes attributes;
};
