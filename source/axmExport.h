#pragma once

#include <coExport.h>

#if defined(AXM_BUILDING)
#  define AXM_API CO_SYMBOL_EXPORT
#  define AXM_API_INSTANCE CO_SYMBOL_EXPORT_INSTANCE
#else
#  define AXM_API CO_SYMBOL_IMPORT
#  define AXM_API_INSTANCE CO_SYMBOL_IMPORT
#endif
