#pragma once

#include <cstddef>
#include <cstring>

/// The place of a virtual operation among those of its class, counted from 0, read out of a pointer to it: in the C++ ABI
/// of all compilers that the project is built with, such a pointer holds one more than the offset in the virtual table.
/// A virtual destructor takes two places. -1 for an operation that is not virtual.
template <class Operation>
int slot_of(Operation operation)
{
  std::ptrdiff_t raw[2];
  static_assert(sizeof operation == sizeof raw, "a pointer to a member function as the ABI has it");
  std::memcpy(raw, &operation, sizeof raw);
#if defined(__aarch64__) || defined(__arm__)
  bool const is_virtual = (raw[1] & 1) != 0;
  std::ptrdiff_t const offset = raw[0];
#else
  bool const is_virtual = (raw[0] & 1) != 0;
  std::ptrdiff_t const offset = raw[0] - 1;
#endif
  return is_virtual ? static_cast<int>(offset / static_cast<std::ptrdiff_t>(sizeof(void*))) : -1;
}
