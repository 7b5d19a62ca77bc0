// A library with an engine: `axm conform --service LIBRARY` loads it and calls this function.

#include "xml2Factory.h"

#include <axmEngine.h>
#include <utService.h>

#include <memory>

extern "C" void axm_register_engine()
{
  utServiceName const name(ut_lit("XMLService"));
  utService::get_instance()->register_service(name, std::make_shared<xml2Factory>());
}
