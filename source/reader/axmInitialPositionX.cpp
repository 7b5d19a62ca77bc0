#include "axmInitialPositionX.h"

axmInitialPositionX::axmInitialPositionX(char* buffer) : axmPositionX(buffer) {}
axmInitialPositionX::axmInitialPositionX(axmInitialPositionX const& other) = default;
axmInitialPositionX& axmInitialPositionX::operator=(axmInitialPositionX const& other) = default;
axmInitialPositionX::~axmInitialPositionX() = default;

utString axmInitialPositionX::version()
{
  current_pos = object_start;
  skip_string(ut_lit("<?xml"));
  skip_whitespace();
  return attribute_value(ut_lit("version"));
}

utString axmInitialPositionX::encoding()
{
  version();
  skip_whitespace();
  // The first letter decides: what begins like an encoding has to be one.
  utString const found = is_char('e') ? attribute_value(ut_lit("encoding")) : utString();
  return found.length() == 0 ? ut_lit("utf-8") : found;
}

utString axmInitialPositionX::standalone()
{
  encoding();
  skip_whitespace();
  return is_char('s') ? attribute_value(ut_lit("standalone")) : ut_lit("no");
}

char* axmInitialPositionX::end_point()
{
  current_pos = object_start;
  skip_tag();
  skip_whitespace();
  while (is_comment())
  {
    skip_comment();
    skip_whitespace();
  }
  return current_pos;
}

utString axmInitialPositionX::attribute_value(utString const& name)
{
  skip_string(name);
  skip_char('=');
  char const quote = read_char();
  utString const value = read_string_to_char(quote);
  skip_char(quote);
  return value;
}
