#include "axsPatternWriter.h"

#include <utility>

using Kind = axsPatternTree::Kind;
using Operation = axsPatternProgram::Operation;

void axsPatternWriter::write()
{
  Index const match = program.add(axsPatternProgram::Instruction());
  push(tree.root(), match, counts);
  while (!tasks.empty())
    step();
  program.first = result;
}

void axsPatternWriter::push(Index node, Index after, bool may_count)
{
  Task task;
  task.node = node;
  task.after = after;
  task.counts = may_count;
  tasks.push_back(std::move(task));
}

void axsPatternWriter::step()
{
  Task& task = tasks.back();
  if (!task.is_begun)
  {
    task.is_begun = true;
    begin(task);
    return;
  }
  switch (tree[task.node].kind)
  {
  case Kind::sequence:
    go_on_with_sequence(task);
    break;
  case Kind::choice:
    go_on_with_choice(task);
    break;
  default:
    go_on_with_repeat(task);
    break;
  }
}

void axsPatternWriter::finish(Index start)
{
  result = start;
  tasks.pop_back();
}

void axsPatternWriter::begin(Task& task)
{
  Node const& node = tree[task.node];
  if (node.kind == Kind::empty)
    return finish(task.after);
  if (node.kind == Kind::set)
    return finish(add(Operation::take, node.set, task.after, 0));
  if (node.kind == Kind::repeat)
    return begin_repeat(task);
  begin_group(task);
}

void axsPatternWriter::begin_group(Task& task)
{
  for (Index part = tree[task.node].first; part != axsPatternTree::none; part = tree[part].next)
    task.parts.push_back(part);
  Index const last = task.parts.back();
  task.parts.pop_back();
  push(last, task.after, task.counts);
}

void axsPatternWriter::begin_repeat(Task& task)
{
  Node const& node = tree[task.node];
  Node const& part = tree[node.first];
  bool const is_counted = task.counts && node.is_counted;
  if (is_counted && part.kind == Kind::set)
    return finish(program.add_counter(node, part.set, task.after));
  task.left = is_counted ? axsPatternTree::unbounded : node.max;
  if (is_counted)
    task.loop = add(Operation::again, program.add_loop(node.max - node.min), task.after, task.after);
  else if (node.max == axsPatternTree::unbounded)
    // What repeats without end leads back to a split, from which it is left.
    task.loop = add(Operation::split, 0, task.after, task.after);
  else
    return push(node.first, task.after, task.counts);
  push(node.first, task.loop, task.counts && !is_counted);
}

void axsPatternWriter::go_on_with_sequence(Task& task)
{
  if (task.parts.empty())
    return finish(result);
  Index const part = task.parts.back();
  task.parts.pop_back();
  push(part, result, task.counts);
}

void axsPatternWriter::go_on_with_choice(Task& task)
{
  task.split = task.split == axsPatternTree::none ? result : add(Operation::split, 0, result, task.split);
  if (task.parts.empty())
    return finish(task.split);
  Index const part = task.parts.back();
  task.parts.pop_back();
  push(part, task.after, task.counts);
}

// A copy has been written, the last of those that are run being the first.
void axsPatternWriter::go_on_with_repeat(Task& task)
{
  Node const& node = tree[task.node];
  if (task.counts && node.is_counted)
    return go_on_with_loop(task);
  Index start = result;
  if (task.left == axsPatternTree::unbounded)
  {
    program.instructions[task.loop].next = result;
    if (node.min == 0)
      return finish(task.loop);
    task.left = node.min - 1;
  }
  else
  {
    --task.left;
    bool const is_optional = node.max != axsPatternTree::unbounded && task.left >= node.min;
    start = is_optional ? add(Operation::split, 0, result, task.after) : result;
  }
  if (task.left == 0)
    return finish(start);
  push(node.first, start, task.counts);
}

// The loop has been written, or one of the copies before it.
void axsPatternWriter::go_on_with_loop(Task& task)
{
  Node const& node = tree[task.node];
  Index start = result;
  if (task.left == axsPatternTree::unbounded)
  {
    program.instructions[task.loop].next = result;
    start = add(Operation::enter, 0, result, task.after);
    task.left = node.min;
  }
  else
    --task.left;
  if (task.left == 0)
    return finish(start);
  push(node.first, start, task.counts);
}

axsPatternWriter::Index axsPatternWriter::add(Operation operation, Index number, Index next, Index other)
{
  axsPatternProgram::Instruction instruction;
  instruction.operation = operation;
  instruction.number = number;
  instruction.next = next;
  instruction.other = other;
  return program.add(instruction);
}
