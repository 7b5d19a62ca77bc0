#pragma once

#include "axmRanges.h"
#include "axmUtf8.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace axm
{
/// The texts of the node and all below it, in UTF-8.
inline std::string text(axmNode const& node)
{
  return utf8(node.get_text());
}

/// The same of a node that is held; empty of an empty pointer.
template <class Node>
std::string text(std::shared_ptr<Node> const& node)
{
  return node == nullptr ? std::string() : text(*node);
}

/// The first child of that name; empty if there is none.
inline std::shared_ptr<axmElement> child(std::shared_ptr<axmNode> const& node, std::string_view name)
{
  for (auto const& element : elements(node, name))
    return element;
  return nullptr;
}

/// Its text; none if there is no such child.
inline std::optional<std::string> child_text(std::shared_ptr<axmNode> const& node, std::string_view name)
{
  std::shared_ptr<axmElement> const found = child(node, name);
  return found == nullptr ? std::nullopt : std::optional<std::string>(text(*found));
}

/// Takes `node` out of its tree and returns it; where it is in none, or empty, nothing is changed.
template <class Node>
std::shared_ptr<Node> detach(std::shared_ptr<Node> const& node)
{
  if (node != nullptr)
    if (std::shared_ptr<axmNode> const parent = node->getParentNode())
      parent->removeChild(node);
  return node;
}

/// Appends a new element to `parent`, with that text if there is any; empty where `name` is no name or an element cannot
/// stand there.
inline std::shared_ptr<axmElement> append(
  std::shared_ptr<axmNode> const& parent, std::string_view name, std::string_view content = {})
{
  std::shared_ptr<axmDocument> const document = parent == nullptr ? nullptr : parent->getOwnerDocument();
  std::shared_ptr<axmElement> const made = document == nullptr ? nullptr : document->createElement(wide(name));
  if (made == nullptr || parent->appendChild(made) == nullptr)
    return nullptr;
  if (!content.empty())
    made->set_text(wide(content));
  return made;
}
}
