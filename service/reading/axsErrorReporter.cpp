#include "axsErrorReporter.h"

#include "axsSystemId.h"
#include "axsUtf16.h"

#include <xercesc/util/XMLString.hpp>
#include <xercesc/util/XMLUni.hpp>

#include <climits>

namespace
{
int checked(XMLFileLoc place)
{
  return place == 0 || place > INT_MAX ? -1 : static_cast<int>(place);
}
}

void axsErrorReporter::error(unsigned int, XMLCh const* domain, ErrTypes type, XMLCh const* text,
  XMLCh const* system_id, XMLCh const*, XMLFileLoc line, XMLFileLoc column)
{
  if (type == ErrType_Warning)
    return;
  axsReadError error = make(axsUtf16::to_string(text), system_id, line, column);
  // What its transcoders throw comes that way.
  error.is_about_encoding = xercesc::XMLString::equals(domain, xercesc::XMLUni::fgExceptDomain);
  throw error;
}

axsReadError axsErrorReporter::make(apString const& message, XMLCh const* system_id, XMLFileLoc line, XMLFileLoc column)
{
  return {message, apString(axsSystemId::path(system_id).path()), checked(line), checked(column)};
}
