#include "axmCommentNode.h"
#include "axmModelRun.h"
#include "axmModelText.h"
#include "axmProcessingInstruction.h"
#include "axmTextNode.h"

#include <algorithm>
#include <climits>
#include <utility>

using Kind = axmModelKind;

namespace
{
std::wstring_view view(apString const& text)
{
  return text.view();
}

apString narrow(std::wstring const& text)
{
  return apString(std::wstring_view(text));
}

std::wstring escaped(std::wstring const& text)
{
  std::wstring result;
  for (wchar_t const c : text)
    if (c == L'&')
      result += L"&amp;";
    else if (c == L'<')
      result += L"&lt;";
    else if (c == L'>')
      result += L"&gt;";
    else
      result += c;
  return result;
}

template <class Interface>
bool is_a(axmNode const& node)
{
  return dynamic_cast<Interface const*>(&node) != nullptr;
}
}

bool axmModelRun::compare_after(axmModelStep const& step)
{
  if (steps_done % period == 0)
    return compare_all();
  for (int const used : {step.a, step.b, step.c, step.slot})
    if (used != axmModelStep::no_slot && static_cast<std::size_t>(used) < slots.size() && !check_slot(used))
      return false;
  return true;
}

bool axmModelRun::compare_all()
{
  for (std::size_t index = 0; index < slots.size() && found.empty(); ++index)
  {
    auto const number_of_slot = static_cast<int>(index);
    Slot const& checked = slots[index];
    bool const is_top = checked.handle != nullptr && model.node(checked.number).holder == axmModel::none;
    if (checked.handle != nullptr && check_identity(number_of_slot))
      is_top ? check_tree(number_of_slot) : check_slot(number_of_slot);
    if (checked.list != nullptr)
      check_list(number_of_slot);
  }
  return found.empty();
}

bool axmModelRun::check_slot(int given)
{
  Slot const checked = slots[static_cast<std::size_t>(given)];
  if (checked.list != nullptr)
    return check_list(given);
  if (checked.handle == nullptr)
    return true;
  Place const place = {given, {}};
  std::vector<Node> children;
  return check_node(place, checked.handle, checked.number, checked.is_item) &&
         check_children(place, checked.handle, checked.number, children);
}

bool axmModelRun::check_tree(int given)
{
  struct Waiting
  {
    Place place;
    Node handle;
    int number;
    bool is_item;
  };
  Slot const& top = slots[static_cast<std::size_t>(given)];
  std::vector<Waiting> waiting = {{{given, {}}, top.handle, top.number, top.is_item}};
  while (!waiting.empty())
  {
    Waiting const now = std::move(waiting.back());
    waiting.pop_back();
    std::vector<Node> children;
    if (!check_node(now.place, now.handle, now.number, now.is_item) ||
        !check_children(now.place, now.handle, now.number, children))
      return false;
    for (std::size_t index = 0; index < children.size(); ++index)
    {
      Place below = now.place;
      below.path.push_back(static_cast<int>(index));
      waiting.push_back({std::move(below), children[index], model.node(now.number).children[index], false});
    }
  }
  return true;
}

bool axmModelRun::check_node(Place const& place, Node const& handle, int number, bool is_item)
{
  axmModelNode const& node = model.node(number);
  bool const has_text = node.kind != Kind::instruction && node.kind != Kind::attribute;
  bool const well = same(place, "->getNodeName()", model.node_name(number), handle->getNodeName()) &&
                    same(place, "->getNodeValue()", node.value, handle->getNodeValue()) &&
                    (!has_text || same(place, "->get_text()", model.text(number), handle->get_text())) &&
                    (is_item || check_kind(place, handle, number)) && check_around(place, handle, number) &&
                    check_owner(place, handle, number);
  if (!well)
    return false;
  if (!check_xml(place, handle, node))
    return false;
  if (node.kind == Kind::document && !is_item)
    return check_document(place, dynamic_cast<axmDocument&>(*handle), number) &&
           check_no_attributes(place, handle, is_item);
  return node.kind == Kind::element ? check_attributes(place, handle, number)
                                    : check_no_attributes(place, handle, is_item);
}

// Of a text or comment, but for how a return is written, which is left open.
bool axmModelRun::check_xml(Place const& place, Node const& handle, axmModelNode const& node)
{
  bool const is_comment = node.kind == Kind::comment;
  if ((node.kind != Kind::text && !is_comment) || node.value.find(L'\r') != std::wstring::npos)
    return true;
  bool const ends_early = is_comment && (node.value + L'-').find(L"--") != std::wstring::npos;
  if (ends_early || !axmModelText::is_storable(node.value))
    return same(place, "->get_xml()", L"", handle->get_xml());
  return same(
    place, "->get_xml()", is_comment ? L"<!--" + node.value + L"-->" : escaped(node.value), handle->get_xml());
}

bool axmModelRun::check_kind(Place const& place, Node const& handle, int number)
{
  Kind const kind = model.node(number).kind;
  bool const is_well =
    same(place, " is an axmElement", kind == Kind::element, is_a<axmElement>(*handle)) &&
    same(place, " is an axmDocument", kind == Kind::document, is_a<axmDocument>(*handle)) &&
    same(place, " is an axmTextNode", kind == Kind::text, is_a<axmTextNode>(*handle)) &&
    same(place, " is an axmCommentNode", kind == Kind::comment, is_a<axmCommentNode>(*handle)) &&
    same(place, " is an axmProcessingInstruction", kind == Kind::instruction, is_a<axmProcessingInstruction>(*handle));
  if (!is_well || (kind != Kind::text && kind != Kind::comment))
    return is_well;
  return same(place, "->getData()", model.node(number).value, dynamic_cast<axmCharacterData&>(*handle).getData());
}

// The parent, and both neighbours with their way back.
bool axmModelRun::check_around(Place const& place, Node const& handle, int number)
{
  int const parent = model.parent(number);
  Node const above = handle->getParentNode();
  Node const next = handle->getNextSibling();
  Node const previous = handle->getPreviousSibling();
  if (!same(place, "->getParentNode() != nullptr", parent != axmModel::none, above != nullptr) ||
      !same(place, "->getNextSibling() != nullptr", model.next(number) != axmModel::none, next != nullptr) ||
      !same(place, "->getPreviousSibling() != nullptr", model.previous(number) != axmModel::none, previous != nullptr))
    return false;
  if (above != nullptr)
  {
    int const known = handle_of(parent);
    if (known != axmModelStep::no_slot && !one(place, "->getParentNode()", *this->handle(known), above))
      return false;
    if (!same(place, "->getParentNode()->getNodeName()", model.node_name(parent), above->getNodeName()))
      return false;
    List const list = above->getChildNodes();
    if (!same(place, "->getParentNode()->getChildNodes() != nullptr", true, list != nullptr) ||
        !one(place, "->getParentNode()->getChildNodes()->at() at its place", *handle, list->at(model.index(number))))
      return false;
  }
  if (next != nullptr && !one(place, "->getNextSibling()->getPreviousSibling()", *handle, next->getPreviousSibling()))
    return false;
  return previous == nullptr ||
         one(place, "->getPreviousSibling()->getNextSibling()", *handle, previous->getNextSibling());
}

bool axmModelRun::check_owner(Place const& place, Node const& handle, int number)
{
  int const document = model.node(number).document;
  if (document == axmModel::unknown)
    return true;
  Document const owner = handle->getOwnerDocument();
  if (!same(place, "->getOwnerDocument() != nullptr", true, owner != nullptr))
    return false;
  for (std::size_t index = 0; index < slots.size(); ++index)
  {
    Slot const& other = slots[index];
    if (other.handle == nullptr || model.node(other.number).kind != Kind::document)
      continue;
    bool const is_owner = other.number == document;
    if (!same(place, "->getOwnerDocument() is the document", is_owner, *owner == *other.handle))
      return false;
    auto const other_document = std::dynamic_pointer_cast<axmDocument>(other.handle);
    if (is_owner && other_document != nullptr &&
        !same(place, "->getOwnerDocument()->getDocumentURI()", std::wstring(view(other_document->getDocumentURI())),
          owner->getDocumentURI()))
      return false;
  }
  return true;
}

bool axmModelRun::check_children(Place const& place, Node const& handle, int number, std::vector<Node>& children)
{
  std::vector<int> const& promised = model.node(number).children;
  if (model.node(number).kind == Kind::attribute)
    return true;
  if (!same(place, "->hasChildNodes()", !promised.empty(), handle->hasChildNodes()))
    return false;
  Node child = handle->getFirstChild();
  for (std::size_t index = 0; index < promised.size(); ++index)
  {
    if (!same(place, " has a child more, by getFirstChild() and getNextSibling()", true, child != nullptr) ||
        !same(place, ", name of a child", model.node_name(promised[index]), child->getNodeName()) ||
        !one(place, ", parent of a child", *handle, child->getParentNode()))
      return false;
    children.push_back(child);
    child = child->getNextSibling();
  }
  if (!none(place, " has a child more, by getFirstChild() and getNextSibling()", child))
    return false;
  child = handle->getLastChild();
  for (std::size_t index = promised.size(); index-- > 0;)
  {
    if (!same(place, " has a child more, by getLastChild() and getPreviousSibling()", true, child != nullptr) ||
        !one(place, " from its last child back", *children[index], child))
      return false;
    child = child->getPreviousSibling();
  }
  if (!none(place, " has a child more, by getLastChild() and getPreviousSibling()", child))
    return false;
  return check_child_list(place, handle, children);
}

bool axmModelRun::check_child_list(Place const& place, Node const& handle, std::vector<Node> const& children)
{
  List const list = handle->getChildNodes();
  int const length = static_cast<int>(children.size());
  if (list == nullptr)
    return !(is_a<axmElement>(*handle) || is_a<axmDocument>(*handle)) ||
           same(place, "->getChildNodes() != nullptr", true, false);
  if (!same(place, "->getChildNodes()->length()", length, list->length()) ||
      !same(place, "->getChildNodes()->isEmpty()", length == 0, list->isEmpty()) ||
      !same(place, "->getChildNodes()->invalid()", true, list->invalid()))
    return false;
  // From the end, so that one which remembers its place has to go back.
  for (int index = length; index-- > 0;)
    if (!one(place, "->getChildNodes()->at()", *children[static_cast<std::size_t>(index)], list->at(index)))
      return false;
  for (int index = 0; index < length; ++index)
    if (!one(place, "->getChildNodes()->at()", *children[static_cast<std::size_t>(index)], list->at(index)))
      return false;
  for (int const outside : {-1, length, length + 1, INT_MAX, INT_MIN})
    if (!none(place, "->getChildNodes()->at() outside", list->at(outside)))
      return false;
  return true;
}

bool axmModelRun::check_attributes(Place const& place, Node const& handle, int number)
{
  auto const element = std::dynamic_pointer_cast<axmElement>(handle);
  auto const map = handle->getAttributes();
  if (!same(place, "->getAttributes() != nullptr", true, map != nullptr))
    return false;
  std::vector<int> const attributes = attributes_in(*map, number);
  if (!same(place, "->hasAttributes()", !attributes.empty(), handle->hasAttributes()) ||
      !same(place, "->getAttributes()->getLength()", static_cast<int>(attributes.size()), map->getLength()))
    return false;
  for (int const attribute : model.node(number).attributes)
  {
    bool const is_there = std::find(attributes.begin(), attributes.end(), attribute) != attributes.end();
    if (!(is_there ? check_attribute(place, *element, *map, attribute)
                   : check_absent(place, *element, *map, narrow(model.node(attribute).name))))
      return false;
  }
  for (wchar_t const* const name : {L"absent", L"k", L"K", L"Id", L"ke", L"", L"*", L" k", L"n", L"lang", L"\u0424"})
    if (model.find_attribute(number, name) == axmModel::none && !check_absent(place, *element, *map, apString(name)))
      return false;
  return check_map_items(place, *map, attributes);
}

// Whether the declarations of namespaces that a document holds are attributes is left open, but the answer is the same
// however it is asked.
std::vector<int> axmModelRun::attributes_in(axmNamedNodeMap& map, int number) const
{
  std::vector<int> attributes = model.node(number).attributes;
  auto const is_hidden = [&](int attribute)
  {
    std::wstring const& name = model.node(attribute).name;
    return name.substr(0, 6) == L"xmlns:" && map.getNamedItem(narrow(name)) == nullptr;
  };
  attributes.erase(std::remove_if(attributes.begin(), attributes.end(), is_hidden), attributes.end());
  return attributes;
}

bool axmModelRun::check_absent(Place const& place, axmElement& element, axmNamedNodeMap& map, apString const& name)
{
  apString value = APSTRING("before");
  return same(place, "->hasAttribute() of an absent name", false, element.hasAttribute(name)) &&
         same(place, "->getAttribute() of an absent name", L"", element.getAttribute(name)) &&
         same(place, "->get_attribute(name, text) of an absent name", false, element.get_attribute(name, value)) &&
         same(place, "->get_attribute(name, text) of an absent name, the text", L"before", value) &&
         none(place, "->getAttributes()->getNamedItem() of an absent name", map.getNamedItem(name));
}

bool axmModelRun::check_attribute(Place const& place, axmElement& element, axmNamedNodeMap& map, int attribute)
{
  axmModelNode const& promised = model.node(attribute);
  apString const name = narrow(promised.name);
  apString value;
  if (!same(place, "->hasAttribute()", true, element.hasAttribute(name)) ||
      !same(place, "->getAttribute()", promised.value, element.getAttribute(name)) ||
      !same(place, "->get_attribute(name, text)", true, element.get_attribute(name, value)) ||
      !same(place, "->get_attribute(name, text), the text", promised.value, value))
    return false;
  Node const node = map.getNamedItem(name);
  if (!same(place, "->getAttributes()->getNamedItem() != nullptr", true, node != nullptr) ||
      !same(place, "->getAttributes()->getNamedItem()->getNodeName()", promised.name, node->getNodeName()) ||
      !same(place, "->getAttributes()->getNamedItem()->getNodeValue()", promised.value, node->getNodeValue()) ||
      !none(place, "->getAttributes()->getNamedItem()->getParentNode()", node->getParentNode()))
    return false;
  int const known = handle_of(attribute);
  return known == axmModelStep::no_slot || one(place, "->getAttributes()->getNamedItem()", *handle(known), node);
}

bool axmModelRun::check_map_items(Place const& place, axmNamedNodeMap& map, std::vector<int> left)
{
  int const length = static_cast<int>(left.size());
  for (int index = 0; index < length; ++index)
  {
    Node const item = map.item(index);
    if (!same(place, "->getAttributes()->item() != nullptr", true, item != nullptr))
      return false;
    apString const name = item->getNodeName();
    auto const match =
      std::find_if(left.begin(), left.end(), [&](int attribute) { return model.node(attribute).name == view(name); });
    if (match == left.end())
      return differ(place, "->getAttributes()->item()", "each attribute once", axmModelText::quoted(view(name)));
    if (!same(place, "->getAttributes()->item()->getNodeValue()", model.node(*match).value, item->getNodeValue()) ||
        !one(place, "->getAttributes()->item()", *item, map.getNamedItem(name)))
      return false;
    left.erase(match);
  }
  for (int const outside : {-1, length, INT_MAX, INT_MIN})
    if (!none(place, "->getAttributes()->item() outside", map.item(outside)))
      return false;
  return true;
}

bool axmModelRun::check_no_attributes(Place const& place, Node const& handle, bool is_item)
{
  apString value = APSTRING("before");
  apString const name = APSTRING("k");
  bool const is_well = same(place, "->hasAttributes()", false, handle->hasAttributes()) &&
                       same(place, "->getAttributes() != nullptr", false, handle->getAttributes() != nullptr) &&
                       same(place, "->get_attribute()", false, handle->get_attribute(name, value)) &&
                       same(place, "->get_attribute(), the text", L"before", value) &&
                       same(place, "->set_attribute()", false, handle->set_attribute(name, value));
  if (!is_well || !is_item)
    return is_well;
  auto const item = std::dynamic_pointer_cast<axmElement>(handle);
  return item == nullptr || (same(place, "->hasAttribute()", false, item->hasAttribute(name)) &&
                              same(place, "->getAttribute()", L"", item->getAttribute(name)));
}

bool axmModelRun::check_identity(int given)
{
  Slot const& left = slots[static_cast<std::size_t>(given)];
  for (std::size_t index = 0; index < slots.size(); ++index)
  {
    Slot const& right = slots[index];
    if (right.handle == nullptr)
      continue;
    bool const promised = left.number == right.number;
    bool const came = *left.handle == *right.handle;
    if (promised != came)
      return differ({given, {}}, " == *" + axm_model_variable(static_cast<int>(index)), promised ? "true" : "false",
        came ? "true" : "false");
  }
  return true;
}

bool axmModelRun::check_document(Place const& place, axmDocument& document, int number)
{
  int const root = model.root(number);
  Element const came = document.getDocumentElement();
  if (!same(place, "->getDocumentElement() != nullptr", root != axmModel::none, came != nullptr))
    return false;
  if (came != nullptr &&
      !same(place, "->getDocumentElement()->getNodeName()", model.node_name(root), came->getNodeName()))
    return false;
  for (wchar_t const* const name : {L"a", L"b", L"n:a", L"absent", L"*", L"", L"n", L"\u0424"})
  {
    std::vector<int> const promised = model.elements_by_name(number, name);
    List const list = document.getElementsByTagName(apString(name));
    if (!same(place, "->getElementsByTagName() != nullptr", true, list != nullptr) ||
        !same(place, "->getElementsByTagName()->length()", static_cast<int>(promised.size()), list->length()))
      return false;
    if (!are_items(*list, promised))
      return differ(place, "->getElementsByTagName()", "the elements of that name in document order", "others");
  }
  return true;
}

std::vector<int> axmModelRun::present_items(Slot const& checked)
{
  if (checked.list_name.empty())
    return model.node(checked.list_of).children;
  // Whether what a search found follows later changes, the contract leaves open.
  std::vector<int> const now = model.elements_by_name(checked.list_of, checked.list_name);
  bool const follows = checked.list->length() == static_cast<int>(now.size()) && are_items(*checked.list, now);
  return follows ? now : checked.list_found;
}

bool axmModelRun::check_list(int given)
{
  Slot const checked = slots[static_cast<std::size_t>(given)];
  Place const place = {given, {}};
  std::vector<int> const items = present_items(checked);
  int const length = static_cast<int>(items.size());
  if (!same(place, "->length()", length, checked.list->length()) ||
      !same(place, "->isEmpty()", length == 0, checked.list->isEmpty()) ||
      !same(place, "->invalid()", checked.cursor < 0 || checked.cursor >= length, checked.list->invalid()))
    return false;
  if (!are_items(*checked.list, items))
    return differ(place, ", its items in order", "what the tree holds", "others");
  for (int const outside : {-1, length, INT_MAX, INT_MIN})
    if (!none(place, "->at() outside", checked.list->at(outside)))
      return false;
  if (checked.cursor < 0 || checked.cursor >= length)
    return true;
  Element const current = (*checked.list)();
  return same(place, "->operator()() != nullptr", true, current != nullptr) &&
         one(place, "->operator()()", *checked.list->at(checked.cursor), current);
}

bool axmModelRun::are_items(axmNodeList& list, std::vector<int> const& numbers)
{
  for (std::size_t index = 0; index < numbers.size(); ++index)
  {
    Element const item = list.at(static_cast<int>(index));
    int const known = handle_of(numbers[index]);
    if (item == nullptr || item->getNodeName().view() != model.node_name(numbers[index]) ||
        item->get_text().view() != model.text(numbers[index]))
      return false;
    if (known != axmModelStep::no_slot && (!(*handle(known) == *item) || !(*item == *handle(known))))
      return false;
  }
  return true;
}

bool axmModelRun::same(Place const& place, char const* question, std::wstring const& promised, apString const& came)
{
  ++asked;
  return view(came) == promised ||
         differ(place, question, axmModelText::quoted(promised), axmModelText::quoted(view(came)));
}

bool axmModelRun::same(Place const& place, char const* question, bool promised, bool came)
{
  ++asked;
  return promised == came || differ(place, question, promised ? "true" : "false", came ? "true" : "false");
}

bool axmModelRun::same(Place const& place, char const* question, int promised, int came)
{
  ++asked;
  return promised == came || differ(place, question, std::to_string(promised), std::to_string(came));
}

bool axmModelRun::none(Place const& place, char const* question, Node const& came)
{
  ++asked;
  return came == nullptr || differ(place, question, "no node", axmModelText::quoted(view(came->getNodeName())));
}

bool axmModelRun::one(Place const& place, char const* question, axmNode const& promised, Node const& came)
{
  ++asked;
  if (came == nullptr)
    return differ(place, question, axmModelText::quoted(view(promised.getNodeName())), "no node");
  return (promised == *came && *came == promised) ||
         differ(place, question, "the same node",
           "one that is not equal, " + axmModelText::quoted(view(came->getNodeName())));
}

bool axmModelRun::differ(
  Place const& place, std::string const& question, std::string const& promised, std::string const& came)
{
  if (!found.empty())
    return false;
  std::string where = place.slot == axmModelStep::no_slot ? "" : axm_model_variable(place.slot);
  for (int const index : place.path)
    where += "->getChildNodes()->at(" + std::to_string(index) + ")";
  found = where + question + ": promised is " + promised + ", what came is " + came;
  return false;
}
