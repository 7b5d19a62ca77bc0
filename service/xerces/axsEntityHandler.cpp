#include "axsEntityHandler.h"

#include "axsSource.h"
#include "axsSystemId.h"
#include "axsUtf16.h"

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
  if (reference.empty() || axsSystemId::is_absolute(reference))
  {
    refused.message =
      APSTRING("The external entity ") + quoted(reference) + APSTRING(" is not a file named relative to the document");
    throw refused;
  }

  apPath const file = axsSystemId::resolve(axsSystemId::path(wanted->getBaseURI()), reference);
  std::string_view bytes;
  std::unique_ptr<axsSource> source;
  try
  {
    source = std::make_unique<axsSource>(file);
    bytes = source->whole();
  }
  catch (axsReadError const& unreadable)
  {
    refused.message = unreadable.message;
    throw refused;
  }
  auto* const copy = new XMLByte[bytes.size() + 1];
  std::copy(bytes.begin(), bytes.end(), copy);
  return new xercesc::MemBufInputSource(copy, bytes.size(), axsSystemId::of(file).c_str(), true);
}
