#include "Engine.h"

#include <axsRegister.h>

std::shared_ptr<axmDocumentFactory> engine()
{
  static std::shared_ptr<axmDocumentFactory> const factory = []
  {
    axs_register();
    utServiceName resolved;
    return utService::locate_service<axmDocumentFactory>(utServiceName(ut_lit("XMLService")), resolved);
  }();
  return factory;
}
