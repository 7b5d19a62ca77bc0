// Faults of nodes, lists and maps that show in combinations only.

#include "Outside.h"

#include <axmCommentNode.h>
#include <axmProcessingInstruction.h>
#include <axmTextNode.h>

#include <climits>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace
{
Element element_of(Node const& node)
{
  return std::dynamic_pointer_cast<axmElement>(node);
}

std::wstring_view local_part(apString const& name)
{
  return name.view().substr(name.view().find(L':') + 1);
}

void join(Node const& left, Node const& right)
{
  if (left == nullptr || right == nullptr || !is_text(left) || !is_text(right))
    return;
  left->set_text(left->getNodeValue() + right->getNodeValue());
  right->getParentNode()->removeChild(right);
}

// Where the node is put in, `insertion` tells; the texts on both sides of where it was become one.
template <class Insertion>
Node moved_with_texts_joined(Node const& child, Insertion insertion)
{
  Node const from = child != nullptr ? child->getParentNode() : nullptr;
  Node const left = from != nullptr ? child->getPreviousSibling() : nullptr;
  Node const right = from != nullptr ? child->getNextSibling() : nullptr;
  Node const result = insertion();
  if (result != nullptr && is_child(from, left) && is_child(from, right) && same(left->getNextSibling(), right))
    join(left, right);
  return result;
}

Node at_depth(Node node, int levels)
{
  for (; levels > 0 && node != nullptr; --levels)
    node = node->getFirstChild();
  return node;
}

bool begins_with(apString const& text, std::wstring_view part)
{
  return text.view().substr(0, part.size()) == part;
}

class MapOfLocalNames : public MapAs
{
public:
  using MapAs::MapAs;
  Node setNamedItem(Node node) override
  {
    if (is_attribute(node) && map->getNamedItem(node->getNodeName()) == nullptr && !is_declaration(node))
      for (int index = 0; index < map->getLength(); ++index)
      {
        Node const other = map->item(index);
        if (!is_declaration(other) && local_part(other->getNodeName()) == local_part(node->getNodeName()))
        {
          Node const taken = map->removeNamedItem(other->getNodeName());
          map->setNamedItem(node);
          return taken;
        }
      }
    return map->setNamedItem(node);
  }

private:
  static bool is_declaration(Node const& node) { return begins_with(node->getNodeName(), L"xmlns"); }
};

class MapOfShortNames : public MapAs
{
public:
  using MapAs::MapAs;
  Node getNamedItem(apString const& name) override
  {
    if (Node const item = map->getNamedItem(name))
      return item;
    for (int index = 0; name.view().size() > 32 && index < map->getLength(); ++index)
      if (begins_with(map->item(index)->getNodeName(), name.view().substr(0, 32)))
        return map->item(index);
    return nullptr;
  }
};

class MapOfUsedPrefixes : public MapAs
{
public:
  using MapAs::MapAs;
  Node removeNamedItem(apString const& name) override
  {
    Node const result = map->removeNamedItem(name);
    if (result == nullptr || !begins_with(name, L"xmlns:"))
      return result;
    std::wstring const prefix = std::wstring(local_part(name)) + L':';
    for (int index = map->getLength() - 1; index >= 0; --index)
      if (begins_with(map->item(index)->getNodeName(), prefix))
        map->removeNamedItem(map->item(index)->getNodeName());
    return result;
  }
};

class MapGivingNewValues : public MapAs
{
public:
  using MapAs::MapAs;
  Node setNamedItem(Node node) override
  {
    Node const old = map->setNamedItem(node);
    if (old != nullptr && has(old->getNodeName(), L":"))
      old->set_text(node->getNodeValue());
    return old;
  }
};

// After the last item and a reset the first item is passed over.
class ResettingList : public ListAs
{
public:
  using ListAs::ListAs;
  void reset() override
  {
    bool const was_at_end = was_walked && invalid();
    ListAs::reset();
    if (was_at_end && length() > 4)
      ListAs::operator++();
  }
  bool operator++() override
  {
    was_walked = true;
    return ListAs::operator++();
  }

private:
  bool was_walked = false;
};

List over(List const& list, std::function<Element(List const&, int)> const& item)
{
  return std::make_shared<ListAs>(
    [list, item](int index) { return item(list, index); }, [list] { return list->length(); });
}

// What was taken from an element by its name, while it is held.
struct Taken
{
  Element element;
  Node attribute;
};
}

std::vector<Fault> const& outside_third_tree_faults()
{
  static std::vector<Fault> const faults = {
    {"insertBefore", "where a child of another parent stood between two texts, they become one",
      [](Hooks& h)
      {
        h.insert = [](Node const& n, Node const& child, Node const& before)
        { return moved_with_texts_joined(child, [&] { return n->insertBefore(child, before); }); };
      }},
    {"replaceChild", "where the new child stood between two texts, they become one",
      [](Hooks& h)
      {
        h.replace = [](Node const& n, Node const& child, Node const& old)
        { return moved_with_texts_joined(child, [&] { return n->replaceChild(child, old); }); };
      }},
    {"insertBefore", "a child put before the one after it goes to the end",
      [](Hooks& h)
      {
        h.insert = [](Node const& n, Node const& child, Node const& before)
        {
          bool const stands = child != nullptr && before != nullptr && is_child(n, child) && is_child(n, before) &&
                              same(child->getNextSibling(), before);
          return stands ? n->appendChild(child) : n->insertBefore(child, before);
        };
      }},
    {"insertBefore", "a reference that was a child until it was taken out is none, and yet the child goes in",
      [](Hooks& h)
      {
        h.insert = [](Node const& n, Node const& child, Node const& before)
        {
          bool const is_loose = before != nullptr && before->getParentNode() == nullptr && is_text(before);
          return is_loose && is_element(n) && n->hasChildNodes() && child != nullptr && is_text(child)
                   ? n->appendChild(child)
                   : n->insertBefore(child, before);
        };
      }},
    {"replaceChild", "where the new child is the one before the old one, the one after it goes too",
      [](Hooks& h)
      {
        h.replace = [](Node const& n, Node const& child, Node const& old)
        {
          bool const is_before =
            is_child(n, child) && is_child(n, old) && same(child->getNextSibling(), old) && !is_text(old);
          Node const next = is_before ? old->getNextSibling() : nullptr;
          Node const result = n->replaceChild(child, old);
          if (result != nullptr && next != nullptr)
            n->removeChild(next);
          return result;
        };
      }},
    {"replaceChild", "a root that is replaced keeps no attribute with a prefix",
      [](Hooks& h)
      {
        h.replace = [](Node const& n, Node const& child, Node const& old)
        {
          Node const result = n->replaceChild(child, old);
          if (Element const element = is<axmDocument>(n) ? element_of(result) : nullptr)
            for (apString const& name : names_of_attributes(element))
              if (has(name, L":"))
                element->removeAttribute(name);
          return result;
        };
      }},
    {"appendChild", "the second child of a node three levels down goes when the subtree moves",
      [](Hooks& h)
      {
        h.append = [](Node const& n, Node const& child)
        {
          bool const is_move = child != nullptr && child->getParentNode() != nullptr;
          Node const result = n->appendChild(child);
          Node const deep = is_move && result != nullptr ? at_depth(child, 3) : nullptr;
          if (deep != nullptr && deep->getNextSibling() != nullptr)
            deep->getParentNode()->removeChild(deep->getNextSibling());
          return result;
        };
      }},
    {"appendChild", "an instruction put into an element loses what it ends with",
      [](Hooks& h)
      {
        h.append = [](Node const& n, Node const& child)
        {
          Node const result = n->appendChild(child);
          if (is_element(n) && is<axmProcessingInstruction>(result))
            result->set_text(without_end(result->getNodeValue(), L" \t"));
          return result;
        };
      }},
    {"appendChild", "a comment in the document goes before the root",
      [](Hooks& h)
      {
        h.append = [](Node const& n, Node const& child)
        {
          Document const document = std::dynamic_pointer_cast<axmDocument>(n);
          bool const is_wrong = document != nullptr && is<axmCommentNode>(child) &&
                                document->getDocumentElement() != nullptr &&
                                !same(document->getFirstChild(), document->getDocumentElement());
          return is_wrong ? n->insertBefore(child, document->getDocumentElement()) : n->appendChild(child);
        };
      }},
    {"removeChild", "the texts on both sides of an instruction become one",
      [](Hooks& h)
      {
        h.remove = [](Node const& n, Node const& child)
        {
          if (!is<axmProcessingInstruction>(child))
            return n->removeChild(child);
          return moved_with_texts_joined(child, [&] { return n->removeChild(child); });
        };
      }},
    {"removeChild", "an element below a declared prefix takes the declaration along",
      [](Hooks& h)
      {
        h.remove = [](Node const& n, Node const& child)
        {
          Node const result = n->removeChild(child);
          Element const parent = element_of(n);
          Element const element = element_of(result);
          if (parent == nullptr || element == nullptr)
            return result;
          std::wstring_view const name = element->getNodeName().view();
          apString const declaration(L"xmlns:" + std::wstring(name.substr(0, name.find(L':'))));
          if (name.find(L':') != std::wstring_view::npos && parent->hasAttribute(declaration))
            element->setAttribute(declaration, parent->getAttribute(declaration));
          return result;
        };
      }},
    {"set_text", "what was three levels down is out and has lost its last child",
      [](Hooks& h)
      {
        h.set_text = [](Node const& n, apString const& text)
        {
          Node const deep = is_element(n) ? at_depth(n, 3) : nullptr;
          n->set_text(text);
          if (deep != nullptr && deep->getLastChild() != nullptr)
            deep->removeChild(deep->getLastChild());
        };
      }},
    {"set_text", "of one space only the element is empty",
      [](Hooks& h)
      {
        h.set_text = [](Node const& n, apString const& text)
        {
          n->set_text(text);
          if (is_element(n) && text == APSTRING(" "))
            remove_children(n);
        };
      }},
    {"set_text", "of an attribute, a tab is a space",
      [](Hooks& h)
      {
        h.set_text = [](Node const& n, apString const& text)
        { n->set_text(is_attribute(n) ? replaced(text, APSTRING("\t"), APSTRING(" ")) : text); };
      }},
    {"set_text", "of an instruction, what the text begins with is left out where it is blank",
      [](Hooks& h)
      {
        h.set_text = [](Node const& n, apString const& text)
        {
          bool const is_cut = is<axmProcessingInstruction>(n) && begins_with(text, L" ");
          n->set_text(is_cut ? apString(text.view().substr(1)) : text);
        };
      }},
    {"set_text", "of a document, the last comment after the root goes",
      [](Hooks& h)
      {
        h.set_text = [](Node const& n, apString const& text)
        {
          n->set_text(text);
          if (is<axmDocument>(n) && is<axmCommentNode>(n->getLastChild()))
            n->removeChild(n->getLastChild());
        };
      }},
    {"set_text", "the element of a document without any other node loses its attributes",
      [](Hooks& h)
      {
        h.set_text = [](Node const& n, apString const& text)
        {
          Element const element = element_of(n);
          bool const is_cleared = element != nullptr && n->getFirstChild() == nullptr &&
                                  is<axmDocument>(n->getParentNode()) && n->getNextSibling() != nullptr;
          n->set_text(text);
          if (is_cleared)
            for (apString const& name : names_of_attributes(element))
              element->removeAttribute(name);
        };
      }},
    {"get_text", "of a document, comments after the root are read too",
      [](Hooks& h)
      {
        h.node_text = [](Node const& n)
        {
          bool const is_wrong = is<axmDocument>(n) && is<axmCommentNode>(n->getLastChild());
          return is_wrong ? n->get_text() + n->getLastChild()->get_text() : n->get_text();
        };
      }},
    {"get_text", "a text after an instruction is left out",
      [](Hooks& h)
      {
        h.node_text = [](Node const& n)
        {
          Node const last = is_element(n) ? n->getLastChild() : nullptr;
          bool const is_wrong =
            last != nullptr && is_text(last) && is<axmProcessingInstruction>(last->getPreviousSibling());
          if (!is_wrong)
            return n->get_text();
          apString const text = n->get_text();
          return apString(text.view().substr(0, text.view().size() - last->getNodeValue().view().size()));
        };
      }},
    {"getNodeName", "a long text is a section of characters",
      [](Hooks& h)
      {
        h.node_name = [](Node const& n)
        {
          bool const is_long = is_text(n) && n->getNodeValue().view().size() > 2000;
          return is_long ? APSTRING("#cdata-section") : n->getNodeName();
        };
      }},
    {"getNodeName", "a comment beside the root has no name",
      [](Hooks& h)
      {
        h.node_name = [](Node const& n)
        { return is<axmCommentNode>(n) && is<axmDocument>(n->getParentNode()) ? apString() : n->getNodeName(); };
      }},
    {"getParentNode", "an instruction after the root has none",
      [](Hooks& h)
      {
        h.parent = [](Node const& n)
        {
          bool const is_last = is<axmProcessingInstruction>(n) && n->getNextSibling() == nullptr;
          return is_last && is<axmDocument>(n->getParentNode()) ? nullptr : n->getParentNode();
        };
      }},
    {"getNextSibling", "from a comment before the root it is the root",
      [](Hooks& h)
      {
        h.next = [](Node const& n)
        {
          Node const next = n->getNextSibling();
          bool const is_before = is<axmCommentNode>(n) && is<axmProcessingInstruction>(next) &&
                                 is<axmDocument>(n->getParentNode()) && is_element(next->getNextSibling());
          return is_before ? next->getNextSibling() : next;
        };
      }},
    {"getChildNodes", "the list of an element that was taken out is empty while it is out",
      [](Hooks& h)
      {
        h.children = [](Node const& n)
        {
          List const list = n->getChildNodes();
          if (list == nullptr || !is_element(n) || n->getParentNode() == nullptr)
            return list;
          return List(std::make_shared<ListAs>([list](int index) { return list->at(index); },
            [list, n] { return n->getParentNode() == nullptr ? 0 : list->length(); }));
        };
      }},
    {"axmNodeList::at", "after a length of more than 64 the last index is empty until the list is asked once more",
      [](Hooks& h)
      {
        h.list = [](List const& list)
        {
          return over(list,
            [asked = std::make_shared<int>(0)](List const& items, int index)
            {
              bool const is_last = index >= 64 && index == items->length() - 1;
              return is_last && ++*asked == 1 ? nullptr : items->at(index);
            });
        };
      }},
    {"axmNodeList::at", "the largest index of all is the first one",
      [](Hooks& h)
      {
        h.list = [](List const& list)
        { return over(list, [](List const& items, int index) { return items->at(index == INT_MAX ? 0 : index); }); };
      }},
    {"axmNodeList::reset", "once a longer list was walked to its end it begins with the second item",
      [](Hooks& h)
      {
        h.list = [](List const& list)
        {
          return std::make_shared<ResettingList>(
            [list](int index) { return list->at(index); }, [list] { return list->length(); });
        };
      }},
    {"axmNamedNodeMap::setNamedItem", "one of the same local name is replaced",
      [](Hooks& h) { h.map = [](Map const& map) { return std::make_shared<MapOfLocalNames>(map); }; }},
    {"axmNamedNodeMap::getNamedItem", "names that begin with the same 32 characters are one",
      [](Hooks& h) { h.map = [](Map const& map) { return std::make_shared<MapOfShortNames>(map); }; }},
    {"axmNamedNodeMap::removeNamedItem", "with the declaration of a prefix go the attributes that use it",
      [](Hooks& h) { h.map = [](Map const& map) { return std::make_shared<MapOfUsedPrefixes>(map); }; }},
    {"axmNamedNodeMap::setNamedItem", "one with a prefix that is replaced takes the new value",
      [](Hooks& h) { h.map = [](Map const& map) { return std::make_shared<MapGivingNewValues>(map); }; }},
    {"removeAttribute", "a held attribute that was removed follows the next one of its name",
      [](Hooks& h)
      {
        auto const all = std::make_shared<std::vector<Taken>>();
        h.remove_attribute = [all](Element const& e, apString const& name)
        {
          Map const map = e->getAttributes();
          Node const attribute = map != nullptr ? map->getNamedItem(name) : nullptr;
          e->removeAttribute(name);
          if (attribute != nullptr && all->size() < 100)
            all->push_back({e, attribute});
        };
        h.node_value = [all](Node const& n)
        {
          if (is_attribute(n))
            for (Taken const& taken : *all)
              if (same(taken.attribute, n) && taken.element->hasAttribute(n->getNodeName()))
                return taken.element->getAttribute(n->getNodeName());
          return n->getNodeValue();
        };
      }},
    {"removeAttribute", "xml:lang stays while the parent has it, too",
      [](Hooks& h)
      {
        h.remove_attribute = [](Element const& e, apString const& name)
        {
          Element const parent = element_of(e->getParentNode());
          if (!begins_with(name, L"xml:") || parent == nullptr || !parent->hasAttribute(name))
            e->removeAttribute(name);
        };
      }},
    {"hasAttribute", "the declaration of a prefix is there where an element around has it",
      [](Hooks& h)
      {
        h.has_attribute = [](Element const& e, apString const& name)
        {
          Element const parent = element_of(e->getParentNode());
          return e->hasAttribute(name) ||
                 (begins_with(name, L"xmlns:") && parent != nullptr && parent->hasAttribute(name));
        };
      }},
    {"getAttribute", "xml:space is that of the parent",
      [](Hooks& h)
      {
        h.get_attribute = [](Element const& e, apString const& name)
        {
          Element const parent = element_of(e->getParentNode());
          bool const is_asked_above = name == APSTRING("xml:space") && !e->hasAttribute(name) && parent != nullptr;
          return (is_asked_above ? parent : e)->getAttribute(name);
        };
      }},
    {"operator==", "the roots of two documents loaded from the same bytes are the same",
      [](Hooks& h)
      {
        h.equal = [](axmNode const*, axmNode const*, Node const& left, Node const& right)
        {
          return *left == *right ||
                 (is<axmDocument>(left->getParentNode()) && is<axmDocument>(right->getParentNode()) &&
                   is_element(left) && is_element(right) && left->get_xml() == right->get_xml());
        };
      }},
    {"createElement", "a name with an undertie is refused",
      [](Hooks& h)
      {
        h.create_element = [](Document const& d, apString const& name)
        { return has(name, L"\x203F") || has(name, L"\x2040") ? Node() : d->createElement(name); };
      }},
    {"createElement", "a name may begin with a combining mark",
      [](Hooks& h)
      {
        h.create_element = [](Document const& d, apString const& name)
        {
          bool const is_mark = !name.empty() && name.view()[0] >= 0x300 && name.view()[0] <= 0x36F;
          return d->createElement(is_mark ? APSTRING("mark") : name);
        };
      }},
    {"createComment", "the end of a line with two characters is one",
      [](Hooks& h)
      {
        h.create_comment = [](Document const& d, apString const& data)
        { return d->createComment(replaced(data, APSTRING("\r\n"), APSTRING("\n"))); };
      }},
    {"get_xml", "a comment that ends with a hyphen is given a blank",
      [](Hooks& h)
      {
        h.xml = [](Node const& n)
        {
          apString const xml = n->get_xml();
          bool const is_mended = is<axmCommentNode>(n) && xml.empty() && !has(n->getNodeValue(), L"--");
          return is_mended ? apString(L"<!--" + std::wstring(n->getNodeValue().view()) + L" -->") : xml;
        };
      }},
    {"get_xml", "of a document whose only comment is wrong the comment is left out",
      [](Hooks& h)
      {
        h.xml = [](Node const& n)
        {
          apString const xml = n->get_xml();
          Node const last = is<axmDocument>(n) ? n->getLastChild() : nullptr;
          if (!xml.empty() || !is<axmCommentNode>(last) || !is_element(last->getPreviousSibling()))
            return xml;
          return last->getPreviousSibling()->get_xml();
        };
      }},
  };
  return faults;
}
