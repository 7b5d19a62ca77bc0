#include "axsNamespaceScope.h"

#include "axsXmlName.h"

#include <algorithm>

namespace
{
std::string_view const xml_namespace = "http://www.w3.org/XML/1998/namespace";
std::string_view const xmlns_namespace = "http://www.w3.org/2000/xmlns/";

apString quoted(std::string_view text)
{
  return APSTRING("'") + apString::from_utf8(text) + APSTRING("'");
}

bool has_prefix(axsName const& name)
{
  return name.local().size() != name.utf8().size();
}

// Whether it is prefix, colon, local part, each without a colon (Namespaces in XML, 4, [7] QName).
bool is_qualified(axsName const& name)
{
  return !name.prefix().empty() && name.local().find(':') == std::string_view::npos &&
         axsXmlName::is_name(apString::from_utf8(name.local()));
}
}

apString axsNamespaceScope::open(axsName const& name, Attributes const& attributes)
{
  ++depth;
  std::size_t prefixed = has_prefix(name) ? 1 : 0;
  for (auto const& [attribute, value] : attributes)
  {
    if (has_prefix(*attribute))
      ++prefixed;
    if (attribute->utf8() == "xmlns" || attribute->prefix() == "xmlns")
    {
      apString wrong = declare(*attribute, value);
      if (!wrong.empty())
        return wrong;
    }
  }
  if (prefixed == 0)
    return apString();

  apString wrong = check_name(name, false);
  for (auto at = attributes.begin(); wrong.empty() && at != attributes.end(); ++at)
    wrong = check_name(*at->first, true);
  return wrong.empty() && prefixed > 1 ? check_repetition(attributes) : wrong;
}

void axsNamespaceScope::close()
{
  while (!declared.empty() && declared.back().first == depth)
  {
    bound[declared.back().second].pop_back();
    declared.pop_back();
  }
  --depth;
}

apString axsNamespaceScope::declare(axsName const& name, std::string const& value)
{
  std::string const prefix(has_prefix(name) ? name.local() : std::string_view());
  if (prefix == "xmlns" || (prefix == "xml") != (value == xml_namespace) || value == xmlns_namespace)
    return APSTRING("the prefix ") + quoted(prefix) + APSTRING(" cannot be bound to the namespace ") + quoted(value);
  if (!prefix.empty() && value.empty())
    return APSTRING("the prefix ") + quoted(prefix) + APSTRING(" cannot be bound to no namespace");
  bound[prefix].push_back(value);
  declared.emplace_back(depth, prefix);
  return apString();
}

apString axsNamespaceScope::check_name(axsName const& name, bool is_attribute) const
{
  if (!has_prefix(name))
    return apString();
  if (!is_qualified(name))
    return quoted(name.utf8()) + APSTRING(" is not a name with a prefix");
  if (is_attribute && name.prefix() == "xmlns")
    return apString();
  if (find(name.prefix()).empty())
    return APSTRING("the prefix ") + quoted(name.prefix()) + APSTRING(" of ") + quoted(name.utf8()) +
           APSTRING(" is not bound to a namespace");
  return apString();
}

// Two attributes of one element must not have the same name in the same namespace.
apString axsNamespaceScope::check_repetition(Attributes const& attributes) const
{
  std::vector<std::pair<std::string_view, std::string_view>> names;
  for (auto const& [name, value] : attributes)
    if (has_prefix(*name) && name->prefix() != "xmlns")
      names.emplace_back(find(name->prefix()), name->local());
  std::sort(names.begin(), names.end());
  auto const repeated = std::adjacent_find(names.begin(), names.end());
  if (repeated == names.end())
    return apString();
  return APSTRING("the attribute ") + quoted(repeated->second) + APSTRING(" of the namespace ") +
         quoted(repeated->first) + APSTRING(" is given twice");
}

// Empty when it is not bound.
std::string_view axsNamespaceScope::find(std::string_view prefix) const
{
  if (prefix == "xml")
    return xml_namespace;
  auto const found = bound.find(std::string(prefix));
  return found == bound.end() || found->second.empty() ? std::string_view() : found->second.back();
}
