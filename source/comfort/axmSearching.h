#pragma once

#include "axmAttributeValue.h"
#include "axmRanges.h"
#include "axmUtf8.h"

#include <memory>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace axm
{
/// What the XPath expression selects with `element` as its context, in document order; nothing of an empty pointer.
inline item_range<axmNodeList, axmElement> select(std::shared_ptr<axmElement> const& element, std::string_view xpath)
{
  return items(element == nullptr ? nullptr : element->selectNodes(wide(xpath)));
}

/// The same of a document, its root being the context.
inline item_range<axmNodeList, axmElement> select(std::shared_ptr<axmDocument> const& document, std::string_view xpath)
{
  return select(document == nullptr ? nullptr : document->getDocumentElement(), xpath);
}

/// The texts of what it selects as T, those that are none left out:
///
///     for (double const price : axm::select<double>(document, "//book/@price"))
///       sum += price;
template <class T, class Node>
std::vector<T> select(std::shared_ptr<Node> const& node, std::string_view xpath)
{
  std::vector<T> values;
  for (auto const& found : select(node, xpath))
    // An attribute has no text, but a value.
    if (std::optional<T> value = value_of<T>(
          (kind(*found) == node_kind::attribute ? found->getNodeValue() : found->get_text()).to_utf8().view()))
      values.push_back(std::move(*value));
  return values;
}

/// The first element or other node that it selects; empty if there is none.
template <class Node>
std::shared_ptr<axmElement> select_one(std::shared_ptr<Node> const& node, std::string_view xpath)
{
  for (auto const& found : select(node, xpath))
    return found;
  return nullptr;
}
}
