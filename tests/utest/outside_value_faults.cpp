// Faults of texts, typed attributes and what documents make, made up by somebody who knows the headers and not the suite.

#include "Outside.h"

#include <axmCommentNode.h>
#include <axmProcessingInstruction.h>
#include <axmTextNode.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <cwchar>
#include <memory>
#include <string>
#include <string_view>

namespace
{
// Reads an attribute as another text than it holds.
template <class Value>
bool read_from(Node const& node, apString const& name, apString const& text, Value& value)
{
  Element const holder = node->getOwnerDocument()->createElement(APSTRING("a"));
  holder->setAttribute(name, text);
  return holder->get_attribute(name, value);
}

apString text_in(Node const& node, apString const& name)
{
  apString text;
  node->get_attribute(name, text);
  return text;
}
}

std::vector<Fault> const& outside_value_faults()
{
  static std::vector<Fault> const faults = {
    {"get_text", "an element's ends at an instruction",
      [](Hooks& h)
      {
        h.node_text = [](Node const& n)
        {
          if (!is_element(n))
            return n->get_text();
          apString text;
          for (Node node = n; node != nullptr && !is<axmProcessingInstruction>(node); node = after(node, n))
            if (is_text(node))
              text += node->getNodeValue();
          return text;
        };
      }},
    {"get_text", "the document's begins with the comments before the root",
      [](Hooks& h)
      {
        h.node_text = [](Node const& n)
        {
          Node const first = n->getFirstChild();
          bool const has_comment = is<axmDocument>(n) && first != nullptr && is<axmCommentNode>(first);
          return has_comment ? first->getNodeValue() + n->get_text() : n->get_text();
        };
      }},
    {"set_text", "the empty text makes no child",
      [](Hooks& h)
      {
        h.set_text = [](Node const& n, apString const& text)
        {
          if (is_element(n) && text.empty())
            remove_children(n);
          else
            n->set_text(text);
        };
      }},
    {"set_text", "elements that go out lose what they held",
      [](Hooks& h)
      {
        h.set_text = [](Node const& n, apString const& text)
        {
          std::vector<Node> const children = is_element(n) ? children_of(n) : std::vector<Node>();
          n->set_text(text);
          for (Node const& child : children)
            remove_children(child);
        };
      }},
    {"set_text", "of a document its comments go",
      [](Hooks& h)
      {
        h.set_text = [](Node const& n, apString const& text)
        {
          for (Node const& child : children_of(n))
            if (is<axmDocument>(n) && is<axmCommentNode>(child))
              n->removeChild(child);
          n->set_text(text);
        };
      }},
    {"set_text", "references in the text of an attribute are taken for characters",
      [](Hooks& h)
      {
        h.set_text = [](Node const& n, apString const& text)
        { n->set_text(is_attribute(n) ? replaced(text, APSTRING("&lt;"), APSTRING("<")) : text); };
      }},
    {"set_text", "of an attribute line ends become blanks",
      [](Hooks& h)
      {
        h.set_text = [](Node const& n, apString const& text)
        { n->set_text(is_attribute(n) ? replaced(text, APSTRING("\n"), APSTRING(" ")) : text); };
      }},
    {"set_text", "blanks that a new content of an instruction begins with are gone",
      [](Hooks& h)
      {
        h.set_text = [](Node const& n, apString const& text)
        {
          std::wstring_view view = text.view();
          while (is<axmProcessingInstruction>(n) && !view.empty() && view.front() == L' ')
            view.remove_prefix(1);
          n->set_text(apString(view));
        };
      }},
    {"set_text", "a text that held the same already is made anew nowhere: other children stay",
      [](Hooks& h)
      {
        h.set_text = [](Node const& n, apString const& text)
        {
          if (!is_element(n) || n->get_text() != text || text.empty())
            n->set_text(text);
        };
      }},
    {"get_xml", "quotes in a text are written as a reference",
      [](Hooks& h)
      {
        h.xml = [](Node const& n)
        { return is_text(n) ? replaced(n->get_xml(), APSTRING("\""), APSTRING("&quot;")) : n->get_xml(); };
      }},
    {"get_xml", "a comment that ends with a hyphen is written as it is",
      [](Hooks& h)
      {
        h.xml = [](Node const& n)
        {
          apString const data = n->getNodeValue();
          bool const ends_so =
            is<axmCommentNode>(n) && !data.empty() && data.view().back() == L'-' && !has(data, L"--");
          return ends_so ? APSTRING("<!--") + data + APSTRING("-->") : n->get_xml();
        };
      }},
    {"get_xml", "a text with U+FFFE is written as it is",
      [](Hooks& h)
      {
        h.xml = [](Node const& n)
        { return is_text(n) && has(n->getNodeValue(), L"\uFFFE") ? n->getNodeValue() : n->get_xml(); };
      }},
    {"get_xml", "the document's ends with its root",
      [](Hooks& h)
      {
        h.xml = [](Node const& n)
        {
          apString xml = n->get_xml();
          Node const last = is<axmDocument>(n) ? n->getLastChild() : nullptr;
          if (last != nullptr && is<axmProcessingInstruction>(last))
            xml.replace_all(last->get_xml(), apString());
          return xml;
        };
      }},
    {"get_xml", "an element is without its empty attributes",
      [](Hooks& h)
      {
        h.xml = [](Node const& n)
        {
          apString xml = n->get_xml();
          Element const element = std::dynamic_pointer_cast<axmElement>(n);
          if (element != nullptr && n->getFirstChild() == nullptr)
            for (apString const& name : names_of_attributes(element))
              xml.replace_all(APSTRING(" ") + name + APSTRING("=\"\""), apString());
          return xml;
        };
      }},
    {"get_attribute", "a bool may end with a line end",
      [](Hooks& h)
      {
        h.get_bool = [](Node const& n, apString const& name, bool& value)
        { return read_from(n, name, without_end(text_in(n, name), L"\n"), value); };
      }},
    {"get_attribute", "an int below the least is the least",
      [](Hooks& h)
      {
        h.get_int = [](Node const& n, apString const& name, int& value)
        {
          if (text_in(n, name) != APSTRING("-2147483649"))
            return n->get_attribute(name, value);
          value = INT_MIN;
          return true;
        };
      }},
    {"get_attribute", "an int that begins with 0 is octal",
      [](Hooks& h)
      {
        h.get_int = [](Node const& n, apString const& name, int& value)
        {
          bool const is_read = n->get_attribute(name, value);
          apString const text = text_in(n, name);
          if (is_read && text.length() > 1 && text.view().front() == L'0')
            value = static_cast<int>(std::wcstol(text.c_str(), nullptr, 8));
          return is_read;
        };
      }},
    {"get_attribute", "a double of minus zero is zero",
      [](Hooks& h)
      {
        h.get_double = [](Node const& n, apString const& name, double& value)
        {
          bool const is_read = n->get_attribute(name, value);
          if (is_read && value == 0)
            value = 0;
          return is_read;
        };
      }},
    {"get_attribute", "a double after its sign needs a digit before the point",
      [](Hooks& h)
      {
        h.get_double = [](Node const& n, apString const& name, double& value)
        { return text_in(n, name).view().substr(0, 2) != L"-." && n->get_attribute(name, value); };
      }},
    {"get_attribute", "a text of an instruction that failed is empty",
      [](Hooks& h)
      {
        h.get_string = [](Node const& n, apString const& name, apString& value)
        {
          bool const is_read = n->get_attribute(name, value);
          if (!is_read && is<axmProcessingInstruction>(n))
            value = apString();
          return is_read;
        };
      }},
    {"set_attribute", "a double of minus zero is written as 0",
      [](Hooks& h)
      {
        h.set_double = [](Node const& n, apString const& name, double value)
        { return n->set_attribute(name, value == 0 ? 0.0 : value); };
      }},
    {"set_attribute", "an unsigned int above the largest int is its largest",
      [](Hooks& h)
      {
        h.set_unsigned = [](Node const& n, apString const& name, unsigned int value)
        { return n->set_attribute(name, value > 2147483647U ? 2147483647U : value); };
      }},
    {"set_attribute", "an instruction says that it worked",
      [](Hooks& h)
      {
        h.set_int = [](Node const& n, apString const& name, int value)
        { return is<axmProcessingInstruction>(n) || n->set_attribute(name, value); };
      }},
    {"set_attribute_locale", "an exponent brings the point back",
      [](Hooks& h)
      {
        h.set_locale = [](Node const& n, apString const& name, double value)
        {
          double const size = std::fabs(value);
          bool const has_exponent = value != 0 && (size < 1e-4 || size >= 1e16);
          return has_exponent ? n->set_attribute(name, value) : n->set_attribute_locale(name, value);
        };
      }},
    {"hasAttribute", "one with the prefix xml is not told of",
      [](Hooks& h)
      {
        h.has_attribute = [](Element const& e, apString const& name)
        { return name.view().substr(0, 4) != L"xml:" && e->hasAttribute(name); };
      }},
    {"setAttribute", "a value of the same length as the one before is not taken over beyond 1000 characters",
      [](Hooks& h)
      {
        h.set_attribute = [](Element const& e, apString const& name, apString const& value)
        {
          if (value.length() <= 1000 || e->getAttribute(name).length() != value.length())
            e->setAttribute(name, value);
        };
      }},
    {"setAttribute", "a name that begins with a colon is none",
      [](Hooks& h)
      {
        h.set_attribute = [](Element const& e, apString const& name, apString const& value)
        {
          if (name.view().substr(0, 1) != L":")
            e->setAttribute(name, value);
        };
      }},
    {"removeAttribute", "those with the name as their prefix go too",
      [](Hooks& h)
      {
        h.remove_attribute = [](Element const& e, apString const& name)
        {
          for (apString const& present : names_of_attributes(e))
            if (present.view().substr(0, name.view().size() + 1) == std::wstring(name.view()) + L":")
              e->removeAttribute(present);
          e->removeAttribute(name);
        };
      }},
    {"createElement", "a name with a character beyond U+FFFF is none",
      [](Hooks& h)
      {
        h.create_element = [](Document const& d, apString const& name) -> Node
        {
          // In UTF-8 the first byte of four says so, whatever a wchar_t holds.
          std::string const bytes = name.to_utf8().c_str();
          bool const has_one =
            std::any_of(bytes.begin(), bytes.end(), [](char byte) { return (byte & '\xF8') == '\xF0'; });
          return has_one ? nullptr : d->createElement(name);
        };
      }},
    {"createElement", "a blank after the name is let pass",
      [](Hooks& h)
      {
        h.create_element = [](Document const& d, apString const& name)
        { return d->createElement(without_end(name, L" ")); };
      }},
    {"createTextNode", "line ends of two characters become one",
      [](Hooks& h)
      {
        h.create_text = [](Document const& d, apString const& data)
        { return d->createTextNode(replaced(data, APSTRING("\r\n"), APSTRING("\n"))); };
      }},
    {"createComment", "one with two hyphens is refused",
      [](Hooks& h)
      {
        h.create_comment = [](Document const& d, apString const& data) -> Node
        {
          if (has(data, L"--"))
            return nullptr;
          return d->createComment(data);
        };
      }},
    {"getDocumentElement", "there is none after an instruction",
      [](Hooks& h)
      {
        h.root = [](Document const& d)
        {
          Element const root = d->getDocumentElement();
          Node const previous = root != nullptr ? root->getPreviousSibling() : nullptr;
          return previous != nullptr && is<axmProcessingInstruction>(previous) ? nullptr : root;
        };
      }},
    {"getElementsByTagName", "an asterisk finds every one",
      [](Hooks& h)
      {
        h.by_name = [](Document const& d, apString const& name)
        {
          Element const root = d->getDocumentElement();
          return name == APSTRING("*") && root != nullptr ? root->selectNodes(APSTRING("//*"))
                                                          : d->getElementsByTagName(name);
        };
      }},
    {"getElementsByTagName", "one below another of its name is left out",
      [](Hooks& h)
      {
        h.by_name = [](Document const& d, apString const& name)
        {
          std::vector<Element> found;
          for (Element const& item : items_of(d->getElementsByTagName(name)))
            if (item->getParentNode() == nullptr || item->getParentNode()->getNodeName() != name)
              found.push_back(item);
          return list_of(found);
        };
      }},
    {"getElementsByTagName", "the last of more than 500 is missing",
      [](Hooks& h)
      {
        h.by_name = [](Document const& d, apString const& name) -> List
        {
          List const list = d->getElementsByTagName(name);
          return std::make_shared<ListAs>([list](int index) { return list->at(index); },
            [list] { return list->length() - (list->length() > 500 ? 1 : 0); });
        };
      }},
  };
  return faults;
}
