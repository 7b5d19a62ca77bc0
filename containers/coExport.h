#pragma once

// How a symbol leaves a library of the house and how it enters a program. Each library has a macro of its own, which is
// the first of these while the library itself is built (its build defines NAME_BUILDING) and the second everywhere else.
// AXM_STATIC stands for a static build of all of them.

#if defined(AXM_STATIC)
#  define CO_SYMBOL_EXPORT
#  define CO_SYMBOL_IMPORT
#elif defined(_WIN32)
#  define CO_SYMBOL_EXPORT __declspec(dllexport)
#  define CO_SYMBOL_IMPORT __declspec(dllimport)
#else
#  define CO_SYMBOL_EXPORT __attribute__((visibility("default")))
#  define CO_SYMBOL_IMPORT __attribute__((visibility("default")))
#endif

#if defined(CO_BUILDING)
#  define CO_API CO_SYMBOL_EXPORT
#else
#  define CO_API CO_SYMBOL_IMPORT
#endif
