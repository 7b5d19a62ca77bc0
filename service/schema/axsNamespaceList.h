#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// Names of namespaces, those that a wildcard lists (Part 1, 3.10.1), each once; the empty one stands for "absent".
/// Immutable. Lists that are made of others share with them what they have in common: one that has a few names more, or
/// less, takes memory for these, and for a few copies of others.
class axsNamespaceList
{
public:
  axsNamespaceList() = default;

  /// Of names in any order.
  explicit axsNamespaceList(std::vector<std::string> names);

  std::size_t size() const noexcept;
  bool empty() const noexcept { return size() == 0; }
  bool has(std::string_view name) const noexcept;
  bool has_all_of(axsNamespaceList const& other) const;

  /// All names, sorted; they live as long as a list that has them.
  std::vector<std::string_view> names() const;

  /// The names of both lists, or those that both have.
  axsNamespaceList with(axsNamespaceList const& other) const;
  axsNamespaceList common_with(axsNamespaceList const& other) const;

  axsNamespaceList without(std::string_view name) const;

  /// The same for all copies of a list, as long as one of them lives; null for one that is made of several or is empty.
  void const* identity() const noexcept
  {
    return blocks.size() == 1 && left_out.empty() ? blocks.front().get() : nullptr;
  }

  friend bool operator==(axsNamespaceList const& left, axsNamespaceList const& right)
  {
    return left.size() == right.size() && left.has_all_of(right);
  }
  friend bool operator!=(axsNamespaceList const& left, axsNamespaceList const& right) { return !(left == right); }

private:
  // Names that were added together, sorted.
  using Block = std::vector<std::string>;

  bool is_left_out(std::string_view name) const noexcept;
  bool shares(std::shared_ptr<Block const> const& block) const noexcept;
  void add(Block names);
  template <class Visit>
  void for_each(Visit visit) const;
  Block missing_of(axsNamespaceList const& other) const;

  // No two have a name in common. Each is larger than the next one, so that there are few.
  std::vector<std::shared_ptr<Block const>> blocks;
  std::vector<std::string> left_out; // of the names in the blocks
};
