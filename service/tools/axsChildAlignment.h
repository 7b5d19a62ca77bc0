#pragma once

#include "axsFlatTree.h"

#include <cstddef>
#include <cstdint>
#include <vector>

/// Finds which children of an element correspond to which of another one, in their order: as many as possible that are
/// equal, then of those between them such with one name and one id, then such with one name.
///
/// What the beginnings and ends of the lists have in common is found first, then what is there once in each of them, which
/// is what long lists of records are made of. Short lists that are left are searched whole. So the time is linear in the
/// lists, but for sorting.
class axsChildAlignment
{
public:
  static constexpr std::size_t none = ~std::size_t{0};

  /// All must live longer.
  axsChildAlignment(axsFlatTree const& first, std::vector<std::size_t> const& before, axsFlatTree const& second,
    std::vector<std::size_t> const& after);

  /// For each of the first list its place in the second one, none where nothing corresponds to it; in ascending order.
  std::vector<std::size_t> matches();

private:
  // In what order likenesses are looked for.
  enum class Likeness
  {
    equal,
    same_id,
    same_name
  };

  struct Range
  {
    std::size_t begin_before;
    std::size_t end_before;
    std::size_t begin_after;
    std::size_t end_after;

    bool is_open() const { return begin_before < end_before && begin_after < end_after; }
  };

  struct Pair
  {
    std::size_t before;
    std::size_t after;
  };

  // Two have the same key where they are alike; 0 is like nothing.
  using Keys = std::vector<std::uint64_t>;

  static Keys keys_of(axsFlatTree const& tree, std::vector<std::size_t> const& nodes, Likeness likeness);

  std::vector<Range> align(std::vector<Range> const& ranges, Likeness likeness);
  void trim(Range& range);
  std::vector<Pair> find_common(Range const& range) const;
  std::vector<Pair> find_unique(Range const& range) const;
  bool are_alike(std::size_t before, std::size_t after) const
  {
    return keys_before[before] != 0 && keys_before[before] == keys_after[after];
  }

  axsFlatTree const& tree_before;
  std::vector<std::size_t> const& nodes_before;
  axsFlatTree const& tree_after;
  std::vector<std::size_t> const& nodes_after;
  Keys keys_before;
  Keys keys_after;
  std::vector<std::size_t> found;
};
