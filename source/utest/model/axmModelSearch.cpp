#include "axmModelSearch.h"

#include <algorithm>

using Kind = axmModelKind;

namespace
{
wchar_t const* const names[] = {L"a", L"b", L"c", L"A", L"long-name_1.x", L"\u0444", L"absent"};
wchar_t const* const attribute_names[] = {L"k", L"K", L"id", L"a", L"absent"};
wchar_t const* const values[] = {
  L"", L" ", L"v", L"0", L"  x  ", L"x", L" x ", L"\u0444\u20AC", L"one & two", L"\u0444"};

// Where a node stands in its document: attributes after their element, before its children.
std::vector<int> places(axmModel const& model, int top)
{
  std::vector<int> result(static_cast<std::size_t>(model.size()), -1);
  int place = 0;
  for (int const number : model.subtree(top))
  {
    result[static_cast<std::size_t>(number)] = place++;
    for (int const attribute : model.node(number).attributes)
      result[static_cast<std::size_t>(attribute)] = place++;
  }
  return result;
}

int top_of(axmModel const& model, int number)
{
  while (model.parent(number) != axmModel::none)
    number = model.parent(number);
  return number;
}

bool is_attribute_with(axmModel const& model, int element, std::wstring const& name, std::wstring const& value, bool is)
{
  int const found = model.node(element).kind == Kind::element ? model.find_attribute(element, name) : axmModel::none;
  return found != axmModel::none && (model.node(found).value == value) == is;
}

template <class Wanted>
bool has_child(axmModel const& model, int number, Wanted wanted)
{
  std::vector<int> const& children = model.node(number).children;
  return std::any_of(children.begin(), children.end(), wanted);
}
}

axmModelSearch::axmModelSearch(axmModelRandom& random) : is_absolute(random.once_in(2))
{
  int const count = 1 + random.below(3);
  for (int step = 0; step < count; ++step)
  {
    // A node itself is what a path begins or ends with, not what others stand below.
    bool const is_after_self = step > 0 && steps.back().test == Test::self;
    steps.push_back(drawn_step(random, (step == 0 && !is_absolute) || is_after_self));
    Test const test = steps.back().test;
    steps.back().is_deep = steps.back().is_deep && test != Test::self;
    // Nothing stands below those.
    if (test == Test::attribute || test == Test::any_attribute || test == Test::text)
      break;
  }
}

axmModelSearch::Step axmModelSearch::drawn_step(axmModelRandom& random, bool is_first_of_relative)
{
  Test const tests[] = {Test::name, Test::name, Test::name, Test::name, Test::any, Test::any, Test::attribute,
    Test::any_attribute, Test::text, Test::self, Test::parent};
  Step step = {!is_first_of_relative && random.once_in(2), random.one_of(tests), L"", {}};
  step.name = step.test == Test::attribute ? random.one_of(attribute_names) : random.one_of(names);
  bool const takes_predicates = step.test == Test::name || step.test == Test::any;
  while (takes_predicates && step.predicates.size() < 2 && random.once_in(3))
    step.predicates.push_back(drawn_predicate(random));
  return step;
}

axmModelSearch::Predicate axmModelSearch::drawn_predicate(axmModelRandom& random)
{
  int const conditions = static_cast<int>(Condition::value_is) + 1;
  auto const condition = random.once_in(4) ? Condition::position : static_cast<Condition>(random.below(conditions));
  bool const is_of_child = condition == Condition::has_child || condition == Condition::child_is;
  return {condition, is_of_child ? random.one_of(names) : random.one_of(attribute_names), random.one_of(values),
    1 + random.below(3)};
}

std::wstring axmModelSearch::text() const
{
  std::wstring result;
  for (Step const& step : steps)
  {
    bool const is_first = &step == &steps.front();
    if (step.is_deep)
      result += L"//";
    else if (!is_first || is_absolute)
      result += L"/";
    result += text_of(step);
  }
  return result;
}

std::wstring axmModelSearch::text_of(Step const& step)
{
  wchar_t const* const plain[] = {L"", L"*", L"@", L"@*", L"text()", L".", L".."};
  std::wstring result = plain[static_cast<int>(step.test)];
  if (step.test == Test::name || step.test == Test::attribute)
    result += step.name;
  for (Predicate const& predicate : step.predicates)
    result += L"[" + text_of(predicate) + L"]";
  return result;
}

std::wstring axmModelSearch::text_of(Predicate const& predicate)
{
  std::wstring const number = std::to_wstring(predicate.number);
  std::wstring const value = L"'" + predicate.value + L"'";
  switch (predicate.condition)
  {
  case Condition::position:
    return number;
  case Condition::last:
    return L"last()";
  case Condition::before:
    return L"position() < " + number;
  case Condition::after:
    return L"position()>" + number;
  case Condition::has_attribute:
    return L"@" + predicate.name;
  case Condition::has_no_attribute:
    return L"not(@" + predicate.name + L")";
  case Condition::attribute_is:
    return L"@" + predicate.name + L"=" + value;
  case Condition::attribute_is_not:
    return L"@" + predicate.name + L" != " + value;
  case Condition::has_child:
    return predicate.name;
  case Condition::child_is:
    return predicate.name + L" = " + value;
  case Condition::text_is:
    return L"text()=" + value;
  default:
    return L".=" + value;
  }
}

std::vector<int> axmModelSearch::find(axmModel const& model, int context) const
{
  std::vector<int> const place = places(model, top_of(model, context));
  std::vector<int> found = {is_absolute ? top_of(model, context) : context};
  for (Step const& step : steps)
  {
    std::vector<int> next;
    for (int const from : found)
    {
      std::vector<int> const starts = step.is_deep ? model.subtree(from) : std::vector<int>{from};
      for (int const start : starts)
      {
        std::vector<int> const here = candidates(model, start, step);
        next.insert(next.end(), here.begin(), here.end());
      }
    }
    auto const at = [&place](int number) { return place[static_cast<std::size_t>(number)]; };
    std::sort(next.begin(), next.end(), [&at](int left, int right) { return at(left) < at(right); });
    next.erase(std::unique(next.begin(), next.end()), next.end());
    found = next;
  }
  return found;
}

std::vector<int> axmModelSearch::candidates(axmModel const& model, int from, Step const& step)
{
  axmModelNode const& node = model.node(from);
  if (step.test == Test::self)
    return {from};
  if (step.test == Test::parent)
    return model.parent(from) == axmModel::none ? std::vector<int>() : std::vector<int>{model.parent(from)};
  std::vector<int> found;
  bool const is_attribute = step.test == Test::attribute || step.test == Test::any_attribute;
  for (int const number : is_attribute ? node.attributes : node.children)
  {
    axmModelNode const& candidate = model.node(number);
    bool const is_named = step.test != Test::name && step.test != Test::attribute;
    bool const is_declaration = candidate.kind == Kind::attribute && candidate.name.substr(0, 6) == L"xmlns:";
    bool const is_kind =
      is_attribute ? !is_declaration : candidate.kind == (step.test == Test::text ? Kind::text : Kind::element);
    if (is_kind && (is_named || candidate.name == step.name))
      found.push_back(number);
  }
  for (Predicate const& predicate : step.predicates)
  {
    std::vector<int> kept;
    for (std::size_t index = 0; index < found.size(); ++index)
      if (holds(model, found[index], static_cast<int>(index) + 1, static_cast<int>(found.size()), predicate))
        kept.push_back(found[index]);
    found = kept;
  }
  return found;
}

bool axmModelSearch::holds(axmModel const& model, int node, int position, int last, Predicate const& predicate)
{
  auto const is_named = [&](int child)
  { return model.node(child).kind == Kind::element && model.node(child).name == predicate.name; };
  switch (predicate.condition)
  {
  case Condition::position:
    return position == predicate.number;
  case Condition::last:
    return position == last;
  case Condition::before:
    return position < predicate.number;
  case Condition::after:
    return position > predicate.number;
  case Condition::has_attribute:
    return model.find_attribute(node, predicate.name) != axmModel::none;
  case Condition::has_no_attribute:
    return model.find_attribute(node, predicate.name) == axmModel::none;
  case Condition::attribute_is:
  case Condition::attribute_is_not:
    return is_attribute_with(
      model, node, predicate.name, predicate.value, predicate.condition == Condition::attribute_is);
  case Condition::has_child:
    return has_child(model, node, is_named);
  case Condition::child_is:
    return has_child(model, node, [&](int child) { return is_named(child) && model.text(child) == predicate.value; });
  case Condition::text_is:
    return has_child(model, node,
      [&](int child) { return model.node(child).kind == Kind::text && model.node(child).value == predicate.value; });
  default:
    return model.text(node) == predicate.value;
  }
}
