#pragma once

#include <cstddef>

class axsInputBuffer;

/// Watches what declarations add to a document that is scanned: entities, and values that are not written.
///
/// axsXercesParser bounds what a document becomes. The scanner stops long before that, and never where it would not: what
/// is written, with the size of a pointer for each element and attribute, as that counts, is at most three times the document.
class axsGrowth
{
public:
  /// What a document becomes is bounded to `limit` times its size once that exceeds `free` bytes.
  static constexpr std::size_t free = std::size_t{8} * 1024 * 1024;
  static constexpr std::size_t limit = 100;

  /// Of the document in `window`, which must live longer.
  explicit axsGrowth(axsInputBuffer const& window) noexcept : document(window) {}

  /// Whether so much more may be added.
  bool add(std::size_t bytes) noexcept;

private:
  axsInputBuffer const& document;
  std::size_t added = 0;
};
