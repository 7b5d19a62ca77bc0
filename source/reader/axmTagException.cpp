#include "axmTagException.h"

axmTagException::axmTagException(utString const& text) : tag_text(text) {}
axmTagException::axmTagException(axmTagException const& other) = default;
axmTagException& axmTagException::operator=(axmTagException const& other) = default;
axmTagException::~axmTagException() = default;

utString axmTagException::explanation() const
{
  return ut_lit("axmTagException:: Something wrong with tag ") + tag_text + ut_lit("\n");
}
