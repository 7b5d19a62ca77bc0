#include "axsErrorReporter.h"

#include "axsSystemId.h"
#include "axsUtf16.h"

#include <climits>

namespace
{
int checked(XMLFileLoc place)
{
  return place == 0 || place > INT_MAX ? -1 : static_cast<int>(place);
}
}

void axsErrorReporter::error(unsigned int, XMLCh const*, ErrTypes type, XMLCh const* text, XMLCh const* system_id,
  XMLCh const*, XMLFileLoc line, XMLFileLoc column)
{
  if (type != ErrType_Warning)
    throw make(axsUtf16::to_string(text), system_id, line, column);
}

axsReadError axsErrorReporter::make(apString const& message, XMLCh const* system_id, XMLFileLoc line, XMLFileLoc column)
{
  return {message, apString(axsSystemId::path(system_id).path()), checked(line), checked(column)};
}
