#include "Faults.h"

#include <axmCommentNode.h>
#include <axmTextNode.h>
#include <utAssert.h>

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <utility>

namespace
{
bool is_comment(Node const& node)
{
  return std::dynamic_pointer_cast<axmCommentNode>(node) != nullptr;
}

bool is_document(Node const& node)
{
  return std::dynamic_pointer_cast<axmDocument>(node) != nullptr;
}

bool is_attribute(Node const& node)
{
  return !is_element(node) && !is_text(node) && !is_comment(node) && !is_document(node);
}

// The children themselves, for a list stands every one of them as an element.
std::vector<Node> children_of(Node const& node)
{
  std::vector<Node> children;
  for (Node child = node->getFirstChild(); child != nullptr; child = child->getNextSibling())
    children.push_back(child);
  return children;
}

std::vector<Element> elements_among(List const& list, Node const& parent)
{
  std::vector<Element> elements;
  std::vector<Node> const children = children_of(parent);
  std::vector<Element> const items = items_of(list);
  for (std::size_t index = 0; index < items.size(); ++index)
    if (is_element(children[index]))
      elements.push_back(items[index]);
  return elements;
}

void add_descendants(Node const& node, std::vector<Element>& to)
{
  for (Element const& child : items_of(node->getChildNodes()))
  {
    to.push_back(child);
    add_descendants(child, to);
  }
}

// Nodes with their former parents.
class Parents
{
public:
  void remember(Node const& node, Node const& parent) { pairs.emplace_back(node, parent); }
  Node of(Node const& node) const
  {
    for (auto const& [child, parent] : pairs)
      if (*child == *node)
        return parent;
    return nullptr;
  }

private:
  std::vector<std::pair<Node, Node>> pairs;
};

bool is_child(Node const& parent, Node const& child)
{
  Node const found = child != nullptr ? child->getParentNode() : nullptr;
  return found != nullptr && *found == *parent;
}

void take_out(Node const& node)
{
  Node const parent = node != nullptr ? node->getParentNode() : nullptr;
  if (parent != nullptr && !is_document(parent))
    parent->removeChild(node);
}

apString escaped(apString text)
{
  text = replaced(text, APSTRING("&"), APSTRING("&amp;"));
  text = replaced(text, APSTRING("<"), APSTRING("&lt;"));
  return replaced(text, APSTRING(">"), APSTRING("&gt;"));
}
}

std::vector<Fault> const& node_faults()
{
  static std::vector<Fault> const faults = {
    {"getNodeName", "the name of an element is in lower case",
      [](Hooks& h)
      { h.node_name = [](Node const& n) { return is_element(n) ? lower_case(n->getNodeName()) : n->getNodeName(); }; }},
    {"getNodeName", "the prefix is not part of the name",
      [](Hooks& h)
      {
        h.node_name = [](Node const& n)
        {
          apString const name = n->getNodeName();
          return apString(name.c_str() + name.find(APSTRING(":")) + 1);
        };
      }},
    {"getNodeName", "an attribute has no name",
      [](Hooks& h) { h.node_name = [](Node const& n) { return is_attribute(n) ? apString() : n->getNodeName(); }; }},
    {"getNodeValue", "an attribute has no value",
      [](Hooks& h) { h.node_value = [](Node const& n) { return is_attribute(n) ? apString() : n->getNodeValue(); }; }},
    {"getNodeValue", "the value of a text is trimmed",
      [](Hooks& h) { h.node_value = [](Node const& n) { return trimmed(n->getNodeValue()); }; }},
    {"getNodeValue", "the value of a comment is its XML",
      [](Hooks& h) { h.node_value = [](Node const& n) { return is_comment(n) ? n->get_xml() : n->getNodeValue(); }; }},

    {"getParentNode", "a removed node keeps its parent",
      [](Hooks& h)
      {
        auto const parents = std::make_shared<Parents>();
        h.remove = [parents](Node const& n, Node const& child)
        {
          Node const removed = n->removeChild(child);
          if (removed != nullptr)
            parents->remember(removed, n);
          return removed;
        };
        h.parent = [parents](Node const& n)
        {
          Node const parent = n->getParentNode();
          return parent != nullptr ? parent : parents->of(n);
        };
      }},
    {"getParentNode", "a replaced node keeps its parent",
      [](Hooks& h)
      {
        auto const parents = std::make_shared<Parents>();
        h.replace = [parents](Node const& n, Node const& child, Node const& old)
        {
          Node const out = n->replaceChild(child, old);
          if (out != nullptr)
            parents->remember(out, n);
          return out;
        };
        h.parent = [parents](Node const& n)
        {
          Node const parent = n->getParentNode();
          return parent != nullptr ? parent : parents->of(n);
        };
      }},
    {"getParentNode", "a node that was never inserted has the root as its parent",
      [](Hooks& h)
      {
        h.parent = [](Node const& n) -> Node
        {
          Node const parent = n->getParentNode();
          if (parent != nullptr || is_document(n))
            return parent;
          return n->getOwnerDocument()->getDocumentElement();
        };
      }},
    {"getParentNode", "a text has no parent",
      [](Hooks& h) { h.parent = [](Node const& n) { return is_text(n) ? nullptr : n->getParentNode(); }; }},
    {"getParentNode", "the root has no parent",
      [](Hooks& h)
      {
        h.parent = [](Node const& n)
        {
          Node const parent = n->getParentNode();
          return parent != nullptr && is_document(parent) ? nullptr : parent;
        };
      }},

    {"getChildNodes", "the list holds elements only",
      [](Hooks& h) { h.children = [](Node const& n) { return list_of(elements_among(n->getChildNodes(), n)); }; }},
    {"getChildNodes", "the list is the wrong way round",
      [](Hooks& h)
      {
        h.children = [](Node const& n)
        {
          std::vector<Element> items = items_of(n->getChildNodes());
          std::reverse(items.begin(), items.end());
          return list_of(items);
        };
      }},
    {"getChildNodes", "an element without children has no list",
      [](Hooks& h) { h.children = [](Node const& n) { return n->hasChildNodes() ? n->getChildNodes() : nullptr; }; }},
    {"getChildNodes", "no node has a list", [](Hooks& h) { h.children = [](Node const&) -> List { return nullptr; }; }},
    {"getChildNodes", "the list is a snapshot",
      [](Hooks& h) { h.children = [](Node const& n) { return list_of(items_of(n->getChildNodes())); }; }},
    {"getChildNodes", "the list holds all descendants",
      [](Hooks& h)
      {
        h.children = [](Node const& n)
        {
          std::vector<Element> items;
          add_descendants(n, items);
          return list_of(items);
        };
      }},

    {"getFirstChild", "the first child is the first element",
      [](Hooks& h)
      {
        h.first = [](Node const& n)
        {
          Node child = n->getFirstChild();
          while (child != nullptr && !is_element(child))
            child = child->getNextSibling();
          return child;
        };
      }},
    {"getParentNode", "no node has a parent", [](Hooks& h) { h.parent = [](Node const&) -> Node { return nullptr; }; }},
    {"getFirstChild", "there is no first child",
      [](Hooks& h) { h.first = [](Node const&) -> Node { return nullptr; }; }},
    {"getLastChild", "the last child is the first one",
      [](Hooks& h) { h.last = [](Node const& n) { return n->getFirstChild(); }; }},
    {"getLastChild", "an only child is not the last one",
      [](Hooks& h)
      {
        h.last = [](Node const& n)
        {
          return n->getFirstChild() != nullptr && n->getFirstChild()->getNextSibling() == nullptr ? nullptr
                                                                                                  : n->getLastChild();
        };
      }},

    {"getNextSibling", "every other sibling is left out",
      [](Hooks& h)
      {
        h.next = [](Node const& n)
        {
          Node const next = n->getNextSibling();
          return next != nullptr ? next->getNextSibling() : nullptr;
        };
      }},
    {"getNextSibling", "after the last child comes what follows the parent",
      [](Hooks& h)
      {
        h.next = [](Node const& n)
        {
          Node const next = n->getNextSibling();
          Node const parent = n->getParentNode();
          return next == nullptr && parent != nullptr ? parent->getNextSibling() : next;
        };
      }},
    {"getNextSibling", "the siblings go round in a ring",
      [](Hooks& h)
      {
        h.next = [](Node const& n)
        {
          Node const next = n->getNextSibling();
          Node const parent = n->getParentNode();
          return next == nullptr && parent != nullptr ? parent->getFirstChild() : next;
        };
      }},
    {"getPreviousSibling", "before the first child comes the last one",
      [](Hooks& h)
      {
        h.previous = [](Node const& n)
        {
          Node const previous = n->getPreviousSibling();
          Node const parent = n->getParentNode();
          return previous == nullptr && parent != nullptr ? parent->getLastChild() : previous;
        };
      }},
    {"getPreviousSibling", "a text or comment has none",
      [](Hooks& h)
      {
        h.previous = [](Node const& n)
        {
          Node const previous = n->getPreviousSibling();
          return is_text(n) || is_comment(n) ? nullptr : previous;
        };
      }},

    {"getOwnerDocument", "a node that is in no tree has no document",
      [](Hooks& h)
      { h.owner = [](Node const& n) { return n->getParentNode() == nullptr ? nullptr : n->getOwnerDocument(); }; }},
    {"getOwnerDocument", "no node has a document",
      [](Hooks& h) { h.owner = [](Node const&) -> Document { return nullptr; }; }},
    {"getOwnerDocument", "the document is the one that was made last",
      [](Hooks& h)
      {
        auto const made = std::make_shared<Document>();
        h.create = [made](Factory const& factory, apString const& name)
        { return *made = factory->createDocument(name); };
        h.load_bytes = [made](Factory const& factory, apByteArray const& data, axmLoadOptions const& options,
                         axmParseError& error) { return *made = factory->loadDocument(data, options, error); };
        h.owner = [made](Node const& n) { return *made != nullptr ? *made : n->getOwnerDocument(); };
      }},

    {"insertBefore", "the new child stands behind the reference",
      [](Hooks& h)
      {
        h.insert = [](Node const& n, Node const& child, Node const& before) {
          return n->insertBefore(child, before != nullptr && is_child(n, before) ? before->getNextSibling() : before);
        };
      }},
    {"insertBefore", "without a reference the new child comes first",
      [](Hooks& h)
      {
        h.insert = [](Node const& n, Node const& child, Node const& before)
        { return n->insertBefore(child, before != nullptr ? before : n->getFirstChild()); };
      }},
    {"insertBefore", "where the reference is no child it is appended",
      [](Hooks& h)
      {
        h.insert = [](Node const& n, Node const& child, Node const& before)
        {
          Node const inserted = n->insertBefore(child, before);
          return inserted != nullptr ? inserted : n->appendChild(child);
        };
      }},
    {"insertBefore", "where the reference is no child it is appended in silence",
      [](Hooks& h)
      {
        h.insert = [](Node const& n, Node const& child, Node const& before)
        {
          Node const inserted = n->insertBefore(child, before);
          if (inserted == nullptr)
            n->appendChild(child);
          return inserted;
        };
      }},
    {"insertBefore", "the result is the reference",
      [](Hooks& h)
      {
        h.insert = [](Node const& n, Node const& child, Node const& before)
        {
          Node const inserted = n->insertBefore(child, before);
          return inserted != nullptr && before != nullptr ? before : inserted;
        };
      }},
    {"insertBefore", "a grandchild is a reference too",
      [](Hooks& h)
      {
        h.insert = [](Node const& n, Node const& child, Node const& before)
        {
          Node const parent = before != nullptr ? before->getParentNode() : nullptr;
          return parent != nullptr ? parent->insertBefore(child, before) : n->insertBefore(child, before);
        };
      }},

    {"replaceChild", "the result is the new child",
      [](Hooks& h)
      {
        h.replace = [](Node const& n, Node const& child, Node const& old)
        { return n->replaceChild(child, old) != nullptr ? child : nullptr; };
      }},
    {"replaceChild", "the new child is appended",
      [](Hooks& h)
      {
        h.replace = [](Node const& n, Node const& child, Node const& old)
        {
          Node const out = n->replaceChild(child, old);
          if (out != nullptr)
          {
            take_out(child);
            n->appendChild(child);
          }
          return out;
        };
      }},
    {"replaceChild", "where the old child is none the new one is appended",
      [](Hooks& h)
      {
        h.replace = [](Node const& n, Node const& child, Node const& old)
        {
          Node const out = n->replaceChild(child, old);
          if (out == nullptr)
            n->appendChild(child);
          return out;
        };
      }},
    {"replaceChild", "where the old child is none it is the result",
      [](Hooks& h)
      {
        h.replace = [](Node const& n, Node const& child, Node const& old)
        {
          n->replaceChild(child, old);
          return old;
        };
      }},
    {"replaceChild", "the old child loses its children",
      [](Hooks& h)
      {
        h.replace = [](Node const& n, Node const& child, Node const& old)
        {
          Node const out = n->replaceChild(child, old);
          while (out != nullptr && out->getFirstChild() != nullptr)
            out->removeChild(out->getFirstChild());
          return out;
        };
      }},

    {"removeChild", "the result is empty",
      [](Hooks& h)
      {
        h.remove = [](Node const& n, Node const& child) -> Node
        {
          n->removeChild(child);
          return nullptr;
        };
      }},
    {"removeChild", "nothing is removed",
      [](Hooks& h) { h.remove = [](Node const&, Node const& child) { return child; }; }},
    {"removeChild", "what is no child is the result too",
      [](Hooks& h)
      {
        h.remove = [](Node const& n, Node const& child)
        {
          n->removeChild(child);
          return child;
        };
      }},
    {"removeChild", "a node is removed from whatever parent it has",
      [](Hooks& h)
      {
        h.remove = [](Node const& n, Node const& child)
        {
          Node const parent = child != nullptr ? child->getParentNode() : nullptr;
          return parent != nullptr ? parent->removeChild(child) : n->removeChild(child);
        };
      }},
    {"removeChild", "a wrong argument is an exception",
      [](Hooks& h)
      {
        h.remove = [](Node const& n, Node const& child)
        {
          Node const removed = n->removeChild(child);
          if (removed == nullptr)
            throw std::invalid_argument("not a child");
          return removed;
        };
      }},

    {"appendChild", "the new child comes first",
      [](Hooks& h)
      { h.append = [](Node const& n, Node const& child) { return n->insertBefore(child, n->getFirstChild()); }; }},
    {"appendChild", "the result is empty",
      [](Hooks& h)
      {
        h.append = [](Node const& n, Node const& child) -> Node
        {
          n->appendChild(child);
          return nullptr;
        };
      }},
    {"appendChild", "a text is merged with the text before it",
      [](Hooks& h)
      {
        h.append = [](Node const& n, Node const& child)
        {
          Node const last = n->getLastChild();
          if (child == nullptr || last == nullptr || !is_text(last) || !is_text(child))
            return n->appendChild(child);
          last->set_text(last->get_text() + child->get_text());
          return last;
        };
      }},
    {"appendChild", "comments are refused",
      [](Hooks& h)
      {
        h.append = [](Node const& n, Node const& child)
        { return child != nullptr && is_comment(child) ? nullptr : n->appendChild(child); };
      }},
    {"appendChild", "an attached node is moved without an assertion",
      [](Hooks& h)
      {
        h.append = [](Node const& n, Node const& child)
        {
          if (child != nullptr && !is_child(child, n))
            take_out(child);
          return n->appendChild(child);
        };
      }},
    {"replaceChild", "an attached node is moved without an assertion",
      [](Hooks& h)
      {
        h.replace = [](Node const& n, Node const& child, Node const& old)
        {
          if (is_child(n, old) && is_child(n, child))
            take_out(child);
          return n->replaceChild(child, old);
        };
      }},
    {"appendChild", "an attached node is refused",
      [](Hooks& h)
      {
        h.append = [](Node const& n, Node const& child)
        {
          bool const is_attached = child != nullptr && child->getParentNode() != nullptr;
          if (is_attached)
            ut_report_assertion("child->getParentNode() == nullptr", "node_faults", 1);
          return is_attached ? nullptr : n->appendChild(child);
        };
      }},
    {"appendChild", "a cycle is refused with the new child as the result",
      [](Hooks& h)
      {
        h.append = [](Node const& n, Node const& child)
        {
          n->appendChild(child);
          return child;
        };
      }},
    {"appendChild", "a second root takes the place of the first one",
      [](Hooks& h)
      {
        h.append = [](Node const& n, Node const& child)
        {
          auto const document = std::dynamic_pointer_cast<axmDocument>(n);
          Element const root = document != nullptr ? document->getDocumentElement() : nullptr;
          if (root == nullptr || child == nullptr || !is_element(child))
            return n->appendChild(child);
          n->replaceChild(child, root);
          return child;
        };
      }},

    {"hasChildNodes", "texts do not count",
      [](Hooks& h)
      {
        h.has_children = [](Node const& n)
        {
          std::vector<Node> const children = children_of(n);
          return std::any_of(children.begin(), children.end(), is_element);
        };
      }},
    {"hasChildNodes", "every element has children", [](Hooks& h) { h.has_children = is_element; }},
    {"hasChildNodes", "no node has children", [](Hooks& h) { h.has_children = [](Node const&) { return false; }; }},
    {"hasAttributes", "once an element has had one it has attributes",
      [](Hooks& h)
      {
        auto const had = std::make_shared<std::vector<Node>>();
        h.has_attributes = [had](Node const& n)
        {
          if (n->hasAttributes())
            had->push_back(n);
          return std::any_of(had->begin(), had->end(), [&n](Node const& other) { return *other == *n; });
        };
      }},
    {"hasAttributes", "no node has attributes", [](Hooks& h) { h.has_attributes = [](Node const&) { return false; }; }},
    {"getAttributes", "an element without attributes has no map",
      [](Hooks& h) { h.attributes = [](Node const& n) { return n->hasAttributes() ? n->getAttributes() : nullptr; }; }},

    {"operator==", "nodes are compared by their addresses",
      [](Hooks& h)
      { h.equal = [](axmNode const* left, axmNode const* right, Node const&, Node const&) { return left == right; }; }},
    {"operator==", "nodes are compared by what they hold",
      [](Hooks& h)
      {
        h.equal = [](axmNode const*, axmNode const*, Node const& left, Node const& right)
        { return left->getNodeName() == right->getNodeName() && left->get_xml() == right->get_xml(); };
      }},
    {"operator==", "a text from a list is another node",
      [](Hooks& h)
      {
        h.equal = [](axmNode const* left, axmNode const* right, Node const& inner_left, Node const& inner_right)
        {
          bool const same_kind =
            (dynamic_cast<axmElement const*>(left) != nullptr) == (dynamic_cast<axmElement const*>(right) != nullptr);
          return same_kind && *inner_left == *inner_right;
        };
      }},

    {"get_text", "there are blanks between the texts",
      [](Hooks& h)
      {
        h.node_text = [](Node const& n)
        {
          apString text;
          for (Node const& child : children_of(n))
            text += (text.empty() ? apString() : APSTRING(" ")) + child->get_text();
          return n->hasChildNodes() ? text : n->get_text();
        };
      }},
    {"get_text", "only the texts that are children count",
      [](Hooks& h)
      {
        h.node_text = [](Node const& n)
        {
          apString text;
          for (Node const& child : children_of(n))
            if (is_text(child))
              text += child->get_text();
          return is_element(n) && n->hasChildNodes() ? text : n->get_text();
        };
      }},
    {"get_text", "the text is trimmed",
      [](Hooks& h) { h.node_text = [](Node const& n) { return trimmed(n->get_text()); }; }},
    {"set_text", "the text is added to what is there",
      [](Hooks& h)
      {
        h.set_text = [](Node const& n, apString const& text)
        { n->appendChild(n->getOwnerDocument()->createTextNode(text)); };
      }},
    {"set_text", "the text is stored escaped",
      [](Hooks& h) { h.set_text = [](Node const& n, apString const& text) { n->set_text(escaped(text)); }; }},
    {"set_text", "the attributes go with the children",
      [](Hooks& h)
      {
        h.set_text = [](Node const& n, apString const& text)
        {
          n->set_text(text);
          Map const map = n->getAttributes();
          while (map != nullptr && map->getLength() > 0)
            map->removeNamedItem(map->item(0)->getNodeName());
        };
      }},
    {"set_text", "the old children stay in front",
      [](Hooks& h)
      {
        h.set_text = [](Node const& n, apString const& text)
        {
          std::vector<Node> const children = children_of(n);
          n->set_text(text);
          for (Node const& child : children)
            if (is_element(child))
              n->insertBefore(child, n->getLastChild());
        };
      }},

    {"get_xml", "a text is not escaped",
      [](Hooks& h) { h.xml = [](Node const& n) { return is_text(n) ? n->get_text() : n->get_xml(); }; }},
    {"get_xml", "the sign > in a text is not escaped",
      [](Hooks& h)
      {
        h.xml = [](Node const& n)
        { return is_text(n) ? replaced(n->get_xml(), APSTRING("&gt;"), APSTRING(">")) : n->get_xml(); };
      }},
    {"get_xml", "quotes in a text are escaped",
      [](Hooks& h)
      {
        h.xml = [](Node const& n)
        { return is_text(n) ? replaced(n->get_xml(), APSTRING("\""), APSTRING("&quot;")) : n->get_xml(); };
      }},
    {"get_xml", "a comment is escaped",
      [](Hooks& h)
      {
        h.xml = [](Node const& n)
        { return is_comment(n) ? APSTRING("<!--") + escaped(n->get_text()) + APSTRING("-->") : n->get_xml(); };
      }},
    {"get_xml", "a comment has no delimiters",
      [](Hooks& h) { h.xml = [](Node const& n) { return is_comment(n) ? n->get_text() : n->get_xml(); }; }},
    {"get_xml", "attributes are not escaped",
      [](Hooks& h)
      {
        h.xml = [](Node const& n) {
          return is_document(n) || is_element(n) ? replaced(n->get_xml(), APSTRING("&lt;"), APSTRING("<"))
                                                 : n->get_xml();
        };
      }},
    {"get_xml", "line ends in attributes are written as they are",
      [](Hooks& h)
      {
        h.xml = [](Node const& n)
        {
          apString xml = n->get_xml();
          for (auto const& reference : {APSTRING("&#10;"), APSTRING("&#xA;"), APSTRING("&#xa;")})
            xml = replaced(xml, reference, APSTRING("\n"));
          return xml;
        };
      }},
    {"get_xml", "comments are left out",
      [](Hooks& h)
      {
        h.xml = [](Node const& n)
        {
          apString xml = n->get_xml();
          int const start = is_comment(n) ? -1 : xml.find(APSTRING("<!--"));
          int const end = start < 0 ? -1 : xml.find(APSTRING("-->"), start);
          return end < 0 ? xml : apString(xml.c_str(), start) + apString(xml.c_str() + end + 3);
        };
      }},
    {"lifetime", "nodes are empty once their document is let go",
      [](Hooks& h)
      {
        auto const made = std::make_shared<std::weak_ptr<axmDocument>>();
        h.load_bytes =
          [made](Factory const& factory, apByteArray const& data, axmLoadOptions const& options, axmParseError& error)
        {
          Document const document = factory->loadDocument(data, options, error);
          *made = document;
          return document;
        };
        h.node_text = [made](Node const& n) { return made->expired() ? apString() : n->get_text(); };
      }},
    {"lifetime", "a removed node loses its children",
      [](Hooks& h)
      {
        h.remove = [](Node const& n, Node const& child)
        {
          Node const removed = n->removeChild(child);
          while (removed != nullptr && removed->getFirstChild() != nullptr)
            removed->removeChild(removed->getFirstChild());
          return removed;
        };
      }},
  };
  return faults;
}
