#include "axsNamespaceScope.h"

#include "axsName.h"
#include "axsNameCache.h"
#include "axsPrefix.h"

#include <algorithm>
#include <functional>

namespace
{
std::string quoted(std::string_view text)
{
  return '\'' + std::string(text) + '\'';
}

// Empty when it is not bound.
std::string_view bound_to(axsPrefix const& prefix)
{
  return prefix.bound.empty() ? std::string_view() : prefix.bound.back();
}

// Whether its prefix stands for a namespace that the document says.
bool is_prefixed(axsReadAttribute const& attribute)
{
  return attribute.name->prefix != nullptr && attribute.name->declared == nullptr;
}
}

bool axsNamespaceScope::open(axsReadName const& name, Attributes const& attributes)
{
  ++depth;
  bool has_prefix = name.prefix != nullptr;
  for (axsReadAttribute const& attribute : attributes)
  {
    has_prefix = has_prefix || attribute.name->prefix != nullptr;
    if (attribute.name->declared != nullptr && !declare(attribute))
      return false;
  }
  if (!has_prefix)
    return true;

  if (!check_name(name, false))
    return false;
  for (axsReadAttribute const& attribute : attributes)
    if (!check_name(*attribute.name, true))
      return false;
  return check_repetition(attributes);
}

void axsNamespaceScope::close()
{
  while (!declared.empty() && declared.back().first == depth)
  {
    declared.back().second->bound.pop_back();
    declared.pop_back();
  }
  --depth;
}

std::string_view axsNamespaceScope::namespace_of(std::string_view prefix) const
{
  axsPrefix const* const known = names.find_prefix(prefix);
  return known == nullptr ? std::string_view() : bound_to(*known);
}

std::string_view axsNamespaceScope::of_element(axsReadName const& name) const
{
  return bound_to(name.prefix != nullptr ? *name.prefix : names.no_prefix());
}

std::string_view axsNamespaceScope::of_attribute(axsReadName const& name) const
{
  if (name.declared != nullptr)
    return xmlns_namespace;
  return name.prefix == nullptr ? std::string_view() : bound_to(*name.prefix);
}

bool axsNamespaceScope::declare(axsReadAttribute const& attribute)
{
  axsPrefix& prefix = *attribute.name->declared;
  std::string_view const value = attribute.value;
  if (prefix.text == "xmlns" || (prefix.text == "xml") != (value == xml_namespace) || value == xmlns_namespace)
    return fail("the prefix " + quoted(prefix.text) + " cannot be bound to the namespace " + quoted(value));
  if (!prefix.text.empty() && value.empty() && !may_undeclare)
    return fail("the prefix " + quoted(prefix.text) + " cannot be bound to no namespace");
  prefix.bound.push_back(*namespaces.emplace(value).first);
  declared.emplace_back(depth, &prefix);
  return true;
}

bool axsNamespaceScope::check_name(axsReadName const& name, bool is_attribute)
{
  if (name.prefix == nullptr)
    return true;
  if (!name.is_qualified)
    return fail(quoted(name.name->utf8()) + " is not a name with a prefix");
  if ((is_attribute && name.declared != nullptr) || !bound_to(*name.prefix).empty())
    return true;
  return fail(
    "the prefix " + quoted(name.prefix->text) + " of " + quoted(name.name->utf8()) + " is not bound to a namespace");
}

// Two attributes of one element must not have the same name in the same namespace. With one prefix they have not.
bool axsNamespaceScope::check_repetition(Attributes const& attributes)
{
  auto const first = std::find_if(attributes.begin(), attributes.end(), is_prefixed);
  if (std::all_of(first, attributes.end(),
        [&](axsReadAttribute const& attribute)
        { return !is_prefixed(attribute) || attribute.name->prefix == first->name->prefix; }))
    return true;

  std::vector<std::pair<char const*, std::string_view>> qualified;
  for (axsReadAttribute const& attribute : attributes)
    if (is_prefixed(attribute))
      qualified.emplace_back(bound_to(*attribute.name->prefix).data(), attribute.name->name->local());
  auto const is_before = [](auto const& left, auto const& right)
  { return std::less<>()(left.first, right.first) || (left.first == right.first && left.second < right.second); };
  std::sort(qualified.begin(), qualified.end(), is_before);
  auto const repeated = std::adjacent_find(qualified.begin(), qualified.end());
  return repeated == qualified.end() || fail("the attribute " + quoted(repeated->second) + " of the namespace " +
                                             quoted(repeated->first) + " is given twice");
}

bool axsNamespaceScope::fail(std::string const& text)
{
  error = text;
  return false;
}
