#include "axmContractUtest.h"

#include "axmCommentNode.h"
#include "axmTextNode.h"
#include "axmUtestAccess.h"
#include "axmUtestGroup.h"
#include "model/axmModelRandom.h"

#include <algorithm>
#include <map>
#include <string>
#include <vector>

using namespace axmUtestAccess;

namespace
{
using Factory = std::shared_ptr<axmDocumentFactory>;

char const file[] = "source/utest/axmContractUtestLists";

// The attributes of an element as they must be, and a map of it that is held while they change.
class HeldMap
{
public:
  HeldMap(std::shared_ptr<axmDocument> const& given_document, std::vector<apString> const& given_names)
    : document(given_document),
      names(given_names),
      element(created(given_document, APSTRING("element"))),
      map(map_of(element))
  {
  }

  bool is_there() const { return map != nullptr; }

  void edit(axmModelRandom& random)
  {
    apString const& name = random.one_of(names);
    apString const value(std::to_string(random.below(1000)).c_str());
    switch (random.below(6))
    {
    case 0:
    case 1:
      element->setAttribute(name, value);
      break;
    case 2:
      map->setNamedItem(detached_attribute(document, name, value));
      break;
    case 3:
      element->removeAttribute(name);
      promised.erase(name);
      return;
    case 4:
      move();
      return;
    default:
      map->removeNamedItem(name);
      promised.erase(name);
      return;
    }
    promised[name] = value;
  }

  // The attribute of that name, asked for in every way.
  bool is_right(apString const& name) const
  {
    auto const found = promised.find(name);
    bool const is_present = found != promised.end();
    apString const value = is_present ? found->second : apString();
    apString typed;
    Node const item = map->getNamedItem(name);
    return element->hasAttribute(name) == is_present && element->getAttribute(name) == value &&
           element->get_attribute(name, typed) == is_present && typed == value && (item != nullptr) == is_present &&
           (!is_present || (item->getNodeName() == name && item->getNodeValue() == value));
  }

  // All items, by their indexes.
  bool is_whole() const
  {
    int const length = static_cast<int>(promised.size());
    if (map->getLength() != length || element->hasAttributes() != (length > 0))
      return false;
    auto left = promised;
    for (int index = 0; index < length; ++index)
    {
      Node const item = map->item(index);
      auto const found = left.find(name_of(item));
      if (found == left.end() || found->second != value_of(item) || !same(item, map->getNamedItem(found->first)))
        return false;
      left.erase(found);
    }
    return true;
  }

private:
  // Into the document or out of it, which its attributes do not notice.
  void move()
  {
    Node const parent = element->getParentNode();
    if (parent == nullptr)
      document->getDocumentElement()->appendChild(element);
    else
      parent->removeChild(element);
  }

  std::shared_ptr<axmDocument> const document;
  std::vector<apString> const names;
  std::shared_ptr<axmElement> const element;
  std::shared_ptr<axmNamedNodeMap> const map;
  std::map<apString, apString> promised;
};

// Names that have much in common: a prefix is a part of a name.
std::vector<apString> alike_names()
{
  return {APSTRING("k"), APSTRING("p:k"), APSTRING("q:k"), APSTRING("k:p"), APSTRING("K"), APSTRING("kk"),
    APSTRING("p"), APSTRING("\u0444"), APSTRING("p:\u0444"), APSTRING("\U00010437")};
}

std::vector<apString> many_names()
{
  std::vector<apString> names = alike_names();
  for (int number = 0; number < 300; ++number)
    names.emplace_back(("a" + std::to_string(number)).c_str());
  return names;
}

// Whether a map that is held follows every edit; all items are asked for now and then.
bool follows_edits(std::shared_ptr<axmDocument> const& document, std::vector<apString> const& names, int edits)
{
  HeldMap held(document, names);
  axmModelRandom random(static_cast<std::uint64_t>(edits));
  int const period = static_cast<int>(names.size()) / 10;
  for (int count = 0; count < edits && held.is_there(); ++count)
  {
    held.edit(random);
    if (!held.is_right(random.one_of(names)) || (count % period == 0 && !held.is_whole()))
      return false;
  }
  return held.is_there() && held.is_whole() &&
         std::all_of(names.begin(), names.end(), [&held](apString const& name) { return held.is_right(name); });
}

// Whether what is no element answers operations of elements as what it is.
bool is_no_element(std::shared_ptr<axmElement> const& item)
{
  apString const name = APSTRING("k");
  if (item == nullptr || item->selectNodes(APSTRING("//*")) == nullptr || item->selectNodes(APSTRING("*")) == nullptr)
    return false;
  item->setAttribute(name, APSTRING("v"));
  bool const has_none = !item->hasAttribute(name) && item->getAttribute(name).empty() && !item->hasAttributes();
  item->removeAttribute(name);
  return has_none && item->selectSingleNode(APSTRING("*")) == nullptr;
}
}

void axmContractUtest::test_list_cursor(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmContractUtest::test_list_cursor");
  auto const document = load(*factory, "<root><a/><b/></root>");
  auto const root = root_of(document);
  auto const list = children_of(root);
  auto const empty = children_of(first_of(root));
  if (!group.prerequisite(list != nullptr && empty != nullptr && length_of(list) == 2, "list->length() == 2", __LINE__,
        "Prerequisite: number of children"))
    return;
  group.check(list->invalid(), "list->invalid()", __LINE__, "a new cursor stands on no item");
  group.check(!list->isEmpty(), "!list->isEmpty()", __LINE__, "a list with items");
  group.check(++*list && !list->invalid(), "++*list && !list->invalid()", __LINE__, "the first step");
  group.check(name_of((*list)()), APSTRING("a"), "(*list)()->getNodeName()", __LINE__, "goes to the first item");
  group.check(name_of((*list)()), APSTRING("a"), "(*list)()->getNodeName()", __LINE__, "looking moves nothing");
  group.check(++*list, "++*list", __LINE__, "the second step");
  group.check(!list->invalid() && name_of((*list)()) == APSTRING("b"), "(*list)()->getNodeName()", __LINE__,
    "goes to the second item");
  group.check(!++*list, "!++*list", __LINE__, "the step past the last item");
  group.check(list->invalid(), "list->invalid()", __LINE__, "goes past the end");
  bool const wrapped = ++*list;
  group.check(wrapped, "++*list", __LINE__, "one step more starts again");
  group.check(wrapped ? name_of((*list)()) : apString(), APSTRING("a"), "(*list)()->getNodeName()", __LINE__,
    "at the first item");
  list->reset();
  group.check(list->invalid(), "list->invalid()", __LINE__, "after a reset the cursor stands on no item");
  group.check(name_of(list->next_node()), APSTRING("a"), "list->next_node()->getNodeName()", __LINE__,
    "and goes to the first item again");

  auto const other = children_of(root);
  group.check(name_of(other != nullptr ? other->next_node() : nullptr), APSTRING("a"), "other->next_node()", __LINE__,
    "each list has a cursor of its own");
  group.check(name_of(list->next_node()), APSTRING("b"), "list->next_node()->getNodeName()", __LINE__, "the next item");
  group.check(list->next_node() == nullptr, "!list->next_node().get()", __LINE__, "no item after the last one");
  group.check(name_of(list->next_node()), APSTRING("a"), "list->next_node()->getNodeName()", __LINE__,
    "and the first one after that");

  group.check(empty->isEmpty() && empty->length() == 0, "empty->isEmpty()", __LINE__, "a list without items");
  bool moved = false;
  for (int step = 0; step < 4; ++step)
    moved = ++*empty || moved;
  group.check(!moved, "!++*empty", __LINE__, "no step succeeds on a list without items");
  group.check(empty->invalid(), "empty->invalid()", __LINE__, "its cursor stands on no item");
}

void axmContractUtest::test_live_lists(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmContractUtest::test_live_lists");
  auto const document = load(*factory, "<root><a/><b/></root>");
  auto const root = root_of(document);
  auto const list = children_of(root);
  if (!group.prerequisite(list != nullptr, "list.get()", __LINE__, "Prerequisite: children"))
    return;
  append(root, created(document, APSTRING("c")));
  group.check(names_in(list), APSTRING("a b c"), "names(list)", __LINE__, "a list follows an append");
  remove(root, first_of(root));
  group.check(names_in(list), APSTRING("b c"), "names(list)", __LINE__, "a list follows a removal");
  Node const x = created(document, APSTRING("x"));
  insert(root, x, last_of(root));
  group.check(names_in(list), APSTRING("b x c"), "names(list)", __LINE__, "a list follows an insertion");
  Node const y = created(document, APSTRING("y"));
  replace(root, y, first_of(root));
  group.check(names_in(list), APSTRING("y x c"), "names(list)", __LINE__, "a list follows a replacement");
  group.check(
    names_of_children(root), APSTRING("y x c"), "names(root->getChildNodes())", __LINE__, "as does one fetched now");

  list->reset();
  group.check(
    name_of(list->next_node()), APSTRING("y"), "list->next_node()->getNodeName()", __LINE__, "the cursor is on y");
  append(root, created(document, APSTRING("z")));
  apString rest;
  for (int step = 0; step < 10; ++step)
  {
    Node const node = list->next_node();
    if (node == nullptr)
      break;
    rest += node->getNodeName();
  }
  group.check(rest, APSTRING("xcz"), "the names after y", __LINE__, "the cursor follows what comes meanwhile");
  for (int step = 0; step < 10 && root->hasChildNodes(); ++step)
    remove(root, first_of(root));
  group.check(list->isEmpty() && list->invalid(), "list->isEmpty() && list->invalid()", __LINE__,
    "a list whose items are gone is empty");
}

void axmContractUtest::test_list_items(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmContractUtest::test_list_items");
  auto const root = load_root(*factory, "<root>one &amp; two<a>three</a><!--four & five--></root>");
  Node const text = child_of(root, 0);
  Node const a = child_of(root, 1);
  Node const remark = child_of(root, 2);
  group.check(value_of(text), APSTRING("one & two"), "children->at(0)->getNodeValue()", __LINE__, "value of a text");
  group.check(text_of(text), APSTRING("one & two"), "children->at(0)->get_text()", __LINE__, "text of a text");
  group.check(xml_of(text), APSTRING("one &amp; two"), "children->at(0)->get_xml()", __LINE__, "XML of a text");
  group.check(name_of(text), name_of(first_of(root)), "children->at(0)->getNodeName()", __LINE__, "name of a text");
  group.check(same(parent_of(text), root), "*children->at(0)->getParentNode() == *root", __LINE__, "parent of a text");
  group.check(same(next_of(text), a), "*children->at(0)->getNextSibling() == *a", __LINE__, "sibling of a text");
  group.check(
    number_of_children(text), 0, "children->at(0)->getChildNodes()->length() == 0", __LINE__, "children of a text");
  group.check(text_of(a), APSTRING("three"), "children->at(1)->get_text()", __LINE__, "text of an element");
  group.check(
    value_of(remark), APSTRING("four & five"), "children->at(2)->getNodeValue()", __LINE__, "value of a comment");
  group.check(
    xml_of(remark), APSTRING("<!--four & five-->"), "children->at(2)->get_xml()", __LINE__, "XML of a comment");
  group.check(
    same(previous_of(remark), a), "*children->at(2)->getPreviousSibling() == *a", __LINE__, "sibling of a comment");

  auto const mixed = load_root(*factory, "<root>text<!--comment--><?p?></root>");
  bool are_no_elements = mixed != nullptr;
  for (int index = 0; index < 3; ++index)
    are_no_elements = are_no_elements && is_no_element(child_of(mixed, index));
  group.check(are_no_elements && !mixed->hasAttributes(), "what is no element has no attributes", __LINE__,
    "operations of elements on other items");

  Node const removed = remove(root, text);
  group.check(same(removed, text), "*root->removeChild(text) == *text", __LINE__, "an item can be removed");
  group.check(number_of_children(root), 2, "root->getChildNodes()->length() == 2", __LINE__, "it is out then");
  group.check(is_detached(text), "!text->getParentNode().get()", __LINE__, "and has no parent");
  group.check(same(append(root, text), text), "*root->appendChild(text) == *text", __LINE__, "it can be put back");
  group.check(same(last_of(root), text), "*root->getLastChild() == *text", __LINE__, "at the end");
}

void axmContractUtest::test_live_maps(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmContractUtest::test_live_maps");
  auto const document = factory->createDocument(APSTRING("root"));
  auto const root = root_of(document);
  auto const map = map_of(root);
  if (!group.prerequisite(
        map != nullptr, "map.get()", __LINE__, "Prerequisite: an element without attributes has a map"))
    return;
  root->setAttribute(APSTRING("A"), APSTRING("1"));
  root->set_attribute(APSTRING("B"), 2);
  group.check(map->getLength(), 2, "map->getLength() == 2", __LINE__, "a map sees what the element sets");
  group.check(value_of(map->getNamedItem(APSTRING("B"))), APSTRING("2"), "map->getNamedItem(\"B\")->getNodeValue()",
    __LINE__, "and its value");
  root->setAttribute(APSTRING("A"), APSTRING("new"));
  group.check(value_of(map->getNamedItem(APSTRING("A"))), APSTRING("new"), "map->getNamedItem(\"A\")->getNodeValue()",
    __LINE__, "and a value that is overwritten");
  root->removeAttribute(APSTRING("B"));
  group.check(map->getLength(), 1, "map->getLength() == 1", __LINE__, "and what the element removes");
  group.check(map->getNamedItem(APSTRING("B")) == nullptr, "!map->getNamedItem(\"B\").get()", __LINE__,
    "which is not found then");

  Node const c = detached_attribute(document, APSTRING("C"), APSTRING("3"));
  if (!group.prerequisite(c != nullptr, "c.get()", __LINE__, "Prerequisite: attribute node"))
    return;
  group.check(map->setNamedItem(c) == nullptr, "!map->setNamedItem(c).get()", __LINE__, "a new name replaces nothing");
  group.check(
    root->hasAttribute(APSTRING("C")), "root->hasAttribute(\"C\")", __LINE__, "the element sees what the map sets");
  group.check(root->getAttribute(APSTRING("C")), APSTRING("3"), "root->getAttribute(\"C\")", __LINE__, "and its value");
  Node const removed = map->removeNamedItem(APSTRING("C"));
  group.check(value_of(removed), APSTRING("3"), "removed->getNodeValue()", __LINE__, "what is removed keeps its value");
  group.check(!root->hasAttribute(APSTRING("C")), "!root->hasAttribute(\"C\")", __LINE__,
    "the element sees what the map removes");
  map->removeNamedItem(APSTRING("A"));
  group.check(!root->hasAttributes(), "!root->hasAttributes()", __LINE__, "the last one included");

  auto const other = map_of(root);
  root->setAttribute(APSTRING("D"), APSTRING("4"));
  group.check(other != nullptr && other->getLength() == 1 && map->getLength() == 1,
    "other->getLength() == 1 && map->getLength() == 1", __LINE__, "two maps of an element are of one mind");
  group.check(follows_edits(document, alike_names(), 600), "the map holds what was set", __LINE__,
    "a map that is held while attributes of similar names change");
  group.check(follows_edits(document, many_names(), 3000), "the map holds what was set", __LINE__,
    "a map that is held while many attributes change");

  auto const with_default =
    load_root(*factory, "<!DOCTYPE r [<!ATTLIST r k CDATA 'given' l CDATA 'other'>]><r k='own'/>");
  auto const defaults = map_of(with_default);
  if (!group.prerequisite(defaults != nullptr && defaults->getLength() == 2, "map->getLength() == 2", __LINE__,
        "Prerequisite: an attribute with a default"))
    return;
  with_default->removeAttribute(APSTRING("k"));
  with_default->removeAttribute(APSTRING("l"));
  group.check(!with_default->hasAttributes() && defaults->getLength() == 0, "!root->hasAttributes()", __LINE__,
    "an attribute is taken away whatever a document type says");
}

namespace
{
char const* const names_with_prefixes[] = {"p:a", "q:a", "a", "xml:lang", "xmlns:p", "xmlns:q"};

bool is_declaration(std::string const& name)
{
  return name.compare(0, 5, "xmlns") == 0;
}

// Whether all attributes but the one taken out stay, declarations of namespaces left out, for they may be none.
bool do_others_stay(axmDocumentFactory const& factory, std::string const& taken, bool by_map)
{
  auto const root = load_root(factory, "<r xmlns:p='u' xmlns:q='v' p:a='p:a' q:a='q:a' a='a' xml:lang='xml:lang'/>");
  auto const map = map_of(root);
  if (map == nullptr)
    return false;
  apString const name(taken.c_str());
  if (by_map)
    map->removeNamedItem(name);
  else
    root->removeAttribute(name);
  for (char const* const other : names_with_prefixes)
  {
    bool const is_there = map->getNamedItem(apString(other)) != nullptr;
    if (taken == other ? is_there : !is_declaration(other) && attribute_of(root, apString(other)) != apString(other))
      return false;
  }
  return true;
}

// Whether the elements below a root with attributes that have a meaning for what is in it have none of them.
bool are_own(axmDocumentFactory const& factory)
{
  auto const root = load_root(factory,
    "<r xmlns='v' xmlns:p='u' xmlns:q='v' p:a='1' xml:lang='en' xml:space='default' a='1'><b/><p:b><q:b/></p:b></r>");
  auto const all = root != nullptr ? root->selectNodes(APSTRING("descendant::*")) : nullptr;
  bool are_right = length_of(all) == 3;
  for (int index = 0; are_right && index < 3; ++index)
  {
    auto const element = item_of(all, index);
    auto const map = map_of(element);
    are_right = element != nullptr && map != nullptr && map->getLength() == 0 && !element->hasAttributes();
    for (char const* const name : {"xmlns", "xmlns:p", "xmlns:q", "p:a", "xml:lang", "xml:space", "a"})
    {
      apString value(L"none");
      are_right = are_right && !element->hasAttribute(apString(name)) &&
                  element->getAttribute(apString(name)).empty() && map->getNamedItem(apString(name)) == nullptr &&
                  !element->get_attribute(apString(name), value);
    }
  }
  return are_right;
}
}

void axmContractUtest::test_map_items(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmContractUtest::test_map_items");
  auto const document = load(*factory, "<root A='1' B='&lt;2&gt;' C=''/>");
  auto const root = root_of(document);
  auto const map = map_of(root);
  if (!group.prerequisite(map != nullptr && map->getLength() == 3, "map->getLength() == 3", __LINE__,
        "Prerequisite: number of attributes"))
    return;
  int seen[3] = {0, 0, 0};
  for (int index = 0; index < 3; ++index)
  {
    apString const name = name_of(map->item(index));
    for (int letter = 0; letter < 3; ++letter)
      if (name == apString(&L"ABC"[letter], 1))
        ++seen[letter];
    group.check(same(map->item(index), map->getNamedItem(name)), "*map->item(index) == *map->getNamedItem(name)",
      __LINE__, "an item is the attribute of its name");
  }
  bool do_stay = true;
  for (char const* const taken : names_with_prefixes)
    for (bool const by_map : {false, true})
      do_stay = do_stay && do_others_stay(*factory, taken, by_map);
  group.check(are_own(*factory), "the attributes of elements in others", __LINE__,
    "what an element around it has is none of an element");
  group.check(do_stay, "the attributes that are left", __LINE__, "with one attribute goes no other");
  group.check(seen[0] == 1 && seen[1] == 1 && seen[2] == 1, "seen[0] == 1 && seen[1] == 1 && seen[2] == 1", __LINE__,
    "the indexes visit every attribute once");

  Node const b = map->getNamedItem(APSTRING("B"));
  group.check(name_of(b), APSTRING("B"), "b->getNodeName()", __LINE__, "name of an attribute");
  group.check(value_of(b), APSTRING("<2>"), "b->getNodeValue()", __LINE__, "value of an attribute");
  Node const c = map->getNamedItem(APSTRING("C"));
  group.check(c != nullptr && c->getNodeValue().empty(), "c->getNodeValue().empty()", __LINE__, "an empty value");
  group.check(
    map->getNamedItem(APSTRING("b")) == nullptr, "!map->getNamedItem(\"b\").get()", __LINE__, "names differ by case");
  group.check(
    b != nullptr && c != nullptr && !(*b == *c), "!(*b == *c)", __LINE__, "another attribute is another node");

  Node const new_b = detached_attribute(document, APSTRING("B"), APSTRING("new"));
  if (!group.prerequisite(new_b != nullptr, "new_b.get()", __LINE__, "Prerequisite: attribute node"))
    return;
  Node const replaced = map->setNamedItem(new_b);
  group.check(same(replaced, b), "*replaced == *b", __LINE__, "the result is the replaced node");
  group.check(value_of(replaced), APSTRING("<2>"), "replaced->getNodeValue()", __LINE__, "with its old value");
  group.check(same(map->getNamedItem(APSTRING("B")), new_b), "*map->getNamedItem(\"B\") == *new_b", __LINE__,
    "the new node is in the map");
  group.check(map->getLength(), 3, "map->getLength() == 3", __LINE__, "a replacement adds nothing");
  root->setAttribute(APSTRING("B"), APSTRING("later"));
  group.check(value_of(replaced), APSTRING("<2>"), "replaced->getNodeValue()", __LINE__,
    "what was replaced has nothing to do with the element any more");

  Node const a = map->getNamedItem(APSTRING("A"));
  Node const removed = map->removeNamedItem(APSTRING("A"));
  group.check(same(removed, a), "*removed == *a", __LINE__, "the result is the removed node");
  group.check(name_of(removed), APSTRING("A"), "removed->getNodeName()", __LINE__, "with its name");
  group.check(value_of(removed), APSTRING("1"), "removed->getNodeValue()", __LINE__, "and its value");
  group.check(map->getLength(), 2, "map->getLength() == 2", __LINE__, "a removal takes one away");
  group.check(value_of(map->getNamedItem(APSTRING("B"))), APSTRING("later"), "map->getNamedItem(\"B\")", __LINE__,
    "the others stay");
}
