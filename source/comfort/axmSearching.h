#pragma once

#include "axmAttributeValue.h"
#include "axmDocument.h"
#include "axmNodeKind.h"
#include "axmRanges.h"
#include "axmUtf8.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace axm
{
/// What the XPath expression selects with `node` as its context, in document order. The context of a document is its root
/// element. Nothing of an empty pointer, of what is no element, and for an expression that is wrong: what is wrong with
/// one, an engine's own classes tell, as axsCompiledXPath.
inline item_range select(std::shared_ptr<axmNode> const& node, std::string_view xpath)
{
  auto const document = std::dynamic_pointer_cast<axmDocument>(node);
  std::shared_ptr<axmElement> const context = document == nullptr ? as_element(node) : document->getDocumentElement();
  return items(context == nullptr ? nullptr : context->selectNodes(wide(xpath)));
}

/// The text of what was selected: of an attribute its value, of others the texts in it.
inline std::string text_of_selected(axmNode& found)
{
  return utf8(kind(found) == node_kind::attribute ? found.getNodeValue() : found.get_text());
}

/// The texts of what it selects as T, those that are none left out:
///
///     for (double const price : axm::select<double>(document, "//book/@price"))
///       sum += price;
template <class T>
std::vector<T> select(std::shared_ptr<axmNode> const& node, std::string_view xpath)
{
  std::vector<T> values;
  for (auto const& found : select(node, xpath))
    if (std::optional<T> value = value_of<T>(text_of_selected(*found)))
      values.push_back(std::move(*value));
  return values;
}

/// The first element or other node that it selects; empty if there is none.
inline std::shared_ptr<axmElement> select_one(std::shared_ptr<axmNode> const& node, std::string_view xpath)
{
  for (auto const& found : select(node, xpath))
    return found;
  return nullptr;
}
}
