#pragma once

// The order of the virtual operations of an interface is a promise to engines built separately, for two families of C++
// compilers. One lays operations out in the order of their declaration. The other, the Microsoft compilers', gathers the
// overloads of one name where the first of them is declared and lays them out there in reverse. So a group of overloads
// is listed once, in the order of its slots, through one of these, which declare it reversed where that is needed.

// A line each shows the order best.
// clang-format off
#if defined(_MSC_VER)
#  define AXM_OVERLOADS_2(a, b) b; a
#  define AXM_OVERLOADS_4(a, b, c, d) d; c; b; a
#  define AXM_OVERLOADS_5(a, b, c, d, e) e; d; c; b; a
#else
#  define AXM_OVERLOADS_2(a, b) a; b
#  define AXM_OVERLOADS_4(a, b, c, d) a; b; c; d
#  define AXM_OVERLOADS_5(a, b, c, d, e) a; b; c; d; e
#endif
// clang-format on
