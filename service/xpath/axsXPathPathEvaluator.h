#pragma once

#include "axsXPathContext.h"
#include "axsXPathDocumentOrder.h"
#include "axsXPathExpression.h"
#include "axsXPathModel.h"
#include "axsXPathNodeTest.h"
#include "axsXPathVisitor.h"

#include <cstddef>
#include <vector>

class axsXPathEvaluator;

/// Evaluates location paths and filter expressions (XPath 1.0, sections 2 and 3.3), for one evaluation.
///
/// A step whose predicates do not count positions is taken for all its context nodes together, so that no node is visited
/// twice; otherwise for each of them in turn. Every node-set is in document order and holds each node once; it is sorted
/// only where the axis does not keep that order.
class axsXPathPathEvaluator
{
public:
  using Nodes = std::vector<axsXPathNode>;

  /// What of a node-set is wanted: all of it, at least those of its nodes that have children, at least its first node, or
  /// any one node.
  enum Want
  {
    all,
    parents,
    first,
    any
  };

  /// Takes the values of predicates from `values`, and the node tests of the steps, one for each, from `bound`.
  axsXPathPathEvaluator(axsXPathExpression const& evaluated, axsXPathModel& searched,
    std::vector<axsXPathNodeTest> const& bound, axsXPathEvaluator& values) noexcept;

  /// Puts what is wanted of the nodes of a path into `found`, which is empty.
  void select(axsXPathExpression::Path const& path, axsXPathContext const& context, Want want, Nodes& found);

  /// Passes the nodes of a path to `visit`, in any order and perhaps some repeatedly, until that returns true. Returns
  /// whether it did.
  bool visit(axsXPathExpression::Path const& path, axsXPathContext const& context, axsXPathVisitor visit);

  void sort(Nodes& nodes) { order.sort(nodes); }

  /// Lends an empty vector with capacity from earlier use, and takes it back; see axsXPathScratchNodes.
  Nodes borrow();
  void give_back(Nodes&& nodes) noexcept;

private:
  using Expression = axsXPathExpression;
  using Path = axsXPathExpression::Path;
  using Step = axsXPathExpression::Step;
  using Predicate = axsXPathExpression::Predicate;

  void take_start(Path const& path, axsXPathContext const& context, Nodes& nodes);
  axsXPathNodeTest const& test_of(Step const& step) const noexcept;

  bool walk(Step const& step, axsXPathNode from, axsXPathVisitor visit);
  bool walk_counting(Step const& step, axsXPathNode from, axsXPathVisitor visit);
  bool walk_with_size(Step const& step, axsXPathNode from, axsXPathVisitor visit);
  bool passes(Predicate const& predicate, axsXPathContext const& context);
  bool passes_all(Step const& step, axsXPathNode node);
  void filter(int first_predicate, int count, Nodes& nodes);
  void filter(Predicate const& predicate, Nodes& nodes);

  // One step, from nodes in document order to nodes in document order. `no_nesting` says whether it is known that none of
  // the nodes is an ancestor of another: of `from` before the call, of `to` after it.
  void take_step(Step const& step, Nodes const& from, Want want, Nodes& to, bool& no_nesting);
  void step_from_one(Step const& step, axsXPathNode from, Want want, Nodes& to);
  void step_from_each(Step const& step, Nodes const& from, Nodes& to, bool no_nesting);
  void step_to_descendants(Step const& step, Nodes const& from, Want want, Nodes& to, bool& no_nesting);
  void step_to_descendants_of_content(Step const& step, Nodes const& from, Want want, Nodes& to, bool& no_nesting);
  void step_to_ancestors(Step const& step, Nodes const& from, Nodes& to);
  void step_to_following_siblings(Step const& step, Nodes const& from, Nodes& to);
  void step_to_preceding_siblings(Step const& step, Nodes const& from, Nodes& to);
  void step_to_following(Step const& step, Nodes const& from, Nodes& to);
  void step_to_preceding(Step const& step, Nodes const& from, Nodes& to);

  Expression const& expression;
  axsXPathModel& model;
  std::vector<axsXPathNodeTest> const& tests;
  axsXPathEvaluator& evaluator;
  axsXPathDocumentOrder order;
  // Vectors that are not in use, with room for those that are.
  std::vector<Nodes> store;
  std::size_t lent = 0;
  // The positions that predicates have counted to, a stack: those of inner steps on top.
  std::vector<std::size_t> positions;
};
