#pragma once

#include <coExport.h>

#if defined(AXM_BUILDING)
#  define AXM_API CO_SYMBOL_EXPORT
#else
#  define AXM_API CO_SYMBOL_IMPORT
#endif
