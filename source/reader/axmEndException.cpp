#include "axmEndException.h"

axmEndException::axmEndException() = default;
axmEndException::axmEndException(axmEndException const& other) = default;
axmEndException& axmEndException::operator=(axmEndException const& other) = default;
axmEndException::~axmEndException() = default;

utString axmEndException::explanation() const
{
  return ut_lit("axmEndException:: Xml reader moved of the end of the file\n");
}
