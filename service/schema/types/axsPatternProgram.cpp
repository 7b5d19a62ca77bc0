#include "axsPatternProgram.h"

#include "axsPatternWriter.h"

#include <string>
#include <utility>

std::unique_ptr<axsPatternProgram const> axsPatternProgram::build(axsPatternTree&& tree, axsPattern::Fault& fault)
{
  axsPatternTree::Node const& root = tree[tree.root()];
  bool const counts = root.cost > max_written_out;
  if (counts && root.counted_cost > max_instructions)
  {
    fault.character = 1;
    fault.text = "its quantifiers multiply to more than " + std::to_string(max_instructions) + " parts";
    return nullptr;
  }
  std::unique_ptr<axsPatternProgram> program(new axsPatternProgram(tree.take_characters()));
  axsPatternWriter(*program, tree, counts).write();
  return program;
}

axsPatternProgram::axsPatternProgram(std::vector<axsCharacterSet>&& of) : sets(std::move(of)), alike(sets) {}

axsPatternProgram::Index axsPatternProgram::add(Instruction const& instruction)
{
  instructions.push_back(instruction);
  return static_cast<Index>(instructions.size() - 1);
}

axsPatternProgram::Index axsPatternProgram::add_counter(axsPatternTree::Node const& repeat, Index set, Index next)
{
  Counter counter;
  counter.min = repeat.min;
  counter.max = repeat.max;
  counter.set = set;
  counter.next = next;
  counting.push_back(counter);
  Instruction count;
  count.operation = Operation::count;
  count.next = next;
  count.number = static_cast<Index>(counting.size() - 1);
  return add(count);
}

axsPatternProgram::Index axsPatternProgram::add_loop(std::uint64_t max_rounds)
{
  rounds.push_back(max_rounds);
  return static_cast<Index>(rounds.size() - 1);
}
