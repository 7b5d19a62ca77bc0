#pragma once

#include <cstddef>

/// Where arenas have their pages from: the system, or a document that has gone.
///
/// What the system hands out has to be cleared and comes in page by page as it is written to, which can take as long as
/// reading the document that goes into it. So the next document gets what the last one left: of each size from 128 KiB to
/// 2 MiB one block is kept, and of 4 MiB four, less than 20 MiB in all. Smaller ones the heap keeps anyway.
/// Safe from several threads at once.
class axsPageStore
{
public:
  /// Blocks lie at multiples of this.
  static constexpr std::size_t unit = 16 * 1024;

  struct Block
  {
    char* memory;

    /// Whether the system has not handed out its pages yet.
    bool is_fresh;
  };

  /// A block of `size` bytes, `unit` times a power of two. Throws std::bad_alloc when memory runs out.
  static Block take(std::size_t size);

  /// Takes back a block that was taken with that size.
  static void give_back(char* memory, std::size_t size) noexcept;
};
