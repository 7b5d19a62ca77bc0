#pragma once

#include <string_view>
#include <vector>

/// A set of characters, as ranges that neither touch nor overlap, in their order.
class axsCharacterSet
{
public:
  struct Range
  {
    char32_t first;
    char32_t last;

    friend bool operator<(Range left, Range right) noexcept
    {
      return left.first != right.first ? left.first < right.first : left.last < right.last;
    }
  };

  static constexpr char32_t largest = 0x10FFFF;

  axsCharacterSet() = default;
  explicit axsCharacterSet(char32_t only) : ranges{{only, only}} {}

  /// Of ranges in any order that may overlap.
  static axsCharacterSet of(std::vector<Range> ranges);

  axsCharacterSet complement() const;
  axsCharacterSet without(axsCharacterSet const& other) const;

  /// In a time that grows with the logarithm of the number of ranges.
  bool contains(char32_t c) const noexcept;

  bool empty() const noexcept { return ranges.empty(); }
  std::vector<Range> const& get() const noexcept { return ranges; }

  friend bool operator<(axsCharacterSet const& left, axsCharacterSet const& right) noexcept
  {
    return left.ranges < right.ranges;
  }

private:
  std::vector<Range> ranges;
};
