#include "Outline.h"

#include <axmCharacterData.h>
#include <axmCommentNode.h>
#include <axmElement.h>
#include <axmNamedNodeMap.h>
#include <axmProcessingInstruction.h>

#include <algorithm>

namespace
{
std::string narrow(apString const& text)
{
  return text.to_utf8().c_str();
}

std::vector<std::string> attributes(axmNode& element)
{
  std::vector<std::string> lines;
  auto const map = element.getAttributes();
  for (int i = 0; i < map->getLength(); ++i)
  {
    auto const attribute = map->item(i);
    lines.push_back("@" + narrow(attribute->getNodeName()) + "=" + narrow(attribute->getNodeValue()));
  }
  return lines;
}

/// Calls `enter` for every node below `document` and `leave` after the children of each, without recursion: there are
/// deep documents.
template <class Enter, class Leave>
void walk(axmDocument& document, Enter enter, Leave leave)
{
  std::vector<std::shared_ptr<axmNode>> open;
  auto node = document.getFirstChild();
  while (node != nullptr || !open.empty())
  {
    if (node == nullptr)
    {
      node = open.back();
      open.pop_back();
      leave(*node);
      node = node->getNextSibling();
      continue;
    }
    enter(*node);
    open.push_back(node);
    node = node->getFirstChild();
  }
}

bool is_element(axmNode& node)
{
  return dynamic_cast<axmElement*>(&node) != nullptr;
}

bool is_text(axmNode& node)
{
  return dynamic_cast<axmCharacterData*>(&node) != nullptr && dynamic_cast<axmCommentNode*>(&node) == nullptr;
}

std::string without_white_space(std::string text)
{
  text.erase(
    std::remove_if(text.begin(), text.end(),
      [](char character) { return character == ' ' || character == '\t' || character == '\n' || character == '\r'; }),
    text.end());
  return text;
}
}

std::vector<std::string> full_outline(axmDocument& document)
{
  std::vector<std::string> lines;
  walk(
    document,
    [&lines](axmNode& node)
    {
      lines.push_back("<" + narrow(node.getNodeName()) + ">" + narrow(node.getNodeValue()));
      if (!is_element(node))
      {
        lines.push_back(narrow(node.get_xml()));
        return;
      }
      auto const found = attributes(node);
      lines.insert(lines.end(), found.begin(), found.end());
    },
    [&lines](axmNode& node) { lines.push_back("</" + narrow(node.getNodeName()) + ">"); });
  return lines;
}

std::vector<std::string> data_outline(axmDocument& document)
{
  std::vector<std::string> lines;
  std::string text;
  auto const end_text = [&lines, &text]
  {
    if (!text.empty())
      lines.push_back(text);
    text.clear();
  };
  walk(
    document,
    [&](axmNode& node)
    {
      if (is_text(node))
      {
        text += without_white_space(narrow(node.getNodeValue()));
        return;
      }
      if (dynamic_cast<axmProcessingInstruction*>(&node) != nullptr)
      {
        end_text();
        lines.push_back("?" + narrow(node.getNodeName()) + " " + narrow(node.getNodeValue()));
        return;
      }
      if (!is_element(node))
        return;
      end_text();
      lines.push_back("<" + narrow(node.getNodeName()) + ">");
      auto found = attributes(node);
      std::sort(found.begin(), found.end());
      lines.insert(lines.end(), found.begin(), found.end());
    },
    [&](axmNode& node)
    {
      if (!is_element(node))
        return;
      end_text();
      lines.push_back("</" + narrow(node.getNodeName()) + ">");
    });
  return lines;
}

std::string first_difference(std::vector<std::string> const& left, std::vector<std::string> const& right)
{
  auto const [at_left, at_right] = std::mismatch(left.begin(), left.end(), right.begin(), right.end());
  if (at_left == left.end() && at_right == right.end())
    return {};
  auto const line = [](auto const& at, auto const& end) { return at == end ? std::string("the end") : *at; };
  return line(at_left, left.end()) + " | " + line(at_right, right.end());
}
