#include "axsNamespaceCheck.h"

#include "axsSaveFault.h"
#include "axsTextHash.h"
#include "axsTree.h"
#include "axsXmlName.h"

#include <algorithm>
#include <unordered_map>
#include <utility>
#include <vector>

namespace
{
std::string_view const xml_namespace = "http://www.w3.org/XML/1998/namespace";
char const* const wrong_name = "has a prefix that is not bound to a namespace, or more than one colon in its name";
std::string_view const xmlns_namespace = "http://www.w3.org/2000/xmlns/";

// A prefix, that of the default namespace being empty, and the namespaces it is bound to by the open elements.
struct Prefix
{
  std::string_view text;
  std::vector<std::string_view> bound;

  bool is_bound() const noexcept { return !bound.empty() && !bound.back().empty(); }
};

// What namespaces make of a name.
struct QualifiedName
{
  // Null where it has none, and where it declares none.
  Prefix* prefix = nullptr;
  Prefix* declared = nullptr;
  bool is_qualified = true;
};

class Check
{
public:
  // Of a document of XML 1.1, for which the later namespaces hold.
  Check(bool is_xml_1_1, axsSaveFault& what_is_wrong) : fault(what_is_wrong), may_undeclare(is_xml_1_1) {}

  bool open(axsElement const& element);
  void close();

private:
  QualifiedName const& find(axsName const& name);
  Prefix& find_prefix(std::string_view text);

  bool declare(Prefix& prefix, std::string_view value);
  bool has_repetition(axsElement const& element);

  axsSaveFault& fault;
  bool const may_undeclare;
  // The texts of names and values lie in the tree.
  std::unordered_map<axsName const*, QualifiedName> names;
  std::unordered_map<std::string_view, Prefix, axsTextHash> prefixes;
  // The prefixes that the open elements declare, and at which depth.
  std::vector<std::pair<std::size_t, Prefix*>> declared;
  std::size_t depth = 0;
};

bool Check::open(axsElement const& element)
{
  ++depth;
  QualifiedName const& name = find(element.element_name());
  bool has_prefix = name.prefix != nullptr;
  for (axsAttribute const* at = element.first_attribute(); at != nullptr; at = at->next_attribute())
  {
    QualifiedName const& attribute = find(at->full_name());
    has_prefix = has_prefix || attribute.prefix != nullptr;
    if (attribute.declared != nullptr && !declare(*attribute.declared, at->text()))
      return fault.note(*at, "declares what no document may declare (Namespaces in XML 1.0, 3 and 5)");
  }
  if (!has_prefix)
    return true;

  auto const is_well_named = [](QualifiedName const& tested)
  { return tested.prefix == nullptr || (tested.is_qualified && tested.prefix->is_bound()); };
  if (!is_well_named(name))
    return fault.note(element, wrong_name);
  for (axsAttribute const* at = element.first_attribute(); at != nullptr; at = at->next_attribute())
  {
    QualifiedName const& attribute = find(at->full_name());
    if (attribute.declared == nullptr ? !is_well_named(attribute) : !attribute.is_qualified)
      return fault.note(*at, wrong_name);
  }
  return !has_repetition(element) || fault.note(element, "has two attributes of one name in one namespace");
}

void Check::close()
{
  while (!declared.empty() && declared.back().first == depth)
  {
    declared.back().second->bound.pop_back();
    declared.pop_back();
  }
  --depth;
}

QualifiedName const& Check::find(axsName const& name)
{
  auto const [found, is_new] = names.try_emplace(&name);
  QualifiedName& made = found->second;
  if (!is_new)
    return made;
  if (name.local().size() == name.utf8().size())
  {
    if (name.utf8() == "xmlns")
      made.declared = &find_prefix({});
    return made;
  }
  made.prefix = &find_prefix(name.prefix());
  made.is_qualified = !name.prefix().empty() && name.local().find(':') == std::string_view::npos &&
                      axsXmlName::is_name(apString::from_utf8(name.local()));
  if (name.prefix() == "xmlns")
    made.declared = &find_prefix(name.local());
  return made;
}

Prefix& Check::find_prefix(std::string_view text)
{
  auto const [found, is_new] = prefixes.try_emplace(text);
  Prefix& prefix = found->second;
  if (is_new)
  {
    prefix.text = text;
    if (text == "xml")
      prefix.bound.push_back(xml_namespace);
  }
  return prefix;
}

// Namespaces in XML 1.0, 3 and 5: only "xml" and its namespace belong together, "xmlns" and its namespace are for nobody,
// and no prefix can be bound to nothing; in version 1.1 of them it can.
bool Check::declare(Prefix& prefix, std::string_view value)
{
  if (prefix.text == "xmlns" || (prefix.text == "xml") != (value == xml_namespace) || value == xmlns_namespace)
    return false;
  if (!prefix.text.empty() && value.empty() && !may_undeclare)
    return false;
  prefix.bound.push_back(value);
  declared.emplace_back(depth, &prefix);
  return true;
}

// Two attributes of one element must not have the same name in the same namespace (6.3). With one prefix they have not.
bool Check::has_repetition(axsElement const& element)
{
  std::vector<std::pair<std::string_view, std::string_view>> expanded;
  Prefix const* first = nullptr;
  bool has_several = false;
  for (axsAttribute const* at = element.first_attribute(); at != nullptr; at = at->next_attribute())
  {
    QualifiedName const& attribute = find(at->full_name());
    if (attribute.prefix == nullptr || attribute.declared != nullptr)
      continue;
    has_several = has_several || (first != nullptr && first != attribute.prefix);
    first = attribute.prefix;
    expanded.emplace_back(attribute.prefix->bound.back(), at->full_name().local());
  }
  if (!has_several)
    return false;
  std::sort(expanded.begin(), expanded.end());
  return std::adjacent_find(expanded.begin(), expanded.end()) != expanded.end();
}
}

bool axsNamespaceCheck::holds(axsTree const& document, axsSaveFault& fault)
{
  axsNode const* const root = document.root_element();
  if (root == nullptr || !document.names().has_namespaces())
    return true;
  Check check(document.is_xml_1_1(), fault);
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
