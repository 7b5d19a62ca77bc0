#include "axsErrorReporter.h"

#include "axsPlainWords.h"
#include "axsUtf16.h"
#include "axsXercesId.h"

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

void axsErrorReporter::error(unsigned int code, XMLCh const* domain, ErrTypes type, XMLCh const* text,
  XMLCh const* system_id, XMLCh const*, XMLFileLoc line, XMLFileLoc column)
{
  if (type == ErrType_Warning)
    return;
  // What its transcoders throw comes as an exception's text.
  bool const is_exception = xercesc::XMLString::equals(domain, xercesc::XMLUni::fgExceptDomain);
  std::string const said = axsUtf16::to_utf8(text);
  std::string const words =
    is_exception ? axsPlainWords::of_exception(code, said) : axsPlainWords::of(code, said, open_line());
  axsReadError error = make(apString::from_utf8(words), system_id, line, column);
  error.is_about_encoding = is_exception;
  throw error;
}

axsReadError axsErrorReporter::make(apString const& message, XMLCh const* system_id, XMLFileLoc line, XMLFileLoc column)
{
  return {message, apString(axsXercesId::path(system_id).path()), checked(line), checked(column)};
}
