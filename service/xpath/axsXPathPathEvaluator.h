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

/// Finds the nodes that paths lead to, for one evaluation.
///
/// A step is taken for all its context nodes together where its predicates do not count positions, so that no node is
/// looked at twice; otherwise for one after the other. Every node-set is in document order and holds each node once, and
/// is only sorted where the axis does not lead there by itself.
class axsXPathPathEvaluator
{
public:
  using Nodes = std::vector<axsXPathNode>;

  /// What of a node-set is wanted: all of it, at least those nodes that have something below them, at least the first
  /// node, or any node if there is one.
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

  /// Shows the nodes of a path in any order, perhaps some of them repeatedly, until `visit` says to stop. Returns whether
  /// it did.
  bool visit(axsXPathExpression::Path const& path, axsXPathContext const& context, axsXPathVisitor visit);

  void sort(Nodes& nodes) { order.sort(nodes); }

  /// An empty vector with room from earlier use, and its way back.
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

  // One step, from nodes in document order to such. `no_nesting` says whether it is known that none of the nodes lies in
  // another, before and after it.
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
  // The positions that predicates are counting, those of inner ones behind those of outer ones.
  std::vector<std::size_t> positions;
};
