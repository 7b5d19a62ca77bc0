#include "axsXPathFunction.h"

#include "axsXPathExpression.h"

#include <algorithm>
#include <iterator>

namespace
{
using F = axsXPathFunction;
using T = axsXPathType;
using E = axsXPathExpression;

F const functions[] = {
  {F::last, "last", T::number, 0, 0, false, E::uses_size, false},
  {F::position, "position", T::number, 0, 0, false, E::uses_position, false},
  {F::count, "count", T::number, 1, 1, true, E::uses_nothing, false},
  {F::id, "id", T::node_set, 1, 1, false, E::uses_nothing, false},
  {F::local_name, "local-name", T::string, 0, 1, true, E::uses_nothing, true},
  {F::namespace_uri, "namespace-uri", T::string, 0, 1, true, E::uses_nothing, true},
  {F::name, "name", T::string, 0, 1, true, E::uses_nothing, true},
  {F::string, "string", T::string, 0, 1, false, E::uses_nothing, true},
  {F::concat, "concat", T::string, 2, -1, false, E::uses_nothing, false},
  {F::starts_with, "starts-with", T::boolean, 2, 2, false, E::uses_nothing, false},
  {F::contains, "contains", T::boolean, 2, 2, false, E::uses_nothing, false},
  {F::substring_before, "substring-before", T::string, 2, 2, false, E::uses_nothing, false},
  {F::substring_after, "substring-after", T::string, 2, 2, false, E::uses_nothing, false},
  {F::substring, "substring", T::string, 2, 3, false, E::uses_nothing, false},
  {F::string_length, "string-length", T::number, 0, 1, false, E::uses_nothing, true},
  {F::normalize_space, "normalize-space", T::string, 0, 1, false, E::uses_nothing, true},
  {F::translate, "translate", T::string, 3, 3, false, E::uses_nothing, false},
  {F::boolean, "boolean", T::boolean, 1, 1, false, E::uses_nothing, false},
  {F::not_, "not", T::boolean, 1, 1, false, E::uses_nothing, false},
  {F::true_, "true", T::boolean, 0, 0, false, E::uses_nothing, false},
  {F::false_, "false", T::boolean, 0, 0, false, E::uses_nothing, false},
  {F::lang, "lang", T::boolean, 1, 1, false, E::uses_node, false},
  {F::number, "number", T::number, 0, 1, false, E::uses_nothing, true},
  {F::sum, "sum", T::number, 1, 1, true, E::uses_nothing, false},
  {F::floor, "floor", T::number, 1, 1, false, E::uses_nothing, false},
  {F::ceiling, "ceiling", T::number, 1, 1, false, E::uses_nothing, false},
  {F::round, "round", T::number, 1, 1, false, E::uses_nothing, false},
};
}

axsXPathFunction const* axsXPathFunction::find(std::string_view name) noexcept
{
  auto const* const found = std::find_if(
    std::begin(functions), std::end(functions), [name](axsXPathFunction const& f) { return f.text == name; });
  return found == std::end(functions) ? nullptr : found;
}
