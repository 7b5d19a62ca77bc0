#pragma once

#include <coExport.h>

#if defined(AXS_BUILDING)
#  define AXS_API CO_SYMBOL_EXPORT
#else
#  define AXS_API CO_SYMBOL_IMPORT
#endif
