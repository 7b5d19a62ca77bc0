#pragma once

#include <coExport.h>

#if defined(AP_BUILDING)
#  define AP_API CO_SYMBOL_EXPORT
#  define AP_API_INSTANCE CO_SYMBOL_EXPORT_INSTANCE
#else
#  define AP_API CO_SYMBOL_IMPORT
#  define AP_API_INSTANCE CO_SYMBOL_IMPORT
#endif

// Of a function of an exported class that is inline and exported nevertheless, for programs that were built when it was
// not: the library has it, even if it calls it nowhere. An exported class of a DLL has all its functions anyway.
#if defined(AP_BUILDING) && !defined(_WIN32) && (defined(__GNUC__) || defined(__clang__))
#  define AP_KEPT __attribute__((used, visibility("default")))
#else
#  define AP_KEPT
#endif
