#pragma once

#include "axmTagName.h"

#include <axmPositionX.h>

#include <cstring>

// Those operations of axmPositionX that pass whole elements on their way and can do so in different ways: by its own
// steps, or with the help of one who knows where elements end. Not installed.

// Moves to the next child element whose name begins with `name`; `skip` passes an element.
template <class Skip>
bool axmPositionX::find_sub_tag_by(axmTagName name, Skip skip)
{
  for (;;)
  {
    skip_whitespace();
    if (is_opening_tag())
    {
      if (is_tag_named(name))
        return true;
      skip();
    }
    else if (is_comment())
      skip_comment();
    else if (is_closing_tag())
    {
      return_to_start();
      return false;
    }
    else
    {
      // One step first: a CDATA section counts as text here, and begins with the very `<` that ends other text.
      move_on();
      skip_to('<');
    }
  }
}

// Passes what read_text() reads.
template <class Sink>
void axmPositionX::pass_text(Sink& sink)
{
  char const* piece = current_pos;
  for (;;)
  {
    if (is_cdata())
    {
      axmTagName const content = skip_cdata();
      sink.add(content.begin, content.end);
      piece = current_pos;
    }
    else if (is_comment())
    {
      sink.add(piece, current_pos);
      skip_comment();
      piece = current_pos;
    }
    else if (is_char('<'))
    {
      sink.add(piece, current_pos);
      return;
    }
    else
      move_on();
  }
}

// Passes what text_node() reads; false if the element ends without a text.
template <class Sink, class Skip>
bool axmPositionX::pass_text_node(Sink& sink, Skip skip)
{
  for (;;)
  {
    char const* const space = current_pos;
    skip_whitespace();
    sink.add(space, current_pos);
    if (is_opening_tag())
      skip();
    else if (is_comment())
      skip_comment();
    else if (is_closing_tag())
    {
      return_to_start();
      return false;
    }
    else
    {
      pass_text(sink);
      return true;
    }
  }
}

// Takes the pieces of a text as they come and keeps their length and, as long as they lie next to each other, where they
// are: such a text needs no second look.
struct axmTextMeasure
{
  char const* begin = "";
  char const* end = begin;
  int length = 0;
  bool one_piece = true;

  void add(char const* from, char const* to)
  {
    if (from == to)
      return;
    if (length == 0)
      begin = from;
    else if (from != end)
      one_piece = false;
    end = to;
    length += static_cast<int>(to - from);
  }
};

// Writes the pieces of a text one behind the other.
struct axmTextWriter
{
  char* at;

  void add(char const* from, char const* to)
  {
    std::memcpy(at, from, static_cast<std::size_t>(to - from));
    at += to - from;
  }
};

// The text that `pass` hands to a sink while it moves on. A text in several pieces is passed twice, so that it can be
// written straight into its place.
template <class Pass>
utString axmPositionX::text_of(Pass pass)
{
  char* const start = current_pos;
  axmTextMeasure measure;
  if (!pass(measure))
    return ut_lit("");
  if (measure.one_piece)
    return utString(measure.begin, measure.length);

  current_pos = start;
  return utString::written(measure.length,
    [&](char* to)
    {
      axmTextWriter writer{to};
      pass(writer);
    });
}
