#include "axsEntityHandler.h"

#include "axsLocalFile.h"
#include "axsSource.h"
#include "axsSystemId.h"
#include "axsUtf16.h"
#include "axsXercesId.h"

#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/util/XMLResourceIdentifier.hpp>

#include <algorithm>
#include <memory>
#include <utility>

namespace
{
apString quoted(std::string const& text)
{
  return APSTRING("\"") + apString::from_utf8(text) + APSTRING("\"");
}
}

axsEntityHandler::axsEntityHandler(bool resolution_disabled, std::function<axsReadError()> place)
  : disabled(resolution_disabled),
    current_place(std::move(place))
{
}

xercesc::InputSource* axsEntityHandler::resolveEntity(xercesc::XMLResourceIdentifier* wanted)
{
  std::string const reference = axsUtf16::to_utf8(wanted->getSystemId());
  axsReadError refused = current_place();
  if (disabled)
  {
    refused.message = APSTRING("The document needs the external entity ") + quoted(reference) +
                      APSTRING(", but external entities are not resolved");
    throw refused;
  }
  apPath const file = axsSystemId::resolve(axsXercesId::path(wanted->getBaseURI()), reference);
  if (file.empty())
  {
    refused.message = APSTRING("The external entity ") + quoted(reference) + APSTRING(" is not a local file");
    throw refused;
  }
  std::string_view bytes;
  std::unique_ptr<axsSource> source;
  try
  {
    source = axsLocalFile::open(file);
    bytes = source->whole();
  }
  catch (axsReadError const& unreadable)
  {
    refused.message = unreadable.message;
    throw refused;
  }
  auto* const copy = new XMLByte[bytes.size() + 1];
  std::copy(bytes.begin(), bytes.end(), copy);
  return new xercesc::MemBufInputSource(copy, bytes.size(), axsXercesId::of(file).c_str(), true);
}
