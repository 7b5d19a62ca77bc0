#include "BuiltInEngine.h"

#include <axsRegister.h>

std::shared_ptr<axmDocumentFactory> built_in_engine()
{
  axs_register();
  utServiceName resolved;
  return utService::locate_service<axmDocumentFactory>(utServiceName(ut_lit("XMLService")), resolved);
}
