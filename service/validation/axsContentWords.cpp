#include "axsContentWords.h"

#include "axsElementDecl.h"
#include "axsKnownName.h"
#include "axsName.h"
#include "axsWildcard.h"

#include <algorithm>
#include <vector>

namespace
{
using Expected = axsContentStack::Expected;

std::string in_space(std::string_view name_space)
{
  return name_space.empty() ? " in no namespace" : " of the namespace '" + std::string(name_space) + "'";
}

std::string of_wildcard(axsWildcard const& wildcard)
{
  if (wildcard.kind == axsWildcard::Namespaces::any)
    return "any element";
  if (wildcard.kind == axsWildcard::Namespaces::not_one)
    return "an element of another namespace";
  if (wildcard.spaces.empty())
    return "";
  return "an element" + in_space(wildcard.spaces.names().front()) +
         (wildcard.spaces.size() > 1 ? " or some others" : "");
}

bool differs_in_namespace_only(axsSchemaName const& name, axsKnownName const* child)
{
  return child != nullptr && name.local == child->name->local();
}

// A name is told with its namespace if that is what it differs in from the child.
std::vector<std::string> items_of(Expected const& expected, axsKnownName const* child)
{
  std::vector<std::string> items;
  for (axsContentItem const* const item : expected.items)
  {
    std::string text;
    if (item->names == nullptr)
      text = of_wildcard(*item->wildcard->wildcard);
    else
    {
      axsSchemaName const& name = item->names->decl->name;
      text = "'" + name.local + "'" + (differs_in_namespace_only(name, child) ? in_space(name.name_space) : "");
    }
    if (!text.empty() && std::find(items.begin(), items.end(), text) == items.end())
      items.push_back(text);
  }
  if (!expected.is_whole || items.size() > axsContentWords::max_names)
  {
    items.resize(std::min(items.size(), axsContentWords::max_names - 1));
    items.emplace_back("others");
  }
  else if (expected.may_end)
    items.emplace_back("the end of the element");
  return items;
}

std::string listed(Expected const& expected, axsKnownName const* child)
{
  std::vector<std::string> const items = items_of(expected, child);
  std::string list;
  for (std::size_t i = 0; i < items.size(); ++i)
    list += (i == 0 ? "; expected is " : i + 1 == items.size() ? " or " : ", ") + items[i];
  return list;
}
}

std::string axsContentWords::wrong_child(
  axsKnownName const& child, axsKnownName const& parent, Expected const& expected)
{
  bool const is_named_so = std::any_of(expected.items.begin(), expected.items.end(),
    [&](axsContentItem const* item)
    { return item->names != nullptr && differs_in_namespace_only(item->names->decl->name, &child); });
  return "element '" + std::string(child.name->local()) + "'" + (is_named_so ? in_space(child.name_space) : "") +
         " may not stand here in '" + std::string(parent.name->local()) + "'" + listed(expected, &child);
}

std::string axsContentWords::too_early(axsKnownName const& parent, Expected const& expected)
{
  return "element '" + std::string(parent.name->local()) + "' ends too early" + listed(expected, nullptr);
}
