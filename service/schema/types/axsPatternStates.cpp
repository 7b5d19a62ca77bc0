#include "axsPatternStates.h"

#include "axsCodePoint.h"

#include <algorithm>
#include <cstring>

axsPatternStates::axsPatternStates(axsPatternProgram const& of) : program(of), reach(of) {}

bool axsPatternStates::matches(std::string_view value)
{
  std::size_t const classes = program.classes().count();
  Index state = start();
  for (std::size_t at = 0; at < value.size();)
  {
    char32_t const c = axsCodePoint::next(value, at);
    if (c > axsCharacterSet::largest)
      return false;
    Index const of_class = program.classes().of(c);
    Index next = transitions[state * classes + of_class];
    if (next == unknown)
      next = make_next(state, of_class);
    if (next == dead)
      return false;
    state = next;
  }
  return is_accepting(state);
}

axsPatternStates::Index axsPatternStates::start()
{
  if (first == unknown)
  {
    reach.clear();
    reach.add(program.start(), 0);
    first = number_of_reached();
  }
  return first;
}

// The state after a character. `state` gets another number if states were forgotten.
axsPatternStates::Index axsPatternStates::make_next(Index& state, Index of_class)
{
  if (memory > max_memory)
    forget_all_but(state);
  std::string_view const instructions = states[state].substr(1);
  reach.clear();
  for (std::size_t at = 0; at < instructions.size(); at += sizeof(Index))
  {
    Index index = 0;
    std::memcpy(&index, instructions.data() + at, sizeof index);
    if (program.has(program[index].number, of_class))
      reach.add(program[index].next, 0);
  }
  bool const is_dead = reach.takes().empty() && !reach.matches();
  Index const next = is_dead ? dead : number_of_reached();
  transitions[state * program.classes().count() + of_class] = next;
  return next;
}

axsPatternStates::Index axsPatternStates::number_of_reached()
{
  sorted = reach.takes();
  std::sort(sorted.begin(), sorted.end());
  bytes.assign(1, reach.matches() ? '\1' : '\0');
  if (!sorted.empty())
    bytes.append(reinterpret_cast<char const*>(sorted.data()), sorted.size() * sizeof(Index));
  std::size_t const before = states.size();
  std::size_t const number = states.insert(bytes);
  std::size_t const needed = states.size() * program.classes().count();
  if (transitions.size() < needed)
  {
    if (transitions.capacity() < needed)
      transitions.reserve(std::max(needed, transitions.capacity() * 2));
    transitions.resize(needed, unknown);
  }
  if (number == before)
    memory += bytes.size() + program.classes().count() * sizeof(Index) + 64;
  return static_cast<Index>(number);
}

void axsPatternStates::forget_all_but(Index& state)
{
  bytes = states[state];
  states = axsValueSet();
  transitions.assign(program.classes().count(), unknown);
  memory = 0;
  first = unknown;
  state = static_cast<Index>(states.insert(bytes));
}
