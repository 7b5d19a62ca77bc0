#include "axsPatternWriter.h"

#include <utility>

using Kind = axsPatternTree::Kind;
using Operation = axsPatternProgram::Operation;

void axsPatternWriter::write()
{
  Index const match = program.add(axsPatternProgram::Instruction());
  push(tree.root, match);
  while (!tasks.empty())
    step();
  program.first = result;
}

void axsPatternWriter::push(Index node, Index after)
{
  Task task;
  task.node = node;
  task.after = after;
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
  {
    axsPatternProgram::Instruction take;
    take.operation = Operation::take;
    take.number = node.set;
    take.next = task.after;
    return finish(program.add(take));
  }
  if (node.kind == Kind::repeat)
  {
    Node const& part = tree[node.first];
    if (counts && axsPatternTree::is_counted(node, part))
      return finish(program.add_counter(node, part.set, task.after));
    task.left = node.max;
    if (node.max != axsPatternTree::unbounded)
      return push(node.first, task.after);
    // What repeats without end leads back to a split, from which it is left.
    task.loop = add_split(task.after, task.after);
    return push(node.first, task.loop);
  }
  for (Index part = node.first; part != axsPatternTree::none; part = tree[part].next)
    task.parts.push_back(part);
  result = task.after;
  Index const last = task.parts.back();
  task.parts.pop_back();
  push(last, task.after);
}

void axsPatternWriter::go_on_with_sequence(Task& task)
{
  if (task.parts.empty())
    return finish(result);
  Index const part = task.parts.back();
  task.parts.pop_back();
  push(part, result);
}

void axsPatternWriter::go_on_with_choice(Task& task)
{
  task.split = task.split == axsPatternTree::none ? result : add_split(result, task.split);
  if (task.parts.empty())
    return finish(task.split);
  Index const part = task.parts.back();
  task.parts.pop_back();
  push(part, task.after);
}

// A copy has been written, the last of those that are run being the first.
void axsPatternWriter::go_on_with_repeat(Task& task)
{
  Node const& node = tree[task.node];
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
    start = is_optional ? add_split(result, task.after) : result;
  }
  if (task.left == 0)
    return finish(start);
  push(node.first, start);
}

axsPatternWriter::Index axsPatternWriter::add_split(Index next, Index other)
{
  axsPatternProgram::Instruction split;
  split.operation = Operation::split;
  split.next = next;
  split.other = other;
  return program.add(split);
}
