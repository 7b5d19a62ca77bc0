#pragma once

#include "axmPositionX.h"

#include <cstring>

// A cursor that passes child elements in a way that it is given: by its own steps, or with the help of one who knows where
// they end. Not installed.
class axmCursor : public axmPositionX
{
public:
  explicit axmCursor(axmPositionX const& other) : axmPositionX(other) {}

  using axmPositionX::is_tag_name;

  // Does `work(axmCursor&)` with a cursor that stands as `cursor`, which takes over where that comes to, also where it
  // throws.
  template <class Work>
  static auto move(axmPositionX& cursor, Work work)
  {
    struct TakeOver
    {
      ~TakeOver() { cursor = moved; }

      axmPositionX& cursor;
      axmCursor moved;
    };
    TakeOver pair{cursor, axmCursor(cursor)};
    return work(pair.moved);
  }

  // Where a cursor stands, and where its element begins.
  static char*& place(axmPositionX& cursor) noexcept { return cursor.*(&axmCursor::current_pos); }
  static char*& start(axmPositionX& cursor) noexcept { return cursor.*(&axmCursor::object_start); }

  // Moves to the next child whose name begins with `name`, where `skip(axmPositionX&)` passes another one. Without such a
  // child false, with the cursor on the closing tag of the element.
  template <class Skip>
  bool pass_to_child(utString const& name, Skip skip)
  {
    for (;;)
    {
      skip_whitespace();
      if (is_opening_tag())
      {
        if (is_tag_name(name))
          return true;
        skip(*this);
      }
      else if (is_comment())
        skip_comment();
      else if (is_closing_tag())
        return false;
      else
      {
        // One step first: a CDATA section counts as text here, and begins with the very `<` that ends other text.
        move_on();
        pass_to('<');
      }
    }
  }

  // The same as axmPositionX::find_sub_tag().
  template <class Skip>
  bool find_child(utString const& name, Skip skip)
  {
    // From the closing tag, find_sub_tag() goes back to the start.
    return pass_to_child(name, skip) || find_sub_tag(name);
  }

  // The same as axmPositionX::read_text().
  utString take_text()
  {
    utString text;
    take(
      [this](auto& sink)
      {
        pass_text(sink);
        return true;
      },
      text);
    return text;
  }

  // Takes the text that axmPositionX::text_node() reads, where `skip(axmPositionX&)` passes a child. Without one false,
  // with the cursor on the closing tag of the element.
  template <class Skip>
  bool take_text_node(Skip skip, utString& text)
  {
    return take([&](auto& sink) { return pass_text_node(sink, skip); }, text);
  }

  // The same as axmPositionX::text_node().
  template <class Skip>
  utString find_text_node(Skip skip)
  {
    utString text;
    // From the closing tag, text_node() goes back to the start.
    return take_text_node(skip, text) ? text : text_node();
  }

private:
  // Takes the pieces of a text as they come and keeps their length and, as long as they lie next to each other, where they
  // are: such a text needs no second look.
  struct Measure
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

  // Writes the pieces of a text one after the other.
  struct Writer
  {
    char* at;

    void add(char const* from, char const* to)
    {
      std::memcpy(at, from, static_cast<std::size_t>(to - from));
      at += to - from;
    }
  };

  void pass_to(char c)
  {
    while (!is_char(c))
      move_on();
  }

  // Passes the CDATA section that stands here. read_cdata() would copy it.
  template <class Sink>
  void pass_section(Sink& sink)
  {
    skip_string(ut_lit("<![CDATA["));
    char const* const content = current_pos;
    while (read_char() != ']' || read_char() != ']')
      ;
    char const* const end = current_pos - 2;
    skip_char('>');
    sink.add(content, end);
  }

  // Passes what read_text() reads.
  template <class Sink>
  void pass_text(Sink& sink)
  {
    char const* piece = current_pos;
    for (;;)
    {
      if (is_cdata())
      {
        pass_section(sink);
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

  // Passes what text_node() reads; false on the closing tag if the element ends without a text.
  template <class Sink, class Skip>
  bool pass_text_node(Sink& sink, Skip skip)
  {
    for (;;)
    {
      char const* const space = current_pos;
      skip_whitespace();
      sink.add(space, current_pos);
      if (is_opening_tag())
        skip(*this);
      else if (is_comment())
        skip_comment();
      else if (is_closing_tag())
        return false;
      else
      {
        pass_text(sink);
        return true;
      }
    }
  }

  // Takes the text that `pass` hands to a sink while it moves on. A text in several pieces is passed twice, so that it can
  // be written straight into its place.
  template <class Pass>
  bool take(Pass pass, utString& text)
  {
    char* const before = current_pos;
    Measure measure;
    if (!pass(measure))
      return false;
    if (measure.one_piece)
    {
      text = utString(measure.begin, measure.length);
      return true;
    }
    current_pos = before;
    text = utString::written(measure.length,
      [&](char* to)
      {
        Writer writer{to};
        pass(writer);
      });
    return true;
  }
};
