#pragma once

#include "axsXPathLimits.h"

#include <algorithm>
#include <cstdint>

/// Counts the steps of one evaluation and ends it where they are too many, or where somebody stops it.
class axsXPathMeter
{
public:
  /// Thrown by spend() where an evaluation ends early; never leaves axsXPathQuery.
  struct End
  {
    /// Whether somebody stopped it; otherwise there were too many steps.
    bool is_stopped;
  };

  explicit axsXPathMeter(axsXPathLimits const& given) noexcept : limits(given), left(given.max_steps) {}
  axsXPathMeter(axsXPathMeter const&) = delete;
  axsXPathMeter& operator=(axsXPathMeter const&) = delete;

  void spend(std::uint64_t steps = 1)
  {
    if (steps > at_hand)
      return spend_beyond(steps);
    at_hand -= steps;
  }

private:
  void spend_beyond(std::uint64_t steps)
  {
    if (limits.stop != nullptr && limits.stop->load(std::memory_order_relaxed))
      throw End{true};
    left += at_hand;
    if (steps > left)
      throw End{false};
    left -= steps;
    at_hand = std::min<std::uint64_t>(left, 4096);
    left -= at_hand;
  }

  axsXPathLimits const limits;
  // What can be spent before the next look at whether it is to stop, and what there is beyond.
  std::uint64_t at_hand = 0;
  std::uint64_t left;
};
