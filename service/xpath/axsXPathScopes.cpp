#include "axsXPathScopes.h"

#include "axsTree.h"

#include <vector>

namespace
{
// Up to here, walking up costs less than remembering.
int const near_levels = 32;

axsElement const* parent_element(axsElement const& element) noexcept
{
  axsNode const* const parent = element.parent();
  return parent != nullptr && parent->is_element() ? static_cast<axsElement const*>(parent) : nullptr;
}
}

axsXPathScopes::axsXPathScopes(axsTree& searched) noexcept
  : tree(searched),
    default_declaration(searched.names().find("xmlns"))
{
}

std::string_view axsXPathScopes::uri(axsElement const& element, std::string_view prefix)
{
  if (prefix == "xml")
    return xml_uri;
  axsName const* const declaration = prefix.empty() ? default_declaration : declaration_of(prefix);
  return declaration == nullptr ? std::string_view() : nearest_value(element, *declaration);
}

std::string_view axsXPathScopes::uri_of_element(axsElement const& element)
{
  return uri(element, element.element_name().prefix());
}

std::string_view axsXPathScopes::uri_of_attribute(axsElement const& owner, axsName const& name)
{
  std::string_view const prefix = name.prefix();
  return prefix.empty() ? std::string_view() : uri(owner, prefix);
}

bool axsXPathScopes::is_declaration(axsName const& name) noexcept
{
  std::string_view const text = name.utf8();
  return text.substr(0, 5) == "xmlns" && (text.size() == 5 || text[5] == ':');
}

axsName const* axsXPathScopes::declaration_of(std::string_view prefix)
{
  auto const known = declarations.find(prefix);
  if (known != declarations.end())
    return known->second;
  axsName const* const declaration = tree.names().find("xmlns:" + std::string(prefix));
  declarations.emplace(declaration != nullptr ? declaration->local() : undeclared.emplace_front(prefix), declaration);
  return declaration;
}

std::string_view axsXPathScopes::nearest_value(axsElement const& element, axsName const& name)
{
  std::string_view result;
  std::vector<axsElement const*> passed;
  int levels = 0;
  for (axsElement const* at = &element; at != nullptr; at = parent_element(*at))
  {
    if (axsAttribute const* const attribute = at->find_attribute(name))
    {
      result = attribute->text();
      break;
    }
    if (!far_results.empty())
    {
      auto const known = far_results.find({at, &name});
      if (known != far_results.end())
      {
        result = known->second;
        break;
      }
    }
    if (++levels % near_levels == 0)
      passed.push_back(at);
  }
  // In a deep tree, what many elements ask for is found again on the way up, soon and at the latest where one came by.
  if (!passed.empty())
    passed.push_back(&element);
  for (axsElement const* const at : passed)
    far_results.emplace(Place{at, &name}, result);
  return result;
}
