#include "axsXPathPathEvaluator.h"

#include "axsXPathEvaluator.h"
#include "axsXPathScratchNodes.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

// Expressions are expression and evaluated as deep as they lie in themselves, and axsXPathParser::nesting_limit bounds that.
// NOLINTBEGIN(misc-no-recursion)

namespace
{
using Axis = axsXPathAxis;

bool is_reverse(Axis axis) noexcept
{
  switch (axis)
  {
  case Axis::ancestor:
  case Axis::ancestor_or_self:
  case Axis::preceding:
  case Axis::preceding_sibling:
    return true;
  default:
    return false;
  }
}

/// Whether only nodes with something below them have a node on the axis.
bool leads_below(Axis axis) noexcept
{
  return axis == Axis::child || axis == Axis::descendant;
}

bool leads_down(Axis axis) noexcept
{
  return axis == Axis::descendant || axis == Axis::descendant_or_self;
}

/// Whether no node on the axis of one node lies in another one.
bool is_axis_without_nesting(Axis axis) noexcept
{
  switch (axis)
  {
  case Axis::attribute:
  case Axis::child:
  case Axis::following_sibling:
  case Axis::namespace_:
  case Axis::parent:
  case Axis::preceding_sibling:
  case Axis::self:
    return true;
  default:
    return false;
  }
}

/// Whether no two nodes have a node on their axes in common, but perhaps the parent.
bool is_own_axis(Axis axis) noexcept
{
  return is_axis_without_nesting(axis) && axis != Axis::following_sibling && axis != Axis::preceding_sibling;
}

/// Whether the nodes on the axes of several nodes, which are in document order, are in document order as well.
bool keeps_order(Axis axis, bool no_nesting) noexcept
{
  switch (axis)
  {
  case Axis::attribute:
  case Axis::namespace_:
  case Axis::self:
    return true;
  case Axis::child:
    return no_nesting;
  default:
    return false;
  }
}

/// Whether the node has siblings and descendants, as attributes and namespaces have not.
bool is_in_content(axsXPathNode node) noexcept
{
  return node.is_virtual() ? node.virtual_node().is_root() : !node.node()->is_attribute();
}

/// The node after `at` in document order, below `base`; null at the end. `inside` becomes null where the walk leaves it.
axsNode* next_below(axsNode& at, axsNode const& base, axsNode const*& inside) noexcept
{
  if (axsNode* const child = at.first_child())
    return child;
  for (axsNode* last = &at; last != nullptr && last != &base; last = last->parent())
  {
    if (last == inside)
      inside = nullptr;
    if (last->next_sibling() != nullptr)
      return last->next_sibling();
  }
  return nullptr;
}

bool lies_in(axsXPathModel const& model, axsXPathNode node, axsXPathNode above) noexcept
{
  while (!node.is_none() && node != above)
    node = model.parent(node);
  return !node.is_none();
}
}

axsXPathPathEvaluator::axsXPathPathEvaluator(axsXPathExpression const& evaluated, axsXPathModel& searched,
  std::vector<axsXPathNodeTest> const& bound, axsXPathEvaluator& values) noexcept
  : expression(evaluated),
    model(searched),
    tests(bound),
    evaluator(values),
    order(searched)
{
}

void axsXPathPathEvaluator::select(Path const& path, axsXPathContext const& context, Want want, Nodes& found)
{
  take_start(path, context, found);
  bool no_nesting = found.size() < 2;
  axsXPathScratchNodes next(*this);
  for (int i = 0; i < path.step_count && !found.empty(); ++i)
  {
    bool const is_last = i + 1 == path.step_count;
    bool const is_parent_enough = !is_last && leads_below(expression.step(path, i + 1).axis);
    next.nodes().clear();
    take_step(expression.step(path, i), found,
      is_last            ? want
      : is_parent_enough ? parents
                         : all,
      next.nodes(), no_nesting);
    found.swap(next.nodes());
  }
}

bool axsXPathPathEvaluator::visit(Path const& path, axsXPathContext const& context, axsXPathVisitor visit)
{
  // The usual predicates, [.='x'] and [@id='x'], need no node-set.
  if (path.start == Path::context && path.step_count == 0)
    return visit(context.node);
  if (path.start == Path::context && path.step_count == 1)
    return walk(expression.step(path, 0), context.node, visit);

  Path before_last = path;
  bool const shares_nothing = path.step_count > 0 && is_own_axis(expression.step(path, path.step_count - 1).axis);
  if (shares_nothing)
    --before_last.step_count;
  axsXPathScratchNodes scratch(*this);
  select(before_last, context, all, scratch.nodes());
  for (axsXPathNode const node : scratch.nodes())
    if (shares_nothing ? walk(expression.step(path, before_last.step_count), node, visit) : visit(node))
      return true;
  return false;
}

axsXPathPathEvaluator::Nodes axsXPathPathEvaluator::borrow()
{
  store.reserve(store.size() + lent + 1);
  Nodes nodes;
  if (!store.empty())
  {
    nodes.swap(store.back());
    store.pop_back();
    nodes.clear();
  }
  ++lent;
  return nodes;
}

void axsXPathPathEvaluator::give_back(Nodes&& nodes) noexcept
{
  --lent;
  store.push_back(std::move(nodes));
}

void axsXPathPathEvaluator::take_start(Path const& path, axsXPathContext const& context, Nodes& nodes)
{
  switch (path.start)
  {
  case Path::context:
    nodes.push_back(context.node);
    break;
  case Path::root:
    nodes.push_back(model.root());
    break;
  case Path::term:
    evaluator.nodes_of(path.start_term, context, all, nodes);
    filter(path.first_predicate, path.predicate_count, nodes);
    break;
  }
}

axsXPathNodeTest const& axsXPathPathEvaluator::test_of(Step const& step) const noexcept
{
  return tests[static_cast<std::size_t>(&step - expression.steps.data())];
}

bool axsXPathPathEvaluator::walk(Step const& step, axsXPathNode from, axsXPathVisitor visit)
{
  if (step.predicate_count == 0)
    return model.walk(step.axis, from, test_of(step), visit);
  if (step.needs_size)
    return walk_with_size(step, from, visit);
  if (step.is_positional)
    return walk_counting(step, from, visit);
  auto consider = [&](axsXPathNode node) { return passes_all(step, node) && visit(node); };
  return model.walk(step.axis, from, test_of(step), consider);
}

bool axsXPathPathEvaluator::walk_counting(Step const& step, axsXPathNode from, axsXPathVisitor visit)
{
  std::size_t const base = positions.size();
  bool is_stopped = false;
  auto consider = [&](axsXPathNode node)
  {
    // Most nodes have none on the axis that passes the test, and nothing is counted.
    if (positions.size() == base)
      positions.resize(base + static_cast<std::size_t>(step.predicate_count), 0);
    bool is_exhausted = false;
    for (int i = 0; i < step.predicate_count; ++i)
    {
      Predicate const& predicate = expression.predicate(step.first_predicate + i);
      std::size_t const position = ++positions[base + static_cast<std::size_t>(i)];
      // After the position that is asked for, no node can pass.
      is_exhausted |= predicate.is_constant && static_cast<double>(position) >= expression.term(predicate.term).number;
      if (!passes(predicate, {node, position, 0}))
        return is_exhausted;
    }
    is_stopped = visit(node);
    return is_stopped || is_exhausted;
  };
  model.walk(step.axis, from, test_of(step), consider);
  positions.resize(base);
  return is_stopped;
}

bool axsXPathPathEvaluator::walk_with_size(Step const& step, axsXPathNode from, axsXPathVisitor visit)
{
  axsXPathScratchNodes scratch(*this);
  Nodes& nodes = scratch.nodes();
  auto keep = [&](axsXPathNode node)
  {
    nodes.push_back(node);
    return false;
  };
  model.walk(step.axis, from, test_of(step), keep);
  filter(step.first_predicate, step.predicate_count, nodes);
  return std::any_of(nodes.begin(), nodes.end(), visit);
}

bool axsXPathPathEvaluator::passes(Predicate const& predicate, axsXPathContext const& context)
{
  if (predicate.is_number)
    return evaluator.number_of(predicate.term, context) == static_cast<double>(context.position);
  return evaluator.boolean_of(predicate.term, context);
}

bool axsXPathPathEvaluator::passes_all(Step const& step, axsXPathNode node)
{
  for (int i = 0; i < step.predicate_count; ++i)
    if (!evaluator.boolean_of(expression.predicate(step.first_predicate + i).term, {node, 1, 1}))
      return false;
  return true;
}

void axsXPathPathEvaluator::filter(int first_predicate, int count, Nodes& nodes)
{
  for (int i = first_predicate; i < first_predicate + count && !nodes.empty(); ++i)
    filter(expression.predicate(i), nodes);
}

void axsXPathPathEvaluator::filter(Predicate const& predicate, Nodes& nodes)
{
  std::size_t const size = nodes.size();
  bool const is_same_for_all = (predicate.uses & ~static_cast<unsigned>(Expression::uses_size)) == 0;
  if (predicate.is_number && is_same_for_all)
  {
    double const position = evaluator.number_of(predicate.term, {nodes.front(), 1, size});
    bool const is_there = position >= 1 && position <= static_cast<double>(size) && position == std::floor(position);
    axsXPathNode const node = is_there ? nodes[static_cast<std::size_t>(position) - 1] : axsXPathNode();
    nodes.clear();
    if (is_there)
      nodes.push_back(node);
    return;
  }

  std::size_t kept = 0;
  for (std::size_t i = 0; i < size; ++i)
    if (passes(predicate, {nodes[i], i + 1, size}))
      nodes[kept++] = nodes[i];
  nodes.resize(kept);
}

void axsXPathPathEvaluator::take_step(Step const& step, Nodes const& from, Want want, Nodes& to, bool& no_nesting)
{
  bool const had_no_nesting = no_nesting;
  if (leads_down(step.axis) && !step.is_positional)
    return step_to_descendants(step, from, want, to, no_nesting);
  if (from.size() == 1)
    step_from_one(step, from.front(), want, to);
  else if (step.is_positional || is_own_axis(step.axis))
    step_from_each(step, from, to, had_no_nesting);
  else if (step.axis == Axis::following)
    step_to_following(step, from, to);
  else if (step.axis == Axis::preceding)
    step_to_preceding(step, from, to);
  else if (step.axis == Axis::following_sibling)
    step_to_following_siblings(step, from, to);
  else if (step.axis == Axis::preceding_sibling)
    step_to_preceding_siblings(step, from, to);
  else
    step_to_ancestors(step, from, to);
  no_nesting = to.size() < 2 ||
               (is_axis_without_nesting(step.axis) && (from.size() == 1 || keeps_order(step.axis, had_no_nesting)) &&
                 (step.axis != Axis::self || had_no_nesting));
}

void axsXPathPathEvaluator::step_from_one(Step const& step, axsXPathNode from, Want want, Nodes& to)
{
  bool const is_backwards = is_reverse(step.axis);
  bool const is_enough = want == any || (want == first && !is_backwards);
  auto keep = [&](axsXPathNode node)
  {
    to.push_back(node);
    return is_enough;
  };
  walk(step, from, keep);
  if (is_backwards)
    std::reverse(to.begin(), to.end());
}

void axsXPathPathEvaluator::step_from_each(Step const& step, Nodes const& from, Nodes& to, bool no_nesting)
{
  auto keep = [&](axsXPathNode node)
  {
    // Siblings have the same parent.
    if (to.empty() || to.back() != node)
      to.push_back(node);
    return false;
  };
  for (axsXPathNode const node : from)
    walk(step, node, keep);
  if (!keeps_order(step.axis, no_nesting))
    order.sort(to);
}

void axsXPathPathEvaluator::step_to_descendants(
  Step const& step, Nodes const& from, Want want, Nodes& to, bool& no_nesting)
{
  if (std::all_of(from.begin(), from.end(), is_in_content))
    return step_to_descendants_of_content(step, from, want, to, no_nesting);

  // Attributes and namespaces have nothing below them, but are themselves what they are.
  axsXPathScratchNodes content(*this);
  std::copy_if(from.begin(), from.end(), std::back_inserter(content.nodes()), is_in_content);
  step_to_descendants_of_content(step, content.nodes(), all, to, no_nesting);
  if (step.axis == Axis::descendant)
    return;
  for (axsXPathNode const node : from)
    if (!is_in_content(node) && model.passes_any(node, test_of(step)) && passes_all(step, node))
      to.push_back(node);
  order.sort(to);
  no_nesting = to.size() < 2;
}

void axsXPathPathEvaluator::step_to_descendants_of_content(
  Step const& step, Nodes const& from, Want want, Nodes& to, bool& no_nesting)
{
  axsXPathNodeTest const& test = test_of(step);
  no_nesting = true;
  // The outermost of the nodes found in which the walk is.
  axsNode const* inside = nullptr;
  auto const keep = [&](axsXPathNode node, axsNode const& at)
  {
    if (want == parents && model.first_below(node) == nullptr)
      return false;
    if (!passes_all(step, node))
      return false;
    to.push_back(node);
    if (inside == nullptr)
      inside = &at;
    else
      no_nesting = false;
    return want == first || want == any;
  };

  for (std::size_t next = 0; next < from.size();)
  {
    axsXPathNode const start = from[next++];
    axsNode& base = axsXPathModel::anchor(start);
    inside = nullptr;
    if (step.axis == Axis::descendant_or_self && model.passes_any(start, test) && keep(start, base))
      return;
    for (axsNode* at = model.first_below(start); at != nullptr;)
    {
      // What lies below another start is passed on the way from that one.
      if (next < from.size() && from[next] == axsXPathNode(at))
        ++next;
      if (model.passes(*at, test) && keep(at, *at))
        return;
      at = next_below(*at, base, inside);
    }
  }
}

void axsXPathPathEvaluator::step_to_ancestors(Step const& step, Nodes const& from, Nodes& to)
{
  axsXPathNodeMap seen;
  for (axsXPathNode const node : from)
  {
    axsXPathNode at = step.axis == Axis::ancestor ? model.parent(node) : node;
    for (; !at.is_none() && seen.insert(at); at = model.parent(at))
      if (model.passes_any(at, test_of(step)) && passes_all(step, at))
        to.push_back(at);
  }
  order.sort(to);
}

void axsXPathPathEvaluator::step_to_following_siblings(Step const& step, Nodes const& from, Nodes& to)
{
  // Of siblings the first one has the following siblings of all.
  axsXPathNodeMap seen_parents;
  auto keep = [&](axsXPathNode node)
  {
    to.push_back(node);
    return false;
  };
  for (axsXPathNode const node : from)
    if (is_in_content(node) && node != model.root() && seen_parents.insert(model.parent(node)))
      walk(step, node, keep);
  order.sort(to);
}

void axsXPathPathEvaluator::step_to_preceding_siblings(Step const& step, Nodes const& from, Nodes& to)
{
  axsXPathNodeMap seen_parents;
  auto keep = [&](axsXPathNode node)
  {
    to.push_back(node);
    return false;
  };
  for (std::size_t i = from.size(); i > 0; --i)
    if (is_in_content(from[i - 1]) && from[i - 1] != model.root() && seen_parents.insert(model.parent(from[i - 1])))
      walk(step, from[i - 1], keep);
  std::reverse(to.begin(), to.end());
  order.sort(to);
}

void axsXPathPathEvaluator::step_to_following(Step const& step, Nodes const& from, Nodes& to)
{
  // What follows any of the nodes follows the one that ends first: the first one, or the innermost one that lies in it
  // before another one ends.
  axsXPathNode earliest = from.front();
  for (std::size_t i = 1; i < from.size() && lies_in(model, from[i], earliest); ++i)
    earliest = from[i];
  step_from_one(step, earliest, all, to);
}

void axsXPathPathEvaluator::step_to_preceding(Step const& step, Nodes const& from, Nodes& to)
{
  // What precedes any of the nodes precedes the last one.
  step_from_one(step, from.back(), all, to);
}

// NOLINTEND(misc-no-recursion)
