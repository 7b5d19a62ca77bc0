#pragma once

#include "axmElementIndex.h"
#include "axmTagName.h"

#include <axmPositionX.h>
#include <coDynArr.h>
#include <utString.h>

#include <cstddef>
#include <vector>

// Moves the cursors of a reader as they would move themselves, with the help of an index of the elements: an element that
// has been passed once is never scanned again. Where the index does not tell, the cursors take their own steps.
//
// It refers to the text of the reader. Cursors and their depths (0 for that of the outermost element) are the reader's;
// here is only what can be told again from the cursors and the text. Not installed.
class axmElementWalk
{
public:
  // A walk over the `size` bytes before the NUL at the end of `text`.
  axmElementWalk(char const* text, int size);

  // Moves the cursor of the document to the next root element of that name, and makes `root` stand in its content.
  bool down_to_root(axmPositionX& document, utString const& name, axmPositionX& root);

  // The same for a child, from the cursor at `depth` on.
  bool down_to_child(axmPositionX& parent, int depth, utString const& name, axmPositionX& child);

  // Moves the cursor at `depth`, which stands on a child, behind that child.
  void pass_child(axmPositionX& parent, int depth);

  // Moves the cursor at depth 0 past all children that are left, and back behind its opening tag.
  void pass_children(axmPositionX& root);

  utString attribute(axmPositionX const& element, utString const& name, utString const& default_value);

  utString text_node(axmPositionX& element, int depth);

private:
  using Place = axmElementIndex::Place;
  using Id = axmElementIndex::Id;

  // What is known about a cursor: its element, and where in the content it stands.
  struct Level
  {
    Id element;     // none where the index does not know it
    Id upcoming;    // the first child that is not passed yet, as soon as the index has come to it; none if not known
    Id passed;      // what the cursor stands behind: a child, the opening tag of `element`, or none if that is a tag
    bool by_itself; // whether the cursor has to take its own steps
  };

  // The search for an attribute beyond its tag, which a self-closing tag without that attribute sends on its way. From
  // the place behind an attribute on, it depends on that place and the name alone: a search that comes to a place where
  // an earlier one has been ends as that one did. Of the earlier one it is enough to follow its way, once.
  struct Search
  {
    utString name;
    char const* at;    // a place on its way
    char const* end;   // the last one
    char const* value; // what it found, null if it found nothing
    char const* value_end;
  };

  // An attribute as it stands in a tag, and the place behind it.
  struct Attribute
  {
    axmTagName name;
    char const* value;
    char const* value_end;
    char const* behind;
  };

  // What has been read of an opening tag: the attributes in front, and the place where reading goes on. Each is read once,
  // however many are asked for.
  struct Tag
  {
    static constexpr int most = 16;

    char const* start = nullptr; // none yet
    char const* rest = nullptr;
    int count = 0;
    Attribute attributes[most + 1] = {}; // the last one for those for which there is no room
  };

  char const* first_attribute(char const* start) const;
  void read_attribute(char const* at, Attribute& found) const;
  char const* skip_space(char const* at) const;
  Search const& search_beyond(char const* at, utString const& name);
  Search& search_of(utString const& name);

  Level at_start_of(Id element) const;
  bool find_child(axmPositionX& parent, Level& level, axmTagName const& name);
  bool find_child_step_by_step(axmPositionX& parent, Level& level, axmTagName const& name);
  void find_upcoming(axmPositionX const& cursor, Level& level) const;
  bool has_markup_in_section(Level const& level, Id passed) const;
  bool is_named(Id id, axmTagName const& name) const;
  void skip(axmPositionX& cursor);
  void enter(Id id, axmPositionX& parent, axmPositionX& child);
  void make_room(int depth);

  Place place_of(axmPositionX const& cursor) const;

  char* text;
  char const* text_end; // the NUL
  Place size;
  axmElementIndex index;
  coDynArr<Level> levels;
  Tag tag;
  std::vector<Search> searches;
  std::size_t next_search = 0;
};
