#include "Faults.h"

#include <apStringLocaleDoubleParser.h>
#include <apStringLocaleIntParser.h>
#include <axmCommentNode.h>
#include <axmProcessingInstruction.h>
#include <axmTextNode.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstdlib>
#include <cwchar>
#include <string>
#include <string_view>
#include <utility>

namespace
{
bool is_comment(Node const& node)
{
  return std::dynamic_pointer_cast<axmCommentNode>(node) != nullptr;
}

bool is_instruction(Node const& node)
{
  return std::dynamic_pointer_cast<axmProcessingInstruction>(node) != nullptr;
}

std::wstring wide(apString const& text)
{
  return std::wstring(text.view());
}

apString made(std::wstring const& text)
{
  return apString(std::wstring_view(text));
}

bool holds(apString const& text, wchar_t const* part)
{
  return text.find(apString(part)) >= 0;
}

// A map over another one, of which some operations are others.
class OddMap : public axmNamedNodeMap
{
public:
  explicit OddMap(Map given) : map(std::move(given)) {}

  int getLength() override { return odd_length ? odd_length(*map) : map->getLength(); }
  Node item(int index) override { return odd_item ? odd_item(*map, index) : map->item(index); }
  Node getNamedItem(apString const& name) override
  {
    return odd_named ? odd_named(*map, name) : map->getNamedItem(name);
  }
  Node removeNamedItem(apString const& name) override
  {
    return odd_remove ? odd_remove(*map, name) : map->removeNamedItem(name);
  }
  Node setNamedItem(Node node) override { return odd_set ? odd_set(*map, node) : map->setNamedItem(node); }

  std::function<int(axmNamedNodeMap&)> odd_length;
  std::function<Node(axmNamedNodeMap&, int)> odd_item;
  std::function<Node(axmNamedNodeMap&, apString const&)> odd_named;
  std::function<Node(axmNamedNodeMap&, apString const&)> odd_remove;
  std::function<Node(axmNamedNodeMap&, Node const&)> odd_set;

private:
  Map map;
};

template <class Change>
void put_into_maps(Hooks& hooks, Change change)
{
  hooks.map = [change](Map const& given)
  {
    auto const map = std::make_shared<OddMap>(given);
    change(*map);
    return map;
  };
}

// A search in which what was found is changed.
template <class Change>
void put_into_results(Hooks& hooks, Change change)
{
  hooks.select = [change](Element const& element, apString const& xpath)
  {
    std::vector<Element> items = items_of(element->selectNodes(xpath));
    change(items, xpath);
    return list_of(items);
  };
}

// A search by another expression.
template <class Change>
void put_into_expressions(Hooks& hooks, Change change)
{
  hooks.select = [change](Element const& element, apString const& xpath)
  { return element->selectNodes(change(xpath)); };
}
}

std::vector<Fault> const& subtle_content_faults()
{
  static std::vector<Fault> const faults = {
    {"set_text", "an empty text leaves no child",
      [](Hooks& h)
      {
        h.set_text = [](Node const& n, apString const& text)
        {
          n->set_text(text);
          if (text.empty() && is_element(n))
            n->removeChild(n->getFirstChild());
        };
      }},
    {"set_text", "a text that is there already stays as it is",
      [](Hooks& h)
      {
        h.set_text = [](Node const& n, apString const& text)
        {
          if (n->get_text() != text)
            n->set_text(text);
        };
      }},
    {"set_text", "a comment keeps its text",
      [](Hooks& h)
      {
        h.set_text = [](Node const& n, apString const& text)
        {
          if (!is_comment(n))
            n->set_text(text);
        };
      }},
    {"set_text", "comments stay",
      [](Hooks& h)
      {
        h.set_text = [](Node const& n, apString const& text)
        {
          Node const last = n->getLastChild();
          n->set_text(text);
          if (last != nullptr && is_comment(last))
            n->appendChild(last);
        };
      }},
    {"set_text", "returns become line ends",
      [](Hooks& h)
      {
        h.set_text = [](Node const& n, apString const& text)
        { n->set_text(replaced(text, APSTRING("\r"), APSTRING("\n"))); };
      }},
    {"set_text", "an escaped ampersand is taken for an ampersand",
      [](Hooks& h)
      {
        h.set_text = [](Node const& n, apString const& text)
        { n->set_text(replaced(text, APSTRING("&amp;"), APSTRING("&"))); };
      }},
    {"get_text", "comments are part of it",
      [](Hooks& h)
      {
        h.node_text = [](Node const& n)
        {
          apString text = n->get_text();
          for (Node child = is_element(n) ? n->getFirstChild() : nullptr; child != nullptr;
               child = child->getNextSibling())
            if (is_comment(child))
              text += child->getNodeValue();
          return text;
        };
      }},
    {"get_text", "instructions are part of it",
      [](Hooks& h)
      {
        h.node_text = [](Node const& n)
        {
          apString text = n->get_text();
          for (Node child = is_element(n) ? n->getFirstChild() : nullptr; child != nullptr;
               child = child->getNextSibling())
            if (is_instruction(child))
              text += child->getNodeValue();
          return text;
        };
      }},
    {"get_text", "of a document it is empty",
      [](Hooks& h)
      {
        h.node_text = [](Node const& n)
        { return std::dynamic_pointer_cast<axmDocument>(n) != nullptr ? apString() : n->get_text(); };
      }},
    {"get_text", "a no-break space is a space",
      [](Hooks& h)
      { h.node_text = [](Node const& n) { return replaced(n->get_text(), APSTRING("\u00A0"), APSTRING(" ")); }; }},
    {"get_text", "more than 65535 characters are cut off",
      [](Hooks& h)
      {
        h.node_text = [](Node const& n)
        {
          apString const text = n->get_text();
          return text.length() > 65535 ? apString(text.c_str(), 65535) : text;
        };
      }},
    {"get_xml", "a quote in a text is a reference",
      [](Hooks& h)
      {
        h.xml = [](Node const& n)
        { return is_text(n) ? replaced(n->get_xml(), APSTRING("\""), APSTRING("&quot;")) : n->get_xml(); };
      }},
    {"get_xml", "a tab in a text is a reference",
      [](Hooks& h)
      {
        h.xml = [](Node const& n)
        { return is_text(n) ? replaced(n->get_xml(), APSTRING("\t"), APSTRING("&#9;")) : n->get_xml(); };
      }},
    {"get_xml", "of a document the comments outside the root are left out",
      [](Hooks& h)
      {
        h.xml = [](Node const& n)
        {
          auto const document = std::dynamic_pointer_cast<axmDocument>(n);
          bool const has_root = document != nullptr && document->getDocumentElement() != nullptr;
          return has_root ? document->getDocumentElement()->get_xml() : n->get_xml();
        };
      }},
    {"get_xml", "a return in an attribute stands as it is",
      [](Hooks& h)
      { h.xml = [](Node const& n) { return replaced(n->get_xml(), APSTRING("&#13;"), APSTRING("\r")); }; }},
    {"getNodeValue", "a return in it is a line end",
      [](Hooks& h)
      { h.node_value = [](Node const& n) { return replaced(n->getNodeValue(), APSTRING("\r"), APSTRING("\n")); }; }},
    {"getNodeValue", "an instruction's begins with its target",
      [](Hooks& h)
      {
        h.node_value = [](Node const& n)
        {
          bool const has_content = is_instruction(n) && !n->getNodeValue().empty();
          return has_content ? n->getNodeName() + APSTRING(" ") + n->getNodeValue() : n->getNodeValue();
        };
      }},
    {"getNodeName", "a text is named after its parent",
      [](Hooks& h)
      {
        h.node_name = [](Node const& n)
        {
          Node const parent = n->getParentNode();
          return is_text(n) && parent != nullptr ? parent->getNodeName() : n->getNodeName();
        };
      }},
    {"getNodeName", "a name is cut off after 255 characters",
      [](Hooks& h)
      {
        h.node_name = [](Node const& n)
        {
          apString const name = n->getNodeName();
          return name.length() > 255 ? apString(name.c_str(), 255) : name;
        };
      }},
    {"getData", "the data of a comment is trimmed",
      [](Hooks& h) {
        h.character_data = [](Node const& n) { return is_comment(n) ? trimmed(n->getNodeValue()) : n->getNodeValue(); };
      }},
    {"createTextNode", "characters beyond the first plane are question marks",
      [](Hooks& h)
      {
        h.create_text = [](Document const& document, apString const& data) -> Node
        { return document->createTextNode(replaced(data, APSTRING("\U00010437"), APSTRING("?"))); };
      }},
    {"createComment", "two hyphens are made one",
      [](Hooks& h)
      {
        h.create_comment = [](Document const& document, apString const& data) -> Node
        { return document->createComment(replaced(data, APSTRING("--"), APSTRING("-"))); };
      }},
    {"createElement", "blanks around a name are left out",
      [](Hooks& h)
      {
        h.create_element = [](Document const& document, apString const& name) -> Node
        { return document->createElement(trimmed(name)); };
      }},
    {"createElement", "a name may begin with a hyphen or a point",
      [](Hooks& h)
      {
        h.create_element = [](Document const& document, apString const& name) -> Node
        {
          bool const begins_badly = name.find(APSTRING("-")) == 0 || name.find(APSTRING(".")) == 0;
          return document->createElement(begins_badly ? APSTRING("x") + name : name);
        };
      }},
    {"createElement", "any letter beyond ASCII is part of a name",
      [](Hooks& h)
      {
        h.create_element = [](Document const& document, apString const& name) -> Node
        { return document->createElement(replaced(name, APSTRING("\u00D7"), APSTRING("x"))); };
      }},

    {"getAttribute", "what is white space only is empty",
      [](Hooks& h)
      {
        h.get_attribute = [](Element const& element, apString const& name)
        {
          apString const value = element->getAttribute(name);
          return trimmed(value).empty() ? apString() : value;
        };
      }},
    {"getAttribute", "of an absent name it is that of the name in small letters",
      [](Hooks& h)
      {
        h.get_attribute = [](Element const& element, apString const& name)
        { return element->hasAttribute(name) ? element->getAttribute(name) : element->getAttribute(lower_case(name)); };
      }},
    {"setAttribute", "the same value in another attribute is overwritten too",
      [](Hooks& h)
      {
        h.set_attribute = [](Element const& element, apString const& name, apString const& value)
        {
          if (name == APSTRING("k") && element->hasAttribute(APSTRING("l")))
            element->setAttribute(APSTRING("l"), value);
          element->setAttribute(name, value);
        };
      }},
    {"setAttribute", "an empty value is not set over another one",
      [](Hooks& h)
      {
        h.set_attribute = [](Element const& element, apString const& name, apString const& value)
        {
          if (!value.empty() || !element->hasAttribute(name))
            element->setAttribute(name, value);
        };
      }},
    {"setAttribute", "white space is made blanks",
      [](Hooks& h)
      {
        h.set_attribute = [](Element const& element, apString const& name, apString const& value)
        { element->setAttribute(name, replaced(value, APSTRING("\n"), APSTRING(" "))); };
      }},
    {"setAttribute", "an attribute is another node after it was set again",
      [](Hooks& h)
      {
        h.set_attribute = [](Element const& element, apString const& name, apString const& value)
        {
          element->removeAttribute(name);
          element->setAttribute(name, value);
        };
      }},
    {"setAttribute", "the sixty-fifth attribute is left out",
      [](Hooks& h)
      {
        h.set_attribute = [](Element const& element, apString const& name, apString const& value)
        {
          if (element->hasAttribute(name) || element->getAttributes()->getLength() != 64)
            element->setAttribute(name, value);
        };
      }},
    {"removeAttribute", "an empty one stays",
      [](Hooks& h)
      {
        h.remove_attribute = [](Element const& element, apString const& name)
        {
          if (!element->getAttribute(name).empty())
            element->removeAttribute(name);
        };
      }},
    {"removeAttribute", "where there is none the last one goes",
      [](Hooks& h)
      {
        h.remove_attribute = [](Element const& element, apString const& name)
        {
          auto const map = element->getAttributes();
          bool const is_there = element->hasAttribute(name);
          if (is_there || map == nullptr || map->getLength() == 0)
            element->removeAttribute(name);
          else
            element->removeAttribute(map->item(map->getLength() - 1)->getNodeName());
        };
      }},
    {"hasAttribute", "an empty one is not there",
      [](Hooks& h)
      {
        h.has_attribute = [](Element const& element, apString const& name)
        { return !element->getAttribute(name).empty(); };
      }},
    {"hasAttributes", "a single empty one does not count",
      [](Hooks& h)
      {
        h.has_attributes = [](Node const& n)
        {
          auto const map = n->getAttributes();
          bool const is_one = map != nullptr && map->getLength() == 1;
          return is_one ? !map->item(0)->getNodeValue().empty() : n->hasAttributes();
        };
      }},
    {"getAttributes", "a text has a map too",
      [](Hooks& h)
      {
        h.attributes = [](Node const& n)
        {
          Node const parent = n->getParentNode();
          return is_text(n) && parent != nullptr ? parent->getAttributes() : n->getAttributes();
        };
      }},
    {"axmNamedNodeMap::getLength", "it is the one when it was asked for first",
      [](Hooks& h)
      {
        auto const known = std::make_shared<std::vector<std::pair<Node, int>>>();
        h.attributes = [known](Node const& n) -> Map
        {
          Map const map = n->getAttributes();
          if (map == nullptr)
            return map;
          for (auto const& [node, length] : *known)
            if (*node == *n)
            {
              auto const odd = std::make_shared<OddMap>(map);
              odd->odd_length = [first = length](axmNamedNodeMap&) { return first; };
              return odd;
            }
          known->emplace_back(n, map->getLength());
          return map;
        };
      }},
    {"axmNamedNodeMap::item", "before the first attribute stands the first one",
      [](Hooks& h)
      {
        put_into_maps(h, [](OddMap& map)
          { map.odd_item = [](axmNamedNodeMap& given, int index) { return given.item(std::max(index, 0)); }; });
      }},
    {"axmNamedNodeMap::item", "after the last attribute stands the first one",
      [](Hooks& h)
      {
        put_into_maps(h,
          [](OddMap& map)
          {
            map.odd_item = [](axmNamedNodeMap& given, int index)
            { return given.item(index == given.getLength() ? 0 : index); };
          });
      }},
    {"axmNamedNodeMap::item", "of three attributes the second one stands there twice",
      [](Hooks& h)
      {
        put_into_maps(h,
          [](OddMap& map)
          {
            map.odd_item = [](axmNamedNodeMap& given, int index)
            { return given.item(given.getLength() == 3 && index == 2 ? 1 : index); };
          });
      }},
    {"axmNamedNodeMap::getNamedItem", "an empty one is not found",
      [](Hooks& h)
      {
        put_into_maps(h,
          [](OddMap& map)
          {
            map.odd_named = [](axmNamedNodeMap& given, apString const& name)
            {
              Node const found = given.getNamedItem(name);
              return found != nullptr && found->getNodeValue().empty() ? nullptr : found;
            };
          });
      }},
    {"axmNamedNodeMap::getNamedItem", "names in capitals are found too",
      [](Hooks& h)
      {
        put_into_maps(h,
          [](OddMap& map)
          {
            map.odd_named = [](axmNamedNodeMap& given, apString const& name)
            {
              Node const found = given.getNamedItem(name);
              return found != nullptr ? found : given.getNamedItem(lower_case(name));
            };
          });
      }},
    {"axmNamedNodeMap::removeNamedItem", "an attribute that is removed is empty",
      [](Hooks& h)
      {
        put_into_maps(h,
          [](OddMap& map)
          {
            map.odd_remove = [](axmNamedNodeMap& given, apString const& name)
            {
              Node const found = given.removeNamedItem(name);
              if (found != nullptr)
                found->set_text(apString());
              return found;
            };
          });
      }},
    {"axmNamedNodeMap::removeNamedItem", "of an only attribute the result is empty",
      [](Hooks& h)
      {
        put_into_maps(h,
          [](OddMap& map)
          {
            map.odd_remove = [](axmNamedNodeMap& given, apString const& name)
            {
              bool const is_only = given.getLength() == 1;
              Node const found = given.removeNamedItem(name);
              return is_only ? nullptr : found;
            };
          });
      }},
    {"axmNamedNodeMap::setNamedItem", "the result is the new one",
      [](Hooks& h)
      {
        put_into_maps(h,
          [](OddMap& map)
          {
            map.odd_set = [](axmNamedNodeMap& given, Node const& node)
            { return given.setNamedItem(node) != nullptr ? node : nullptr; };
          });
      }},
    {"axmNamedNodeMap::setNamedItem", "the value of the old one is overwritten instead",
      [](Hooks& h)
      {
        put_into_maps(h,
          [](OddMap& map)
          {
            map.odd_set = [](axmNamedNodeMap& given, Node const& node)
            {
              Node const found = node != nullptr ? given.getNamedItem(node->getNodeName()) : nullptr;
              if (found == nullptr || is_element(node) || *found == *node)
                return given.setNamedItem(node);
              found->set_text(node->getNodeValue());
              return found;
            };
          });
      }},
    {"axmNamedNodeMap::setNamedItem", "what is no attribute is the result",
      [](Hooks& h)
      {
        put_into_maps(h,
          [](OddMap& map)
          {
            map.odd_set = [](axmNamedNodeMap& given, Node const& node)
            { return node != nullptr && (is_element(node) || is_text(node)) ? node : given.setNamedItem(node); };
          });
      }},

    {"get_attribute", "an int is read up to what is none",
      [](Hooks& h)
      {
        h.get_int = [](Node const& n, apString const& name, int& value)
        {
          apString text;
          if (!n->get_attribute(name, text))
            return false;
          auto const result = apStringLocaleIntParser::parse(text);
          value = result.success ? result.value : value;
          return result.success;
        };
      }},
    {"get_attribute", "an int beyond the limits is the limit",
      [](Hooks& h)
      {
        h.get_int = [](Node const& n, apString const& name, int& value)
        {
          apString text;
          if (n->get_attribute(name, value) || !n->get_attribute(name, text) || text != APSTRING("2147483648"))
            return n->get_attribute(name, value);
          value = INT_MAX;
          return true;
        };
      }},
    {"get_attribute", "the smallest int is refused",
      [](Hooks& h)
      {
        h.get_int = [](Node const& n, apString const& name, int& value)
        {
          apString text;
          bool const is_smallest = n->get_attribute(name, text) && text == APSTRING("-2147483648");
          return !is_smallest && n->get_attribute(name, value);
        };
      }},
    {"get_attribute", "blanks after an int are left out",
      [](Hooks& h)
      {
        h.get_int = [](Node const& n, apString const& name, int& value)
        {
          apString text;
          if (!n->get_attribute(name, text))
            return false;
          apString const cut = trimmed(text);
          auto const result = apStringLocaleIntParser::parse(cut);
          if (!result.success || result.position != cut.length())
            return false;
          value = result.value;
          return true;
        };
      }},
    {"get_attribute", "an int may be a double without a fraction",
      [](Hooks& h)
      {
        h.get_int = [](Node const& n, apString const& name, int& value)
        {
          double number = 0;
          if (n->get_attribute(name, value))
            return true;
          if (!n->get_attribute(name, number) || number != std::floor(number) || std::fabs(number) > 1000000)
            return false;
          value = static_cast<int>(number);
          return true;
        };
      }},
    {"get_attribute", "a bool is read from its beginning",
      [](Hooks& h)
      {
        h.get_bool = [](Node const& n, apString const& name, bool& value)
        {
          apString text;
          if (!n->get_attribute(name, text) || text.find(APSTRING("true")) != 0)
            return n->get_attribute(name, value);
          value = true;
          return true;
        };
      }},
    {"get_attribute", "a bool may have blanks beside it",
      [](Hooks& h)
      {
        h.get_bool = [](Node const& n, apString const& name, bool& value)
        {
          apString text;
          if (!n->get_attribute(name, text) || trimmed(text) != APSTRING("false"))
            return n->get_attribute(name, value);
          value = false;
          return true;
        };
      }},
    {"get_attribute", "a bool that is none is set to false",
      [](Hooks& h)
      {
        h.get_bool = [](Node const& n, apString const& name, bool& value)
        {
          bool const got = n->get_attribute(name, value);
          value = got && value;
          return got;
        };
      }},
    {"get_attribute", "a double that is none is set to zero",
      [](Hooks& h)
      {
        h.get_double = [](Node const& n, apString const& name, double& value)
        {
          bool const got = n->get_attribute(name, value);
          value = got ? value : 0.0;
          return got;
        };
      }},
    {"get_attribute", "a double is read as a float",
      [](Hooks& h)
      {
        h.get_double = [](Node const& n, apString const& name, double& value)
        {
          bool const got = n->get_attribute(name, value);
          if (got && std::fabs(value) < 1e30)
            value = static_cast<double>(static_cast<float>(value));
          return got;
        };
      }},
    {"get_attribute", "a double without bounds is refused",
      [](Hooks& h)
      {
        h.get_double = [](Node const& n, apString const& name, double& value)
        {
          double read = 0;
          if (!n->get_attribute(name, read) || std::isinf(read))
            return false;
          value = read;
          return true;
        };
      }},
    {"get_attribute", "a double may have blanks after it",
      [](Hooks& h)
      {
        h.get_double = [](Node const& n, apString const& name, double& value)
        {
          apString text;
          if (n->get_attribute(name, value))
            return true;
          if (!n->get_attribute(name, text) || !holds(text, L" "))
            return false;
          apString const cut = trimmed(text);
          auto const result = apStringLocaleDoubleParser::parse(cut);
          if (!result.success || result.position != cut.length())
            return false;
          value = result.value;
          return true;
        };
      }},
    {"set_attribute", "a double has fifteen digits",
      [](Hooks& h)
      {
        h.set_double = [](Node const& n, apString const& name, double value)
        { return n->set_attribute(name, written(value, 15)); };
      }},
    {"set_attribute", "a double has seventeen digits",
      [](Hooks& h)
      {
        h.set_double = [](Node const& n, apString const& name, double value)
        { return n->set_attribute(name, written(value, 17)); };
      }},
    {"set_attribute", "minus zero loses its sign",
      [](Hooks& h)
      {
        h.set_double = [](Node const& n, apString const& name, double value)
        { return n->set_attribute(name, value == 0 ? 0.0 : value); };
      }},
    {"set_attribute", "an unsigned int is written as an int",
      [](Hooks& h)
      {
        h.set_unsigned = [](Node const& n, apString const& name, unsigned int value)
        { return n->set_attribute(name, static_cast<int>(value)); };
      }},
    {"selectNodes", "what is found stands in the other order",
      [](Hooks& h)
      {
        put_into_results(
          h, [](std::vector<Element>& items, apString const&) { std::reverse(items.begin(), items.end()); });
      }},
    {"selectNodes", "a node may be found twice",
      [](Hooks& h)
      {
        put_into_results(h,
          [](std::vector<Element>& items, apString const& xpath)
          {
            if (holds(xpath, L"..") && !items.empty())
              items.push_back(items.back());
          });
      }},
    {"selectNodes", "a path of two slashes leaves out the root",
      [](Hooks& h)
      {
        put_into_results(h,
          [](std::vector<Element>& items, apString const& xpath)
          {
            bool const has_root = xpath.find(APSTRING("//")) == 0 && !items.empty() &&
                                  items[0]->getParentNode() != nullptr &&
                                  items[0]->getParentNode()->getParentNode() == nullptr;
            if (has_root)
              items.erase(items.begin());
          });
      }},
    {"selectNodes", "two slashes are children of the context",
      [](Hooks& h)
      {
        put_into_expressions(h, [](apString const& xpath)
          { return xpath.find(APSTRING("//")) > 0 ? replaced(xpath, APSTRING("//"), APSTRING("/")) : xpath; });
      }},
    {"selectNodes", "the last one is the first one",
      [](Hooks& h) {
        put_into_expressions(
          h, [](apString const& xpath) { return replaced(xpath, APSTRING("last()"), APSTRING("1")); });
      }},
    {"selectNodes", "positions begin at zero",
      [](Hooks& h) {
        put_into_expressions(
          h, [](apString const& xpath) { return replaced(xpath, APSTRING("[2]"), APSTRING("[3]")); });
      }},
    {"selectNodes", "an unequal attribute may be absent",
      [](Hooks& h)
      {
        put_into_expressions(h,
          [](apString const& xpath)
          {
            std::wstring text = wide(xpath);
            std::size_t const at = text.find(L" != ");
            std::size_t const start = at != std::wstring::npos ? text.rfind(L"[", at) : at;
            std::size_t const end = at != std::wstring::npos ? text.find(L"]", at) : at;
            if (end == std::wstring::npos)
              return xpath;
            std::wstring const test = text.substr(start + 1, end - start - 1);
            std::wstring const equal = test.substr(0, at - start - 1) + L"=" + test.substr(at - start + 3);
            return made(text.substr(0, start + 1) + L"not(" + equal + L")" + text.substr(end));
          });
      }},
    {"selectNodes", "not is left out",
      [](Hooks& h) {
        put_into_expressions(h, [](apString const& xpath) { return replaced(xpath, APSTRING("not("), APSTRING("(")); });
      }},
    {"selectNodes", "a star finds texts, too",
      [](Hooks& h)
      {
        put_into_expressions(h,
          [](apString const& xpath) {
            return holds(xpath, L"@*") || holds(xpath, L"*[") ? xpath
                                                              : replaced(xpath, APSTRING("*"), APSTRING("node()"));
          });
      }},
    {"selectNodes", "attributes are found in capitals, too",
      [](Hooks& h) {
        put_into_expressions(h, [](apString const& xpath) { return replaced(xpath, APSTRING("@K"), APSTRING("@k")); });
      }},
    {"selectNodes", "what was found stays for the same expression",
      [](Hooks& h)
      {
        auto const known =
          std::make_shared<std::vector<std::pair<std::pair<Element, std::wstring>, std::vector<Element>>>>();
        h.select = [known](Element const& element, apString const& xpath) -> List
        {
          for (auto const& [key, items] : *known)
            if (*key.first == *element && key.second == xpath.view())
              return list_of(items);
          known->push_back({{element, wide(xpath)}, items_of(element->selectNodes(xpath))});
          return list_of(known->back().second);
        };
      }},
    {"selectNodes", "all searches of one expression share a list",
      [](Hooks& h)
      {
        auto const known = std::make_shared<std::vector<std::pair<std::pair<Element, std::wstring>, List>>>();
        h.select = [known](Element const& element, apString const& xpath) -> List
        {
          for (auto const& [key, list] : *known)
            if (*key.first == *element && key.second == xpath.view())
              return list;
          known->push_back({{element, wide(xpath)}, element->selectNodes(xpath)});
          return known->back().second;
        };
      }},
    {"selectSingleNode", "it is the last one",
      [](Hooks& h)
      {
        h.select_single = [](Element const& element, apString const& xpath) -> Node
        {
          std::vector<Element> const items = items_of(element->selectNodes(xpath));
          return items.empty() ? nullptr : items.back();
        };
      }},
    {"selectSingleNode", "texts are not found",
      [](Hooks& h)
      {
        h.select_single = [](Element const& element, apString const& xpath)
        {
          Node const found = element->selectSingleNode(xpath);
          return found != nullptr && is_text(found) ? nullptr : found;
        };
      }},
  };
  return faults;
}
