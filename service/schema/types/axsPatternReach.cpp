#include "axsPatternReach.h"

#include <algorithm>

using Operation = axsPatternProgram::Operation;

axsPatternReach::axsPatternReach(axsPatternProgram const& of)
  : program(of),
    marks(of.size(), 0),
    rounds(of.loops().empty() ? 0 : of.size(), 0)
{
}

void axsPatternReach::clear()
{
  taking.clear();
  counting.clear();
  matched = false;
  if (++pass == 0)
  {
    std::fill(marks.begin(), marks.end(), 0);
    pass = 1;
  }
}

void axsPatternReach::add(Index from, std::uint64_t in_round)
{
  waiting.push_back({from, in_round});
  while (!waiting.empty())
  {
    Waiting const next = waiting.back();
    waiting.pop_back();
    bool const is_new = marks[next.index] != pass;
    if (!mark(next.index, next.round))
      continue;
    ++looked_at;
    visit(next.index, next.round, is_new);
  }
}

// Whether the instruction has not been reached yet, or only in a higher round.
bool axsPatternReach::mark(Index index, std::uint64_t in_round)
{
  if (marks[index] == pass && round_of(index) <= in_round)
    return false;
  marks[index] = pass;
  if (!rounds.empty())
    rounds[index] = in_round;
  return true;
}

void axsPatternReach::visit(Index index, std::uint64_t in_round, bool is_new)
{
  axsPatternProgram::Instruction const& instruction = program[index];
  switch (instruction.operation)
  {
  case Operation::take:
    if (is_new)
      taking.push_back(index);
    break;
  case Operation::count:
    counting.push_back(instruction.number);
    if (program.counters()[instruction.number].min == 0)
      waiting.push_back({instruction.next, 0});
    break;
  case Operation::split:
    waiting.push_back({instruction.other, in_round});
    waiting.push_back({instruction.next, in_round});
    break;
  case Operation::enter:
    waiting.push_back({instruction.other, 0});
    waiting.push_back({instruction.next, 1});
    break;
  case Operation::again:
    waiting.push_back({instruction.other, 0});
    if (in_round < program.loops()[instruction.number])
      waiting.push_back({instruction.next, in_round + 1});
    break;
  case Operation::match:
    matched = true;
    break;
  }
}
