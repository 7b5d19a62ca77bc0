#pragma once

#include <xercesc/framework/MemoryManager.hpp>

#include <cstddef>

/// The parser's memory for one run, with a bound: what a document makes the parser hold at a time cannot be much more
/// than the document itself. Beyond the bound the parser meets the end of memory.
class axsParserMemory final : public xercesc::MemoryManager
{
public:
  explicit axsParserMemory(std::size_t most) noexcept : bound(most) {}

  xercesc::MemoryManager* getExceptionMemoryManager() override;
  void* allocate(XMLSize_t size) override;
  void deallocate(void* block) override;

  /// Raises the bound, as more of a document becomes known.
  void allow(std::size_t more) noexcept { bound += more; }

  /// Whether the bound was met.
  bool exhausted() const noexcept { return was_exhausted; }

private:
  std::size_t bound;
  std::size_t used = 0;
  bool was_exhausted = false;
};
