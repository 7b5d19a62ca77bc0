#include "BuiltInEngine.h"

std::shared_ptr<axmDocumentFactory> built_in_engine()
{
  return nullptr;
}
