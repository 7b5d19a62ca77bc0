#include "axsPatternReach.h"

#include <algorithm>

using Operation = axsPatternProgram::Operation;

void axsPatternReach::clear()
{
  taking.clear();
  counting.clear();
  matched = false;
  if (++round == 0)
  {
    std::fill(marks.begin(), marks.end(), 0);
    round = 1;
  }
}

void axsPatternReach::add(Index from)
{
  waiting.push_back(from);
  while (!waiting.empty())
  {
    Index const index = waiting.back();
    waiting.pop_back();
    if (marks[index] == round)
      continue;
    marks[index] = round;
    ++looked_at;
    visit(index);
  }
}

void axsPatternReach::visit(Index index)
{
  axsPatternProgram::Instruction const& instruction = program[index];
  switch (instruction.operation)
  {
  case Operation::take:
    taking.push_back(index);
    break;
  case Operation::count:
    counting.push_back(instruction.number);
    if (program.counters()[instruction.number].min == 0)
      waiting.push_back(instruction.next);
    break;
  case Operation::split:
    waiting.push_back(instruction.other);
    waiting.push_back(instruction.next);
    break;
  case Operation::match:
    matched = true;
    break;
  }
}
