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
// not: the library has it, even if it calls it nowhere. Most compilers for Windows do so with every function of such a
// class; GCC has to be told of each, and by -fkeep-inline-dllexport for its source (CMakeLists.txt).
#if defined(AP_BUILDING) && defined(__MINGW32__)
#  define AP_KEPT CO_SYMBOL_EXPORT
#elif defined(AP_BUILDING) && !defined(_WIN32) && (defined(__GNUC__) || defined(__clang__))
#  define AP_KEPT __attribute__((used, visibility("default")))
#else
#  define AP_KEPT
#endif
