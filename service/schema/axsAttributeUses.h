#pragma once

#include "axsAttributeUse.h"
#include "axsSchemaNameTable.h"

#include <cstddef>
#include <iterator>
#include <memory>
#include <string_view>
#include <vector>

/// The {attribute uses} of a complex type (Part 1, 3.4.1), numbered from 0. Immutable. Types that inherit them share them:
/// a type that is derived by extension takes memory for its own ones, and for a few copies of others.
class axsAttributeUses
{
public:
  class iterator
  {
  public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = axsAttributeUse;
    using difference_type = std::ptrdiff_t;
    using pointer = axsAttributeUse const*;
    using reference = axsAttributeUse const&;

    iterator() = default;
    iterator(axsAttributeUses const& of, std::size_t first_block) : uses(&of), block(first_block) {}

    reference operator*() const { return uses->blocks[block].block->uses[at]; }
    pointer operator->() const { return &**this; }
    iterator& operator++()
    {
      if (++at == uses->blocks[block].block->uses.size())
      {
        ++block;
        at = 0;
      }
      return *this;
    }
    iterator operator++(int)
    {
      iterator const before = *this;
      ++*this;
      return before;
    }
    friend bool operator==(iterator const& left, iterator const& right) noexcept
    {
      return left.block == right.block && left.at == right.at;
    }
    friend bool operator!=(iterator const& left, iterator const& right) noexcept { return !(left == right); }

  private:
    axsAttributeUses const* uses = nullptr;
    std::size_t block = 0;
    std::size_t at = 0;
  };

  static constexpr std::size_t none = static_cast<std::size_t>(-1);

  axsAttributeUses() = default;

  /// Of names that are all different.
  explicit axsAttributeUses(std::vector<axsAttributeUse> own);

  /// Those of `base`, and after them `own`, whose names `base` does not have.
  axsAttributeUses(axsAttributeUses const& base, std::vector<axsAttributeUse> own);

  std::size_t size() const noexcept
  {
    return blocks.empty() ? 0 : blocks.back().begin + blocks.back().block->uses.size();
  }
  bool empty() const noexcept { return blocks.empty(); }
  axsAttributeUse const& operator[](std::size_t number) const noexcept;
  iterator begin() const { return {*this, 0}; }
  iterator end() const { return {*this, blocks.size()}; }

  /// The number of the use of that name; none if there is none.
  std::size_t find(std::string_view name_space, std::string_view local) const;

  /// Those that it does not share with `other`, and maybe some that it does.
  std::vector<axsAttributeUse> not_shared_with(axsAttributeUses const& other) const;

  /// Whether they are the very same as `other` holds.
  bool is_shared_with(axsAttributeUses const& other) const noexcept;

private:
  // Uses that were added together.
  struct Block
  {
    std::vector<axsAttributeUse> uses;
    axsSchemaNameTable<std::size_t> numbers; // of more than a few
  };

  struct Part
  {
    std::shared_ptr<Block const> block;
    std::size_t begin; // the number of its first use
  };

  void add(std::vector<axsAttributeUse> own);
  static std::shared_ptr<Block const> make(std::vector<axsAttributeUse> uses);

  // Each block is larger than the next one, so that there are few.
  std::vector<Part> blocks;
};
