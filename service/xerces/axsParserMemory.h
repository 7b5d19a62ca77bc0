#pragma once

#include "axsStack.h"

#include <xercesc/framework/MemoryManager.hpp>

#include <cstddef>
#include <optional>

/// The parser's memory for one run, with a bound: what a document makes the parser hold at a time cannot be much more
/// than the document itself. Beyond the bound the parser meets the end of memory. What it still holds when the run is
/// over, having been stopped by an exception, goes with this.
class axsParserMemory final : public xercesc::MemoryManager
{
public:
  explicit axsParserMemory(std::size_t most) noexcept : bound(most) {}
  ~axsParserMemory() override;

  xercesc::MemoryManager* getExceptionMemoryManager() override;
  void* allocate(XMLSize_t size) override;
  void deallocate(void* block) override;

  /// Raises the bound.
  void allow(std::size_t more) noexcept { bound += more; }

  /// Whether the bound was met.
  bool exhausted() const noexcept { return was_exhausted; }

  /// From now on, where the stack of this thread nears its end, the parser meets the end of memory as well.
  void watch_stack() noexcept { stack.emplace(); }

  /// Whether it did there.
  bool met_stack() const noexcept { return was_stack_low; }

private:
  struct Block;

  Block* blocks = nullptr;
  std::size_t bound;
  std::size_t used = 0;
  bool was_exhausted = false;
  std::optional<axsStack> stack;
  bool was_stack_low = false;
};
