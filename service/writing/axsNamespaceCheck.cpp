#include "axsNamespaceCheck.h"

#include "axsAttribute.h"
#include "axsDocument.h"
#include "axsElement.h"
#include "axsNameCache.h"
#include "axsNames.h"
#include "axsNamespaceScope.h"

namespace
{
// The names of a tree, which are all there.
class TreeNames final : public axsNames
{
public:
  explicit TreeNames(axsNameTable const& names) : table(names) {}

  axsName const& name(std::string_view text) override { return *table.find(text); }

private:
  axsNameTable const& table;
};

class Check
{
public:
  explicit Check(axsNameTable const& table) : tree_names(table), names(tree_names), scope(names) {}

  bool open(axsElement const& element)
  {
    attributes.clear();
    for (axsAttribute const* at = element.first_attribute(); at != nullptr; at = at->next_attribute())
      attributes.push_back({&names.find(at->name()->utf8()), at->value()});
    return scope.open(names.find(element.element_name().utf8()), attributes);
  }

  void close() { scope.close(); }

private:
  TreeNames tree_names;
  axsNameCache names;
  axsNamespaceScope scope;
  axsNamespaceScope::Attributes attributes;
};
}

bool axsNamespaceCheck::holds(axsDocument const& document)
{
  axsNode const* const root = document.root_element();
  if (root == nullptr || !document.names().has_namespaces())
    return true;
  Check check(document.names());
  for (axsNode const* node = root;;)
  {
    if (node->is_element() && !check.open(static_cast<axsElement const&>(*node)))
      return false;
    if (axsNode const* const child = node->first_child())
    {
      node = child;
      continue;
    }
    for (bool is_last = true; is_last;)
    {
      if (node->is_element())
        check.close();
      if (node == root)
        return true;
      is_last = node->next_sibling() == nullptr;
      node = is_last ? node->parent() : node->next_sibling();
    }
  }
}
