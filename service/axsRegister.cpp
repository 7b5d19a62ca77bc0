#include "axsRegister.h"

#include "axsDocumentFactory.h"

#include <utService.h>

#include <memory>

void axs_register()
{
  auto const factory = std::make_shared<axsDocumentFactory>();
  for (char const* const name : {"XMLService", "axs::XMLService"})
    utService::get_instance()->register_service(utServiceName(ut_lit(name)), factory);
}
