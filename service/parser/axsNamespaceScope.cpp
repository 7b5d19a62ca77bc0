#include "axsNamespaceScope.h"

#include "axsName.h"

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
bool is_prefixed(axsQName const& name)
{
  return name.prefix != nullptr && name.declared == nullptr;
}
}

bool axsNamespaceScope::open_with_prefixes(axsQName const& name, axsReadAttributes& attributes)
{
  for (std::size_t i = 0; i < attributes.size(); ++i)
    if (axsPrefix* const prefix = attributes.source(i).name->declared)
      if (!declare(*prefix, attributes[i].value))
        return false;

  if (!check_name(name, false))
    return false;
  for (std::size_t i = 0; i < attributes.size(); ++i)
  {
    axsQName const& of_attribute_name = *attributes.source(i).name;
    if (!check_name(of_attribute_name, true))
      return false;
    attributes[i].name_space = of_attribute(of_attribute_name);
  }
  return check_repetition(attributes);
}

void axsNamespaceScope::unbind()
{
  while (!declared.empty() && declared.back().first == depth)
  {
    declared.back().second->bound.pop_back();
    declared.pop_back();
  }
}

std::string_view axsNamespaceScope::namespace_of(std::string_view prefix) const
{
  // Bound without a declaration, and also where no name had it yet (Namespaces in XML 1.0, 3).
  if (prefix == "xml")
    return xml_namespace;
  axsPrefix const* const known = names.find_prefix(prefix);
  return known == nullptr ? std::string_view() : bound_to(*known);
}

std::string_view axsNamespaceScope::of_attribute(axsQName const& name) const
{
  if (name.declared != nullptr)
    return xmlns_namespace;
  return name.prefix == nullptr ? std::string_view() : bound_to(*name.prefix);
}

bool axsNamespaceScope::declare(axsPrefix& prefix, std::string_view value)
{
  if (prefix.text == "xmlns" || (prefix.text == "xml") != (value == xml_namespace) || value == xmlns_namespace)
    return fail("the prefix " + quoted(prefix.text) + " cannot be bound to the namespace " + quoted(value));
  if (!prefix.text.empty() && value.empty() && !may_undeclare)
    return fail("the prefix " + quoted(prefix.text) + " cannot be bound to no namespace");
  prefix.bound.push_back(*namespaces.emplace(value).first);
  declared.emplace_back(depth, &prefix);
  return true;
}

bool axsNamespaceScope::check_name(axsQName const& name, bool is_attribute)
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
bool axsNamespaceScope::check_repetition(axsReadAttributes const& attributes)
{
  axsPrefix const* first = nullptr;
  bool has_several = false;
  for (std::size_t i = 0; i < attributes.size(); ++i)
    if (axsQName const& name = *attributes.source(i).name; is_prefixed(name))
    {
      has_several = has_several || (first != nullptr && name.prefix != first);
      first = name.prefix;
    }
  if (!has_several)
    return true;

  std::vector<std::pair<char const*, std::string_view>> qualified;
  for (std::size_t i = 0; i < attributes.size(); ++i)
    if (axsQName const& name = *attributes.source(i).name; is_prefixed(name))
      qualified.emplace_back(bound_to(*name.prefix).data(), name.name->local());
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
