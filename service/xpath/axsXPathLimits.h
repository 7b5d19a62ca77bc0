#pragma once

#include <atomic>
#include <cstdint>

/// How long an evaluation of an XPath expression may work. A plain value.
struct axsXPathLimits
{
  /// The steps that an evaluation may take: a look at a node, at some characters of a text, or the like. Most machines take
  /// more than ten million a second. Zero lets nothing happen.
  std::uint64_t max_steps = 10'000'000'000;

  /// Where it is not null, what it points to is looked at every few thousand steps: another thread stops the evaluation by
  /// making it true. Has to live as long as the evaluation.
  std::atomic<bool> const* stop = nullptr;
};
