#include "Faults.h"

#include <axmCommentNode.h>
#include <axmTextNode.h>

#include <string>

namespace
{
bool is_text(Node const& node)
{
  return std::dynamic_pointer_cast<axmTextNode>(node) != nullptr;
}

bool is_comment(Node const& node)
{
  return std::dynamic_pointer_cast<axmCommentNode>(node) != nullptr;
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
    {"get_xml", "a quote in a text is a reference",
      [](Hooks& h)
      {
        h.xml = [](Node const& n)
        { return is_text(n) ? replaced(n->get_xml(), APSTRING("\""), APSTRING("&quot;")) : n->get_xml(); };
      }},
  };
  return faults;
}
