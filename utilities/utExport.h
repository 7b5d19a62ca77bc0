#pragma once

#include <coExport.h>

#if defined(UT_BUILDING)
#  define UT_API CO_SYMBOL_EXPORT
#else
#  define UT_API CO_SYMBOL_IMPORT
#endif
