#pragma once

#include "axsPatternCounting.h"
#include "axsPatternProgram.h"
#include "axsPatternStates.h"

#include <atomic>
#include <cstddef>
#include <memory>
#include <string_view>

/// What matching with one program keeps from one value to the next: as many automata as threads match at a time. Any thread
/// takes one that is free, and makes one if there is none; up to max_kept are kept.
class axsPatternPool
{
public:
  static constexpr std::size_t max_kept = 16;

  explicit axsPatternPool(axsPatternProgram const& of) noexcept : program(of) {}
  axsPatternPool(axsPatternPool const&) = delete;
  axsPatternPool& operator=(axsPatternPool const&) = delete;
  ~axsPatternPool();

  bool matches(std::string_view value);

private:
  struct Automaton;

  std::unique_ptr<Automaton> take();
  void keep(std::unique_ptr<Automaton> automaton) noexcept;

  axsPatternProgram const& program;
  std::atomic<Automaton*> kept[max_kept] = {};
};
