#pragma once

#include "axmDocumentFactory.h"

#include <utService.h>

#include <memory>

namespace axm
{
/// The engine that is registered, empty if there is none: a program that uses the default engine calls axs_register() at
/// its start. Threads: any.
inline std::shared_ptr<axmDocumentFactory> engine()
{
  utServiceName resolved;
  return utService::locate_service<axmDocumentFactory>(utServiceName(ut_lit("XMLService")), resolved);
}

/// What is said where it is needed and there is none.
inline char const* no_engine() noexcept
{
  return "no XML engine is registered; call axs_register() at the start of the program";
}
}
