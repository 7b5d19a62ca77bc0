#include "axmCharException.h"

namespace
{
char const text[] = "axmCharException:: Xml file did not contain expected char ";
int const text_length = sizeof text - 1;
}

axmCharException::axmCharException(char expected) : expected_char(static_cast<signed char>(expected)) {}
axmCharException::axmCharException(axmCharException const& other) = default;
axmCharException& axmCharException::operator=(axmCharException const& other) = default;
axmCharException::~axmCharException() = default;

utString axmCharException::explanation() const
{
  bool const inside = expected_char >= 0 && expected_char < text_length;
  return utString(inside ? text + expected_char : "") + ut_lit("\n");
}
