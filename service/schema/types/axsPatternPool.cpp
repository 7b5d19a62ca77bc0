#include "axsPatternPool.h"

#include <utility>

// One of the two, as the program needs it.
struct axsPatternPool::Automaton
{
  explicit Automaton(axsPatternProgram const& program)
  {
    if (program.counts())
      counting = std::make_unique<axsPatternCounting>(program);
    else
      states = std::make_unique<axsPatternStates>(program);
  }

  bool matches(std::string_view value) const
  {
    return states != nullptr ? states->matches(value) : counting->matches(value);
  }

  std::unique_ptr<axsPatternStates> states;
  std::unique_ptr<axsPatternCounting> counting;
};

axsPatternPool::~axsPatternPool()
{
  for (std::atomic<Automaton*>& place : kept)
    std::unique_ptr<Automaton>(place.load());
}

// One that fails for want of memory is not kept: it may be half changed.
bool axsPatternPool::matches(std::string_view value)
{
  std::unique_ptr<Automaton> automaton = take();
  bool const is_match = automaton->matches(value);
  keep(std::move(automaton));
  return is_match;
}

std::unique_ptr<axsPatternPool::Automaton> axsPatternPool::take()
{
  for (std::atomic<Automaton*>& place : kept)
    if (place.load(std::memory_order_relaxed) != nullptr)
      if (Automaton* const free = place.exchange(nullptr, std::memory_order_acquire))
        return std::unique_ptr<Automaton>(free);
  return std::make_unique<Automaton>(program);
}

void axsPatternPool::keep(std::unique_ptr<Automaton> automaton) noexcept
{
  for (std::atomic<Automaton*>& place : kept)
  {
    Automaton* none = nullptr;
    if (place.compare_exchange_strong(none, automaton.get(), std::memory_order_release, std::memory_order_relaxed))
    {
      static_cast<void>(automaton.release());
      return;
    }
  }
}
