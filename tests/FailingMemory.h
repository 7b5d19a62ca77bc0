#pragma once

#include <gtest/gtest.h>
#include <new>

/// Whether further allocations fail after the first one that does.
enum class Failures
{
  lasting,
  single
};

/// While it lives, only so many allocations of its thread succeed and every further one fails, or only the next one,
/// whether through new, malloc, calloc or realloc, in the test program as in the libraries it uses. Besides, it counts
/// the blocks that its thread has allocated and not given back. One at a time.
///
/// Linking its source replaces the allocation functions of the program, which the system's loader lets the libraries
/// share; that is so where programs are in ELF format. What the test framework allocates must stay outside of its life.
class FailingMemory
{
public:
  explicit FailingMemory(long allowed, Failures failures = Failures::lasting);
  FailingMemory(FailingMemory const&) = delete;
  FailingMemory& operator=(FailingMemory const&) = delete;
  ~FailingMemory();

  /// Whether an allocation was refused.
  bool has_failed() const;

  /// The blocks allocated since the beginning, less those given back.
  long blocks_held() const;
};

/// Calls `operation` again and again, with one more allocation succeeding each time, until none is refused, and
/// `after` with the FailingMemory after each call. `operation` handles its own failures. Returns how often an allocation
/// was refused.
template <class Operation, class After>
int with_every_failure(Operation operation, After after, Failures failures = Failures::lasting)
{
  for (int allowed = 0;; ++allowed)
  {
    bool failed = false;
    long held = 0;
    {
      FailingMemory const memory(allowed, failures);
      operation();
      failed = memory.has_failed();
      held = memory.blocks_held();
    }
    after(failed, held);
    if (!failed)
      return allowed;
  }
}

/// Calls `operation` with each of its allocations failing in turn and expects it to throw std::bad_alloc then, to leak
/// nothing, and to leave `unchanged()` true; when none fails, to hold nothing either. Returns the number of allocations.
template <class Operation, class Unchanged>
int fails_cleanly(Operation operation, Unchanged unchanged, Failures failures = Failures::lasting)
{
  bool threw = false;
  return with_every_failure(
    [&]
    {
      threw = false;
      try
      {
        operation();
      }
      catch (std::bad_alloc const&)
      {
        threw = true;
      }
    },
    [&](bool failed, long held)
    {
      EXPECT_EQ(threw, failed);
      EXPECT_EQ(held, 0);
      EXPECT_TRUE(!failed || unchanged());
    },
    failures);
}

template <class Operation>
int fails_cleanly(Operation operation, Failures failures = Failures::lasting)
{
  return fails_cleanly(
    operation, [] { return true; }, failures);
}
