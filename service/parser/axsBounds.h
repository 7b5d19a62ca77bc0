#pragma once

#include <cstddef>
#include <cstdint>

/// How much a document may become by its declarations: entities are expanded so many times, and what they and the
/// defaults of attributes add is bounded once it exceeds `growth_free` bytes, to `growth_limit` times what was read.
class axsBounds
{
public:
  static constexpr std::uint64_t growth_free = std::uint64_t{8} * 1024 * 1024;
  static constexpr std::uint64_t growth_limit = 100;

  /// What a node counts besides its text.
  static constexpr std::uint64_t node_size = 64;

  explicit axsBounds(std::size_t max) noexcept : limit(max) {}

  /// One expansion more. Whether it may be.
  bool expand() noexcept { return ++counted.expansions <= limit; }

  /// So many bytes more than are written. False where that takes a look at how much was read.
  bool grow(std::uint64_t bytes) noexcept
  {
    counted.added += bytes;
    return counted.added <= growth_free;
  }

  /// Whether what was added is too much for a document of which `read` bytes were read.
  bool is_too_large(std::uint64_t read) const noexcept { return counted.added / growth_limit > read; }

  std::size_t max_expansions() const noexcept { return limit; }

  /// What was counted, to be taken back where something is read again.
  struct Count
  {
    std::size_t expansions = 0;
    std::uint64_t added = 0;
  };
  Count count() const noexcept { return counted; }
  void reset(Count to) noexcept { counted = to; }

private:
  std::size_t limit;
  Count counted;
};
