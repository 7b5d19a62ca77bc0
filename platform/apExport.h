#pragma once

#include <coExport.h>

#if defined(AP_BUILDING)
#  define AP_API CO_SYMBOL_EXPORT
#  define AP_API_INSTANCE CO_SYMBOL_EXPORT_INSTANCE
#else
#  define AP_API CO_SYMBOL_IMPORT
#  define AP_API_INSTANCE CO_SYMBOL_IMPORT
#endif
