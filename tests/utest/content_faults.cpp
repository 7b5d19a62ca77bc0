#include "Faults.h"

#include <axmTextNode.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <utility>

namespace
{
bool is_absolute(apString const& xpath)
{
  return xpath.find(APSTRING("/")) == 0;
}

// The name under which an attribute is found if case does not count.
apString any_case(Element const& element, apString const& name)
{
  Map const map = element->getAttributes();
  for (int index = 0; map != nullptr && index < map->getLength(); ++index)
    if (lower_case(map->item(index)->getNodeName()) == lower_case(name))
      return map->item(index)->getNodeName();
  return name;
}
}

std::vector<Fault> const& content_faults()
{
  static std::vector<Fault> const faults = {
    {"getAttribute", "the value is escaped",
      [](Hooks& h)
      {
        h.get_attribute = [](Element const& e, apString const& name)
        { return replaced(e->getAttribute(name), APSTRING("&"), APSTRING("&amp;")); };
      }},
    {"getAttribute", "the value is trimmed",
      [](Hooks& h)
      { h.get_attribute = [](Element const& e, apString const& name) { return trimmed(e->getAttribute(name)); }; }},
    {"getAttribute", "the case of the name does not count",
      [](Hooks& h)
      { h.get_attribute = [](Element const& e, apString const& name) { return e->getAttribute(any_case(e, name)); }; }},
    {"setAttribute", "a value is not overwritten",
      [](Hooks& h)
      {
        h.set_attribute = [](Element const& e, apString const& name, apString const& value)
        {
          if (!e->hasAttribute(name))
            e->setAttribute(name, value);
        };
      }},
    {"setAttribute", "an empty value removes the attribute",
      [](Hooks& h)
      {
        h.set_attribute = [](Element const& e, apString const& name, apString const& value)
        {
          if (value.empty())
            e->removeAttribute(name);
          else
            e->setAttribute(name, value);
        };
      }},
    {"setAttribute", "nothing is set",
      [](Hooks& h) { h.set_attribute = [](Element const&, apString const&, apString const&) {}; }},
    {"removeAttribute", "the value becomes empty",
      [](Hooks& h)
      {
        h.remove_attribute = [](Element const& e, apString const& name)
        {
          if (e->hasAttribute(name))
            e->setAttribute(name, apString());
        };
      }},
    {"removeAttribute", "all attributes are removed",
      [](Hooks& h)
      {
        h.remove_attribute = [](Element const& e, apString const&)
        {
          while (e->hasAttributes())
            e->removeAttribute(e->getAttributes()->item(0)->getNodeName());
        };
      }},
    {"hasAttribute", "an empty value does not count",
      [](Hooks& h)
      { h.has_attribute = [](Element const& e, apString const& name) { return !e->getAttribute(name).empty(); }; }},
    {"hasAttribute", "the case of the name does not count",
      [](Hooks& h)
      { h.has_attribute = [](Element const& e, apString const& name) { return e->hasAttribute(any_case(e, name)); }; }},
    {"hasAttribute", "every attribute is there",
      [](Hooks& h) { h.has_attribute = [](Element const&, apString const&) { return true; }; }},

    {"selectNodes", "what is found is the wrong way round",
      [](Hooks& h)
      {
        h.select = [](Element const& e, apString const& xpath)
        {
          std::vector<Element> items = items_of(e->selectNodes(xpath));
          std::reverse(items.begin(), items.end());
          return list_of(items);
        };
      }},
    {"selectNodes", "nothing found is an empty pointer",
      [](Hooks& h)
      {
        h.select = [](Element const& e, apString const& xpath)
        {
          List const found = e->selectNodes(xpath);
          return found->isEmpty() ? nullptr : found;
        };
      }},
    {"selectNodes", "an absolute path begins at the element",
      [](Hooks& h)
      {
        h.select = [](Element const& e, apString const& xpath)
        { return e->selectNodes(is_absolute(xpath) ? APSTRING(".") + xpath : xpath); };
      }},
    {"selectNodes", "a relative path begins at the root",
      [](Hooks& h)
      {
        h.select = [](Element const& e, apString const& xpath)
        { return (is_absolute(xpath) ? e : e->getOwnerDocument()->getDocumentElement())->selectNodes(xpath); };
      }},
    {"selectNodes", "the first node only is found",
      [](Hooks& h)
      {
        h.select = [](Element const& e, apString const& xpath)
        {
          List const found = e->selectNodes(xpath);
          return found->isEmpty() ? found : list_of({found->at(0)});
        };
      }},
    {"selectNodes", "an element that is in no tree is not searched",
      [](Hooks& h)
      {
        h.select = [](Element const& e, apString const& xpath)
        { return e->getParentNode() != nullptr ? e->selectNodes(xpath) : list_of({}); };
      }},
    {"selectNodes", "there is no list",
      [](Hooks& h) { h.select = [](Element const&, apString const&) -> List { return nullptr; }; }},
    {"selectSingleNode", "the last node is found",
      [](Hooks& h)
      {
        h.select_single = [](Element const& e, apString const& xpath) -> Node
        {
          List const found = e->selectNodes(xpath);
          return found->isEmpty() ? nullptr : found->at(found->length() - 1);
        };
      }},
    {"selectSingleNode", "where nothing is found it is the element",
      [](Hooks& h)
      {
        h.select_single = [](Element const& e, apString const& xpath) -> Node
        {
          Node const found = e->selectSingleNode(xpath);
          return found != nullptr ? found : e;
        };
      }},

    {"createElement", "there are no elements",
      [](Hooks& h) { h.create_element = [](Document const&, apString const&) -> Node { return nullptr; }; }},
    {"createElement", "a new element is in the tree already",
      [](Hooks& h)
      {
        h.create_element = [](Document const& d, apString const& name) -> Node
        {
          Element const made = d->createElement(name);
          if (made != nullptr && d->getDocumentElement() != nullptr)
            d->getDocumentElement()->appendChild(made);
          return made;
        };
      }},
    {"createElement", "what is no name becomes one",
      [](Hooks& h)
      {
        h.create_element = [](Document const& d, apString const& name) -> Node
        {
          Element const made = d->createElement(name);
          return made != nullptr ? made : d->createElement(APSTRING("_"));
        };
      }},
    {"createElement", "letters beyond ASCII are left out of the name",
      [](Hooks& h)
      {
        h.create_element = [](Document const& d, apString const& name) -> Node
        {
          std::wstring kept(name.view());
          kept.erase(std::remove_if(kept.begin(), kept.end(), [](wchar_t c) { return c > L'\x7F'; }), kept.end());
          return d->createElement(apString(std::wstring_view(kept)));
        };
      }},
    {"createTextNode", "there are no texts",
      [](Hooks& h) { h.create_text = [](Document const&, apString const&) -> Node { return nullptr; }; }},
    {"createTextNode", "the data is trimmed",
      [](Hooks& h) {
        h.create_text = [](Document const& d, apString const& data) -> Node
        { return d->createTextNode(trimmed(data)); };
      }},
    {"createTextNode", "there is no empty text",
      [](Hooks& h)
      {
        h.create_text = [](Document const& d, apString const& data) -> Node
        { return data.empty() ? nullptr : d->createTextNode(data); };
      }},
    {"createTextNode", "the data is escaped",
      [](Hooks& h)
      {
        h.create_text = [](Document const& d, apString const& data) -> Node
        { return d->createTextNode(replaced(data, APSTRING("&"), APSTRING("&amp;"))); };
      }},
    {"createComment", "there are no comments",
      [](Hooks& h) { h.create_comment = [](Document const&, apString const&) -> Node { return nullptr; }; }},
    {"createComment", "a comment becomes a text",
      [](Hooks& h)
      { h.create_comment = [](Document const& d, apString const& data) -> Node { return d->createTextNode(data); }; }},
    {"getDocumentElement", "the root is its first child element",
      [](Hooks& h)
      {
        h.root = [](Document const& d)
        {
          Element const root = d->getDocumentElement();
          auto const inner = root != nullptr ? std::dynamic_pointer_cast<axmElement>(root->getFirstChild()) : nullptr;
          return inner != nullptr ? inner : root;
        };
      }},
    {"getDocumentElement", "there is no root",
      [](Hooks& h) { h.root = [](Document const&) -> Element { return nullptr; }; }},
    {"getDocumentURI", "the text is another one at every call",
      [](Hooks& h)
      {
        auto const calls = std::make_shared<std::wstring>();
        h.uri = [calls](Document const&)
        {
          *calls += L'x';
          return apString(std::wstring_view(*calls));
        };
      }},
    {"getElementsByTagName", "the root is not found",
      [](Hooks& h)
      {
        h.by_name = [](Document const& d, apString const& name)
        {
          std::vector<Element> items = items_of(d->getElementsByTagName(name));
          if (!items.empty() && *items.front() == *d->getDocumentElement())
            items.erase(items.begin());
          return list_of(items);
        };
      }},
    {"getElementsByTagName", "children of the root only are found",
      [](Hooks& h)
      {
        h.by_name = [](Document const& d, apString const& name) -> List
        {
          Element const root = d->getDocumentElement();
          std::vector<Element> found = items_of(root->selectNodes(name));
          if (root->getNodeName() == name)
            found.insert(found.begin(), root);
          return list_of(found);
        };
      }},
    {"getElementsByTagName", "nothing found is an empty pointer",
      [](Hooks& h)
      {
        h.by_name = [](Document const& d, apString const& name)
        {
          List const found = d->getElementsByTagName(name);
          return found->isEmpty() ? nullptr : found;
        };
      }},
    {"getElementsByTagName", "the case of the name does not count",
      [](Hooks& h)
      {
        h.by_name = [](Document const& d, apString const& name)
        {
          List const found = d->getElementsByTagName(lower_case(name));
          return found->isEmpty() ? d->getElementsByTagName(name) : found;
        };
      }},
    {"getElementsByTagName", "what is found is the wrong way round",
      [](Hooks& h)
      {
        h.by_name = [](Document const& d, apString const& name)
        {
          std::vector<Element> items = items_of(d->getElementsByTagName(name));
          std::reverse(items.begin(), items.end());
          return list_of(items);
        };
      }},
    {"getData", "the data is the XML", [](Hooks& h) { h.character_data = [](Node const& n) { return n->get_xml(); }; }},
    {"getData", "the data is trimmed",
      [](Hooks& h) { h.character_data = [](Node const& n) { return trimmed(n->get_text()); }; }},

    {"get_attribute", "a bool may be in capitals",
      [](Hooks& h)
      {
        h.get_bool = [](Node const& n, apString const& name, bool& value)
        {
          apString text;
          if (!n->get_attribute(name, text) ||
              (lower_case(text) != APSTRING("true") && lower_case(text) != APSTRING("false")))
            return n->get_attribute(name, value);
          value = lower_case(text) == APSTRING("true");
          return true;
        };
      }},
    {"get_attribute", "1 and 0 are no bools",
      [](Hooks& h)
      {
        h.get_bool = [](Node const& n, apString const& name, bool& value)
        {
          apString text;
          return n->get_attribute(name, text) && text.length() > 1 && n->get_attribute(name, value);
        };
      }},
    {"get_attribute", "a number may have more after it",
      [](Hooks& h)
      {
        h.get_int = [](Node const& n, apString const& name, int& value)
        {
          apString text;
          if (!n->get_attribute(name, text) || text.empty())
            return false;
          return std::sscanf(text.to_utf8().c_str(), "%9d", &value) == 1;
        };
      }},
    {"get_attribute", "a failure sets the number to 0",
      [](Hooks& h)
      {
        h.get_int = [](Node const& n, apString const& name, int& value)
        {
          bool const got = n->get_attribute(name, value);
          value = got ? value : 0;
          return got;
        };
      }},
    {"get_attribute", "a comma is a decimal point",
      [](Hooks& h)
      {
        h.get_double = [](Node const& n, apString const& name, double& value)
        {
          apString text;
          if (!n->get_attribute(name, text) || text.find(APSTRING(",")) < 0)
            return n->get_attribute(name, value);
          value = 1.5;
          return true;
        };
      }},
    {"get_attribute", "an absent attribute is an empty text",
      [](Hooks& h)
      {
        h.get_string = [](Node const& n, apString const& name, apString& value)
        {
          if (!n->get_attribute(name, value))
            value = apString();
          return true;
        };
      }},
    {"get_attribute", "an empty text fails",
      [](Hooks& h)
      {
        h.get_string = [](Node const& n, apString const& name, apString& value)
        {
          apString text;
          if (!n->get_attribute(name, text) || text.empty())
            return false;
          value = text;
          return true;
        };
      }},
    {"set_attribute", "a bool is written as a number",
      [](Hooks& h)
      {
        h.set_bool = [](Node const& n, apString const& name, bool value)
        { return n->set_attribute(name, value ? 1 : 0); };
      }},
    {"set_attribute", "a double is written with six digits",
      [](Hooks& h)
      {
        h.set_double = [](Node const& n, apString const& name, double value)
        {
          char text[40];
          std::snprintf(text, sizeof text, "%g", value);
          return n->set_attribute(name, replaced(apString(text), APSTRING(","), APSTRING(".")));
        };
      }},
    {"set_attribute", "an unsigned number is written with its sign",
      [](Hooks& h)
      {
        h.set_unsigned = [](Node const& n, apString const& name, unsigned int value)
        { return n->set_attribute(name, static_cast<int>(value)); };
      }},
    {"set_attribute", "setting on a text succeeds",
      [](Hooks& h)
      {
        h.set_string = [](Node const& n, apString const& name, apString const& value)
        {
          n->set_attribute(name, value);
          return true;
        };
      }},
    {"set_attribute_locale", "the number is rounded",
      [](Hooks& h)
      {
        h.set_locale = [](Node const& n, apString const& name, double value)
        { return n->set_attribute(name, static_cast<int>(value)); };
      }},
    {"get_attribute_locale", "no number is read",
      [](Hooks& h) { h.get_locale = [](Node const&, apString const&, double&) { return false; }; }},
  };
  return faults;
}
