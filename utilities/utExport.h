#pragma once

#include <coExport.h>

#if defined(UT_BUILDING)
#  define UT_API CO_SYMBOL_EXPORT
#  define UT_API_INSTANCE CO_SYMBOL_EXPORT_INSTANCE
#else
#  define UT_API CO_SYMBOL_IMPORT
#  define UT_API_INSTANCE CO_SYMBOL_IMPORT
#endif
