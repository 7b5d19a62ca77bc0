#include "axmDocumentFactory.h"

axmDocumentFactory::axmDocumentFactory() = default;
axmDocumentFactory::~axmDocumentFactory() = default;

template AXM_API std::shared_ptr<axmDocumentFactory> utService::locate_service<axmDocumentFactory>(
  utServiceName const& name, utServiceName& resolved);
