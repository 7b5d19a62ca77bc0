#pragma once

#include <axmPositionX.h>

// A cursor with all that derived classes may use.
class OpenCursor : public axmPositionX
{
public:
  using axmPositionX::axmPositionX;

  // As for a child: the element begins at `start`, the cursor stands at `at`.
  OpenCursor(char* start, char* at) : axmPositionX(start) { current_pos = at; }
  OpenCursor(axmPositionX const& other) : axmPositionX(other) {}

  using axmPositionX::current;
  using axmPositionX::find_attribute;
  using axmPositionX::find_sub_tag;
  using axmPositionX::is_cdata;
  using axmPositionX::is_char;
  using axmPositionX::is_closing_tag;
  using axmPositionX::is_comment;
  using axmPositionX::is_opening_tag;
  using axmPositionX::is_string;
  using axmPositionX::is_tag;
  using axmPositionX::is_tag_name;
  using axmPositionX::is_whitespace;
  using axmPositionX::make_string_from;
  using axmPositionX::move_on;
  using axmPositionX::read_cdata;
  using axmPositionX::read_char;
  using axmPositionX::read_string_to_char;
  using axmPositionX::read_tag;
  using axmPositionX::self_closing_tag;
  using axmPositionX::skip_char;
  using axmPositionX::skip_comment;
  using axmPositionX::skip_string;
  using axmPositionX::skip_tag;
  using axmPositionX::skip_whitespace;
  using axmPositionX::throw_char_error_x;
  using axmPositionX::throw_end_error_x;
  using axmPositionX::throw_tag_error_x;

  char* start() const { return object_start; }
};
