#pragma once

#include "axmAttributes.h"
#include "axmElementIndex.h"
#include "axmTagName.h"

#include <axmPositionX.h>
#include <coDynArr.h>
#include <utString.h>

#include <cstdint>

// Moves the cursors of a reader as they would move themselves, with the help of an index of the elements: an element that
// has been passed once is never scanned again. Where the index does not tell, the cursors take their own steps.
//
// It refers to the text and the cursors of the reader, of which there is one for each depth (0 for that of the outermost
// element). What is kept here can be told again from the cursors and the text. Not installed.
class axmElementWalk
{
public:
  // A walk over the `size` bytes before the NUL at the end of `text`.
  axmElementWalk(char const* text, int size);

  bool has_cursor(int depth) const { return depth < levels.count(); }

  // The cursor for the next depth, which must stay where it is. Throws std::bad_alloc when memory runs out.
  void add_cursor(axmPositionX& cursor);

  // Moves the cursor of the document to the next root element of that name, and makes that at depth 0 stand in its
  // content.
  bool down_to_root(axmPositionX& document, utString const& name);

  // The same for a child, from the cursor at `depth` on: makes that at the next depth stand in its content.
  bool down_to_child(int depth, utString const& name);

  // Moves the cursor at `depth`, which stands on a child, behind that child.
  void pass_child(int depth);

  // Moves the cursor at depth 0 past all children that are left, and back behind its opening tag.
  void pass_children();

  // An attribute of the element entered last, or come back to.
  utString attribute(utString const& name, utString const& default_value)
  {
    return attributes.value(tag, name, default_value);
  }

  utString text_node(int depth);

private:
  using Place = axmElementIndex::Place;
  using Id = axmElementIndex::Id;

  // What is known about a cursor: its element, and where in the content it stands.
  struct Standing
  {
    Id element;     // none where the index does not know it
    Id upcoming;    // the first child that is not passed yet, as soon as the index has come to it; none if not known
    Id passed;      // what the cursor stands behind: a child, the opening tag of `element`, or none if that is a tag
    bool by_itself; // whether the cursor has to take its own steps
  };

  struct Level
  {
    axmPositionX* cursor;
    Standing standing;

    // What the names of all children begin with, one bit of 64 for the first two characters, as soon as a search in vain
    // has seen them all: another name of which there is no trace need not be looked for.
    bool has_traces;
    std::uint64_t traces;
  };

  // A name to look for, and what speeds that up.
  struct Wanted
  {
    explicit Wanted(utString const& given);

    axmTagName name;
    std::uint64_t word; // the first eight bytes, 0 where there are fewer
    std::uint64_t mask; // those that count
    bool is_plain;      // without `>`: it cannot be found beyond a tag
  };

  static std::uint64_t trace_of(char const* name);
  static bool is_without_trace(Level const& level, Wanted const& wanted);

  Standing at_start_of(Id element) const;
  bool find_child(Level& level, Wanted const& wanted);
  void pass_others(Id id, Wanted const& wanted, Id& passed, Id& child, std::uint64_t& traces) const;
  bool return_to_start(Level& level);
  bool find_child_step_by_step(Level& level, axmTagName const& name);
  void find_upcoming(Level& level) const;
  bool has_markup_in_section(Standing const& standing, Id passed) const;
  bool is_named(Place start, Wanted const& wanted) const;
  void skip(axmPositionX& cursor);
  void enter(Id id, axmPositionX const& parent, Place name_length, axmPositionX& child);
  char const* content_of(Id id, Place name_length) const;

  Place place_of(char const* at) const;

  char* text;
  char const* text_end; // the NUL
  Place size;
  char const* tag = nullptr; // where the current element begins
  axmElementIndex index;
  coDynArr<Level> levels;
  axmAttributes attributes;
};
