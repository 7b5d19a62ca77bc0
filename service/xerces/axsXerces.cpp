#include "axsXerces.h"

#include "axsParserMemory.h"
#include "axsUtf16.h"

#include <xercesc/dom/DOMException.hpp>
#include <xercesc/sax/SAXException.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLException.hpp>

#include <cstdlib>
#include <exception>
#include <mutex>
#include <new>

namespace
{
// The library would refuse every document type declaration if the environment told it so. What a program loads is a
// matter of its arguments, not of its environment.
void enable_doctypes()
{
  char const* const variable = "XERCES_DISABLE_DTD";
  if (std::getenv(variable) == nullptr)
    return;
#if defined(_WIN32)
  _putenv_s(variable, "");
#else
  unsetenv(variable);
#endif
}

[[noreturn]] void fail(axsReadError error, apString const& message)
{
  error.message = message;
  throw error;
}
}

void axsXerces::initialise()
{
  static std::once_flag once;
  std::call_once(once,
    []
    {
      enable_doctypes();
      xercesc::XMLPlatformUtils::Initialize();
    });
}

void axsXerces::run(
  axsParserMemory const& memory, std::function<void()> const& work, std::function<axsReadError()> const& place)
try
{
  work();
}
catch (axsReadError const&)
{
  throw;
}
catch (std::exception const&)
{
  throw;
}
catch (xercesc::OutOfMemoryException const&)
{
  if (memory.met_stack())
    fail(place(), APSTRING("A value is too long to be matched with the pattern of its type"));
  if (memory.exhausted())
    fail(place(), APSTRING("This needs more memory than a document of its size may take"));
  throw std::bad_alloc();
}
catch (xercesc::XMLException const& exception)
{
  fail(place(), axsUtf16::to_string(exception.getMessage()));
}
catch (xercesc::SAXException const& exception)
{
  fail(place(), axsUtf16::to_string(exception.getMessage()));
}
catch (xercesc::DOMException const& exception)
{
  fail(place(), axsUtf16::to_string(exception.getMessage()));
}
catch (...)
{
  fail(place(), APSTRING("The parser failed for no reason that it tells"));
}
