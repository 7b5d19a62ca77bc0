#pragma once

#include <coExport.h>

#if defined(AP_BUILDING)
#  define AP_API CO_SYMBOL_EXPORT
#else
#  define AP_API CO_SYMBOL_IMPORT
#endif
