#pragma once

#include "axmNodeKind.h"
#include "axmRanges.h"
#include "axmUtf8.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace axm
{
/// Writes a document with one node a line and two spaces a level. White space is added only where it means nothing:
/// between the children of an element that holds no text of its own and for which xml:space does not say "preserve"
/// (XML 1.0, 2.10). No line is indented by more than 100 levels, so that what is written of a deep document stays in
/// proportion to it. Cost: O(length of what is written).
class indented_writer
{
public:
  /// `declaration` is the XML declaration that is to stand before it.
  static std::string text_of(axmDocument& document, std::string_view declaration)
  {
    indented_writer writer;
    writer.text = std::string(declaration) + '\n';
    writer.write(document);
    return std::move(writer.text);
  }

private:
  struct open_node
  {
    std::shared_ptr<axmNode> next;
    std::string name; // empty of the document
  };

  void write(axmDocument& document)
  {
    open.push_back({document.getFirstChild(), {}});
    while (!open.empty())
      step();
  }

  void step()
  {
    std::shared_ptr<axmNode> const node = open.back().next;
    if (node == nullptr)
      return close();
    open.back().next = node->getNextSibling();
    indent();
    if (may_be_indented(*node))
      begin(*node);
    else
      text += utf8(node->get_xml()) + '\n';
  }

  void begin(axmNode& element)
  {
    std::string name = utf8(element.getNodeName());
    text += '<' + name;
    std::shared_ptr<axmNamedNodeMap> const attributes = element.getAttributes();
    for (int i = 0; i < attributes->getLength(); ++i)
      write_attribute(*attributes->item(i));
    text += ">\n";
    open.push_back({element.getFirstChild(), std::move(name)});
  }

  void close()
  {
    std::string const name = std::move(open.back().name);
    open.pop_back();
    if (name.empty())
      return;
    indent();
    text += "</" + name + ">\n";
  }

  void indent() { text.append(2 * std::min<std::size_t>(open.size() - 1, 100), ' '); }

  void write_attribute(axmNode const& attribute)
  {
    text += ' ' + utf8(attribute.getNodeName()) + "=\"";
    for (char const c : utf8(attribute.getNodeValue()))
      append_escaped(c);
    text += '"';
  }

  // What attribute-value normalisation would change stands as a reference (XML 1.0, 3.3.3).
  void append_escaped(char c)
  {
    std::string_view const special = "&<>\"\t\n\r";
    char const* const references[] = {"&amp;", "&lt;", "&gt;", "&quot;", "&#9;", "&#10;", "&#13;"};
    std::size_t const which = special.find(c);
    if (which == std::string_view::npos)
      text += c;
    else
      text += references[which];
  }

  static bool may_be_indented(axmNode& node)
  {
    apString space;
    if (!node.hasChildNodes() || !is_element(node) ||
        (node.get_attribute(APSTRING("xml:space"), space) && space == APSTRING("preserve")))
      return false;
    for (std::shared_ptr<axmNode> child = node.getFirstChild(); child != nullptr; child = child->getNextSibling())
      if (kind(*child) == node_kind::text)
        return false;
    return true;
  }

  std::string text;
  std::vector<open_node> open;
};
}
