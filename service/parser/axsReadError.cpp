#include "axsReadError.h"

axmParseError axsReadError::record() const
{
  axmParseError made(message);
  made.set_url(url);
  made.set_line_number(line);
  made.set_column_number(column);
  return made;
}
