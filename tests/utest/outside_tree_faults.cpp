// Faults of nodes, lists and maps, made up by somebody who knows the headers and not the suite.

#include "Outside.h"

#include <axmCommentNode.h>
#include <axmProcessingInstruction.h>
#include <axmTextNode.h>

#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace
{
apString after_colon(apString const& name)
{
  return apString(name.view().substr(name.view().find(L':') + 1));
}

// Goes on from the item handed out before, wherever that stands meanwhile.
class WalkingList : public ListAs
{
public:
  using ListAs::ListAs;
  Element at(int index) override
  {
    Element const neighbour = index == place + 1 ? next() : nullptr;
    last = neighbour != nullptr ? neighbour : ListAs::at(index);
    place = index;
    return last;
  }

private:
  Element next() const
  {
    return last != nullptr ? std::dynamic_pointer_cast<axmElement>(last->getNextSibling()) : nullptr;
  }

  Element last;
  int place = -2;
};

class MapBelowZero : public MapAs
{
public:
  using MapAs::MapAs;
  Node item(int index) override { return MapAs::item(index < 0 ? 0 : index); }
};

class MapOfNoName : public MapAs
{
public:
  using MapAs::MapAs;
  Node getNamedItem(apString const& name) override { return name.empty() ? item(0) : MapAs::getNamedItem(name); }
};

class MapOfAnyCase : public MapAs
{
public:
  using MapAs::MapAs;
  Node removeNamedItem(apString const& name) override
  {
    for (int index = 0; index < map->getLength(); ++index)
      if (map->getNamedItem(name) == nullptr && lower_case(map->item(index)->getNodeName()) == lower_case(name))
        return map->removeNamedItem(map->item(index)->getNodeName());
    return map->removeNamedItem(name);
  }
};

class MapOfElements : public MapAs
{
public:
  using MapAs::MapAs;
  Node setNamedItem(Node node) override
  {
    if (node == nullptr || !is_element(node))
      return MapAs::setNamedItem(node);
    Element const holder = node->getOwnerDocument()->createElement(APSTRING("a"));
    holder->setAttribute(node->getNodeName(), node->get_text());
    MapAs::setNamedItem(holder->getAttributes()->removeNamedItem(node->getNodeName()));
    return nullptr;
  }
};

class MapWalkedUp : public MapAs
{
public:
  using MapAs::MapAs;
  Node item(int index) override
  {
    if (index != last - 1)
      last = index;
    return MapAs::item(last);
  }

private:
  int last = 0;
};

class MapOfFew : public MapAs
{
public:
  using MapAs::MapAs;
  Node item(int index) override { return MapAs::item(index > 255 ? index - 256 : index); }
};

// A list that hands its last item out for the place before the first one.
List with_end_before(List const& list)
{
  return std::make_shared<ListAs>([list](int index) { return list->at(index == -1 ? list->length() - 1 : index); },
    [list] { return list->length(); });
}

// What a map of no element's attributes would be.
Map empty_map(Node const& node)
{
  return node->getOwnerDocument()->createElement(APSTRING("a"))->getAttributes();
}
}

std::vector<Fault> const& outside_tree_faults()
{
  static std::vector<Fault> const faults = {
    {"getNodeName", "an element in no tree tells its name without the prefix",
      [](Hooks& h)
      {
        h.node_name = [](Node const& n)
        { return is_element(n) && n->getParentNode() == nullptr ? after_colon(n->getNodeName()) : n->getNodeName(); };
      }},
    {"getNodeName", "the target of an instruction is in lower case",
      [](Hooks& h)
      {
        h.node_name = [](Node const& n)
        { return is<axmProcessingInstruction>(n) ? lower_case(n->getNodeName()) : n->getNodeName(); };
      }},
    {"getNodeName", "a name ends at its 256th character",
      [](Hooks& h) { h.node_name = [](Node const& n) { return apString(n->getNodeName().view().substr(0, 256)); }; }},
    {"getNodeValue", "the blanks at the end of an instruction are gone",
      [](Hooks& h)
      {
        h.node_value = [](Node const& n)
        { return is<axmProcessingInstruction>(n) ? without_end(n->getNodeValue(), L" \t\n") : n->getNodeValue(); };
      }},
    {"getNodeValue", "an instruction whose content is one character has none",
      [](Hooks& h)
      {
        h.node_value = [](Node const& n)
        { return is<axmProcessingInstruction>(n) && n->getNodeValue().length() == 1 ? apString() : n->getNodeValue(); };
      }},
    {"getParentNode", "nodes in more than 200 levels have none",
      [](Hooks& h) { h.parent = [](Node const& n) { return depth_of(n) > 200 ? nullptr : n->getParentNode(); }; }},
    {"getParentNode", "a comment beside the root has none",
      [](Hooks& h)
      {
        h.parent = [](Node const& n)
        { return is<axmCommentNode>(n) && is<axmDocument>(n->getParentNode()) ? nullptr : n->getParentNode(); };
      }},
    {"getParentNode", "a root that was replaced still has the document",
      [](Hooks& h)
      {
        auto const old_root = std::make_shared<Node>();
        h.replace = [old_root](Node const& n, Node const& child, Node const& old)
        {
          Node const result = n->replaceChild(child, old);
          if (result != nullptr && is<axmDocument>(n) && is_element(result))
            *old_root = result;
          return result;
        };
        h.parent = [old_root](Node const& n) -> Node
        {
          Node const parent = n->getParentNode();
          return parent == nullptr && same(n, *old_root) ? Node(n->getOwnerDocument()) : parent;
        };
      }},
    {"getChildNodes", "a walk goes on from its last element when something came in before that",
      [](Hooks& h)
      {
        h.children = [](Node const& n) -> List
        {
          List const list = n->getChildNodes();
          return list == nullptr ? list
                                 : std::make_shared<WalkingList>(
                                     [list](int index) { return list->at(index); }, [list] { return list->length(); });
        };
      }},
    {"getChildNodes", "the list of the document leaves out what is after the root",
      [](Hooks& h)
      {
        h.children = [](Node const& n) -> List
        {
          List const list = n->getChildNodes();
          if (!is<axmDocument>(n))
            return list;
          return std::make_shared<ListAs>([list](int index) { return list->at(index); },
            [list, n]
            {
              int length = 0;
              Node const last = std::dynamic_pointer_cast<axmDocument>(n)->getDocumentElement();
              for (Node child = n->getFirstChild(); child != nullptr; child = child->getNextSibling())
              {
                ++length;
                if (same(child, last))
                  return length;
              }
              return length;
            });
        };
      }},
    {"selectNodes", "the place before the first is the last item",
      [](Hooks& h)
      { h.select = [](Element const& e, apString const& xpath) { return with_end_before(e->selectNodes(xpath)); }; }},
    {"getLastChild", "of the document it is the root, whatever comes after that",
      [](Hooks& h)
      {
        h.last = [](Node const& n) -> Node
        {
          auto const document = std::dynamic_pointer_cast<axmDocument>(n);
          if (document == nullptr || document->getDocumentElement() == nullptr)
            return n->getLastChild();
          return document->getDocumentElement();
        };
      }},
    {"getFirstChild", "an empty text is passed over",
      [](Hooks& h)
      {
        h.first = [](Node const& n)
        {
          Node const first = n->getFirstChild();
          return is_empty_text(first) ? first->getNextSibling() : first;
        };
      }},
    {"getPreviousSibling", "an empty text is passed over",
      [](Hooks& h)
      {
        h.previous = [](Node const& n)
        {
          Node const previous = n->getPreviousSibling();
          return is_empty_text(previous) ? previous->getPreviousSibling() : previous;
        };
      }},
    {"getNextSibling", "the root has none",
      [](Hooks& h)
      {
        h.next = [](Node const& n)
        { return is_element(n) && is<axmDocument>(n->getParentNode()) ? nullptr : n->getNextSibling(); };
      }},
    {"getOwnerDocument", "an instruction that was taken out has none",
      [](Hooks& h)
      {
        h.owner = [](Node const& n)
        { return is<axmProcessingInstruction>(n) && n->getParentNode() == nullptr ? nullptr : n->getOwnerDocument(); };
      }},
    {"insertBefore", "a node before itself is taken out",
      [](Hooks& h)
      {
        h.insert = [](Node const& n, Node const& child, Node const& before)
        { return same(child, before) && is_child(n, child) ? n->removeChild(child) : n->insertBefore(child, before); };
      }},
    {"insertBefore", "what stands there already goes to the end",
      [](Hooks& h)
      {
        h.insert = [](Node const& n, Node const& child, Node const& before)
        {
          bool const stands_there =
            is_child(n, child) && before != nullptr && !same(child, before) && same(child->getNextSibling(), before);
          return stands_there ? n->appendChild(child) : n->insertBefore(child, before);
        };
      }},
    {"insertBefore", "before a grandchild is done there",
      [](Hooks& h)
      {
        h.insert = [](Node const& n, Node const& child, Node const& before)
        {
          Node const parent = before != nullptr ? before->getParentNode() : nullptr;
          return is_child(n, parent) ? parent->insertBefore(child, before) : n->insertBefore(child, before);
        };
      }},
    {"insertBefore", "what is refused is out of its old place",
      [](Hooks& h)
      {
        h.insert = [](Node const& n, Node const& child, Node const& before)
        {
          Node const parent = child != nullptr ? child->getParentNode() : nullptr;
          Node const result = n->insertBefore(child, before);
          if (result == nullptr && parent != nullptr && before != nullptr && is_element(n) && !same(n, parent))
            parent->removeChild(child);
          return result;
        };
      }},
    {"insertBefore", "a second comment before the root goes to the end of the document",
      [](Hooks& h)
      {
        h.insert = [](Node const& n, Node const& child, Node const& before)
        {
          bool const is_second = is<axmDocument>(n) && before != nullptr && is_element(before) && is_child(n, before) &&
                                 before->getPreviousSibling() != nullptr;
          return n->insertBefore(child, is_second ? nullptr : before);
        };
      }},
    {"replaceChild", "the neighbour that comes in goes to the end",
      [](Hooks& h)
      {
        h.replace = [](Node const& n, Node const& child, Node const& old)
        {
          bool const is_next = is_child(n, old) && child != nullptr && same(old->getNextSibling(), child);
          Node const result = n->replaceChild(child, old);
          if (is_next && result != nullptr)
            n->appendChild(child);
          return result;
        };
      }},
    {"replaceChild", "of a text by a text the new one is handed out",
      [](Hooks& h)
      {
        h.replace = [](Node const& n, Node const& child, Node const& old)
        {
          Node const result = n->replaceChild(child, old);
          return result != nullptr && is_text(result) && is_text(child) ? child : result;
        };
      }},
    {"replaceChild", "what is refused because it holds the place has lost its first child",
      [](Hooks& h)
      {
        h.replace = [](Node const& n, Node const& child, Node const& old)
        {
          Node const result = n->replaceChild(child, old);
          if (result == nullptr && child != nullptr && is_child(n, old) && is_element(child) &&
              child->getFirstChild() != nullptr)
            child->removeChild(child->getFirstChild());
          return result;
        };
      }},
    {"removeChild", "a grandchild is taken out",
      [](Hooks& h)
      {
        h.remove = [](Node const& n, Node const& child)
        {
          Node const parent = child != nullptr ? child->getParentNode() : nullptr;
          return is_child(n, parent) ? parent->removeChild(child) : n->removeChild(child);
        };
      }},
    {"removeChild", "what is taken out loses the attributes with a prefix",
      [](Hooks& h)
      {
        h.remove = [](Node const& n, Node const& child)
        {
          Node const result = n->removeChild(child);
          if (Element const element = std::dynamic_pointer_cast<axmElement>(result))
            for (apString const& name : names_of_attributes(element))
              if (has(name, L":"))
                element->removeAttribute(name);
          return result;
        };
      }},
    {"removeChild", "an empty text goes with its neighbour",
      [](Hooks& h)
      {
        h.remove = [](Node const& n, Node const& child)
        {
          Node const next = is_child(n, child) ? child->getNextSibling() : nullptr;
          Node const result = n->removeChild(child);
          if (result != nullptr && is_empty_text(next))
            n->removeChild(next);
          return result;
        };
      }},
    {"appendChild", "the last child again is refused",
      [](Hooks& h)
      {
        h.append = [](Node const& n, Node const& child)
        { return same(n->getLastChild(), child) ? nullptr : n->appendChild(child); };
      }},
    {"appendChild", "an attribute becomes one of the element",
      [](Hooks& h)
      {
        h.append = [](Node const& n, Node const& child)
        {
          Element const element = std::dynamic_pointer_cast<axmElement>(n);
          if (element == nullptr || !is_attribute(child))
            return n->appendChild(child);
          element->setAttribute(child->getNodeName(), child->getNodeValue());
          return child;
        };
      }},
    {"appendChild", "a text takes another text in",
      [](Hooks& h)
      {
        h.append = [](Node const& n, Node const& child)
        {
          if (child == nullptr || !is_text(n) || !is_text(child))
            return n->appendChild(child);
          n->set_text(n->getNodeValue() + child->getNodeValue());
          return child;
        };
      }},
    {"appendChild", "an empty text beside a text is not put in",
      [](Hooks& h)
      {
        h.append = [](Node const& n, Node const& child)
        {
          Node const last = n->getLastChild();
          bool const is_lost = is_element(n) && is_empty_text(child) && last != nullptr && is_text(last);
          return is_lost ? child : n->appendChild(child);
        };
      }},
    {"hasChildNodes", "an instruction alone does not count",
      [](Hooks& h)
      {
        h.has_children = [](Node const& n)
        {
          Node const first = n->getFirstChild();
          return n->hasChildNodes() && !(is<axmProcessingInstruction>(first) && first->getNextSibling() == nullptr);
        };
      }},
    {"hasAttributes", "declarations of namespaces do not count",
      [](Hooks& h)
      {
        h.has_attributes = [](Node const& n)
        {
          Element const element = std::dynamic_pointer_cast<axmElement>(n);
          if (element == nullptr)
            return n->hasAttributes();
          for (apString const& name : names_of_attributes(element))
            if (name.view().substr(0, 5) != L"xmlns")
              return true;
          return false;
        };
      }},
    {"hasAttributes", "an instruction has some",
      [](Hooks& h)
      {
        h.has_attributes = [](Node const& n)
        { return is<axmProcessingInstruction>(n) && has(n->getNodeValue(), L"=") ? true : n->hasAttributes(); };
      }},
    {"getAttributes", "a comment has an empty map",
      [](Hooks& h)
      { h.attributes = [](Node const& n) { return is<axmCommentNode>(n) ? empty_map(n) : n->getAttributes(); }; }},
    {"axmNamedNodeMap::item", "below 0 it is the first one",
      [](Hooks& h) { h.map = [](Map const& map) { return std::make_shared<MapBelowZero>(map); }; }},
    {"axmNamedNodeMap::item", "a step down by one stays where it was",
      [](Hooks& h) { h.map = [](Map const& map) { return std::make_shared<MapWalkedUp>(map); }; }},
    {"axmNamedNodeMap::item", "the index has eight bits",
      [](Hooks& h) { h.map = [](Map const& map) { return std::make_shared<MapOfFew>(map); }; }},
    {"axmNamedNodeMap::getNamedItem", "the empty name finds the first one",
      [](Hooks& h) { h.map = [](Map const& map) { return std::make_shared<MapOfNoName>(map); }; }},
    {"axmNamedNodeMap::removeNamedItem", "an absent name takes out one in other case",
      [](Hooks& h) { h.map = [](Map const& map) { return std::make_shared<MapOfAnyCase>(map); }; }},
    {"axmNamedNodeMap::setNamedItem", "an element becomes an attribute",
      [](Hooks& h) { h.map = [](Map const& map) { return std::make_shared<MapOfElements>(map); }; }},
    {"operator==", "attributes of two elements are the same if they have the same name and value",
      [](Hooks& h)
      {
        h.equal = [](axmNode const*, axmNode const*, Node const& left, Node const& right)
        {
          return *left == *right ||
                 (is_attribute(left) && is_attribute(right) && left->getNodeName() == right->getNodeName() &&
                   left->getNodeValue() == right->getNodeValue());
        };
      }},
    {"operator==", "empty texts are the same",
      [](Hooks& h)
      {
        h.equal = [](axmNode const*, axmNode const*, Node const& left, Node const& right)
        { return *left == *right || (is_empty_text(left) && is_empty_text(right)); };
      }},
  };
  return faults;
}
