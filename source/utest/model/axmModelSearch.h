#pragma once

#include "axmModel.h"
#include "axmModelRandom.h"

#include <string>
#include <vector>

// A search of a subset of XPath 1.0 and what it must find: the judge of axmSearchUtest. Paths, absolute or not, of steps
// to children or, with "//", to all descendants: by name, *, @name, @*, text(), . and .., with conditions on positions,
// attributes and texts. Not installed.
class axmModelSearch
{
public:
  // Draws a search that may find something in the documents of axmModelSource.
  explicit axmModelSearch(axmModelRandom& random);

  // As an expression.
  std::wstring text() const;

  // What it finds from the node `context`: each node once, in document order; attributes of one element in any order.
  std::vector<int> find(axmModel const& model, int context) const;

private:
  enum class Test
  {
    name,
    any,
    attribute,
    any_attribute,
    text,
    self,
    parent
  };

  enum class Condition
  {
    position,
    last,
    before,
    after,
    has_attribute,
    has_no_attribute,
    attribute_is,
    attribute_is_not,
    has_child,
    child_is,
    text_is,
    value_is
  };

  struct Predicate
  {
    Condition condition;
    std::wstring name;
    std::wstring value;
    int number;
  };

  struct Step
  {
    bool is_deep;
    Test test;
    std::wstring name;
    std::vector<Predicate> predicates;
  };

  static Step drawn_step(axmModelRandom& random, bool is_first_of_relative);
  static Predicate drawn_predicate(axmModelRandom& random);
  static std::wstring text_of(Step const& step);
  static std::wstring text_of(Predicate const& predicate);
  static std::vector<int> candidates(axmModel const& model, int from, Step const& step);
  static bool holds(axmModel const& model, int node, int position, int last, Predicate const& predicate);

  bool is_absolute;
  std::vector<Step> steps;
};
