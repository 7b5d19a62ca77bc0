#pragma once

#include <cstdint>

/// How much of the thread's stack is left, for what may go down deep and cannot be bounded otherwise. Belongs to the
/// thread that made it.
class axsStack
{
public:
  axsStack() noexcept;

  /// Whether so little is left that a caller should give up. Never where the system does not tell.
  bool is_low() const noexcept;

private:
  std::uintptr_t lowest_good; // addresses below it are among the last of the stack
};
