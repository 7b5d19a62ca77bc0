#pragma once

#include "axsPatternProgram.h"
#include "axsPatternTree.h"

#include <cstdint>
#include <vector>

/// Writes the instructions of an expression, from its end to its beginning, so that what follows is always known. What is yet to
/// be written waits on a stack of its own, whatever lies in what.
class axsPatternWriter
{
public:
  axsPatternWriter(axsPatternProgram& out, axsPatternTree const& given, bool with_counters) noexcept
    : program(out),
      tree(given),
      counts(with_counters)
  {
  }

  void write();

private:
  using Index = axsPatternProgram::Index;
  using Node = axsPatternTree::Node;

  // A part that is being written: how far, and where it leads to.
  struct Task
  {
    Index node;
    Index after;            // what follows the part
    std::uint64_t left = 0; // of a repeat: the copies not written yet; unbounded before the first one that loops
    Index loop = 0;         // of a repeat without end: its split; of a loop: what leads back
    bool is_begun = false;
    bool counts = false;                // whether repeats in it may be counted
    std::vector<Index> parts;           // of a sequence or choice: those to be written yet
    Index split = axsPatternTree::none; // of a choice: what leads to the parts written
  };

  void push(Index node, Index after, bool counts);
  void step();
  void begin(Task& task);
  void go_on_with_sequence(Task& task);
  void go_on_with_choice(Task& task);
  void begin_repeat(Task& task);
  void begin_group(Task& task);
  void go_on_with_repeat(Task& task);
  void go_on_with_loop(Task& task);
  void finish(Index start);
  Index add(axsPatternProgram::Operation operation, Index number, Index next, Index other);

  axsPatternProgram& program;
  axsPatternTree const& tree;
  bool counts;
  std::vector<Task> tasks;
  Index result = 0; // where the part that was written last begins
};
