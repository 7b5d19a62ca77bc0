#include "axmParseError.h"

axmParseError::axmParseError() : line(-1), column(-1), empty(true) {}

axmParseError::axmParseError(apString const& message) : text(message), line(-1), column(-1), empty(false) {}

axmParseError::axmParseError(axmParseError const& other) = default;
axmParseError& axmParseError::operator=(axmParseError const& other) = default;
axmParseError::~axmParseError() = default;

apString axmParseError::message() const
{
  return text;
}

apString axmParseError::url() const
{
  return where;
}

void axmParseError::set_url(apString const& url)
{
  where = url;
}

int axmParseError::line_number() const
{
  return line;
}

void axmParseError::set_line_number(int given)
{
  line = given;
}

int axmParseError::column_number() const
{
  return column;
}

void axmParseError::set_column_number(int given)
{
  column = given;
}

bool axmParseError::invalid() const
{
  return empty;
}
