#pragma once

// How a symbol leaves a library of axm and how it enters a program. Each library has a macro of its own, which is
// the first of these while the library itself is built (its build defines NAME_BUILDING) and the second everywhere else.
// AXM_STATIC stands for a static build of all of them.
//
// For a class template that a library instantiates, compilers differ in where they want to be told: on the declaration
// in the header, which bears NAME_API_INSTANCE, or on the instantiation in the source file, which bears
// CO_SYMBOL_INSTANCE. GCC for Windows exports neither, so there the library has a list of those symbols, NAME.def.

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

#if defined(_WIN32)
#  define CO_SYMBOL_EXPORT_INSTANCE
#else
#  define CO_SYMBOL_EXPORT_INSTANCE CO_SYMBOL_EXPORT
#endif

#if defined(_WIN32) && !(defined(__GNUC__) && !defined(__clang__))
#  define CO_SYMBOL_INSTANCE CO_SYMBOL_EXPORT
#else
#  define CO_SYMBOL_INSTANCE
#endif

#if defined(CO_BUILDING)
#  define CO_API CO_SYMBOL_EXPORT
#  define CO_API_INSTANCE CO_SYMBOL_EXPORT_INSTANCE
#else
#  define CO_API CO_SYMBOL_IMPORT
#  define CO_API_INSTANCE CO_SYMBOL_IMPORT
#endif
