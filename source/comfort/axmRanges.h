#pragma once

#include "axmNamedNodeMap.h"
#include "axmNodeKind.h"
#include "axmNodeList.h"
#include "axmUtf8.h"

#include <cstddef>
#include <iterator>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

namespace axm
{
/// The children of a node for a range-based for loop, in document order: all of them, its elements, or those of one name.
///
///     for (auto const& book : axm::elements(catalog, "book"))
///       ...
///
/// The loop's body may take out, move or replace the child it has, and insert children: what comes after the child, as
/// it stands when the body is done, follows. Cost: O(1) a child. Holds the node.
class child_range
{
public:
  class iterator
  {
  public:
    using iterator_category = std::input_iterator_tag;
    using value_type = std::shared_ptr<axmNode>;
    using difference_type = std::ptrdiff_t;
    using pointer = value_type const*;
    using reference = value_type const&;

    iterator() = default;
    iterator(std::shared_ptr<axmNode> parent_node, std::shared_ptr<axmNode> first)
      : parent(std::move(parent_node)),
        current(std::move(first))
    {
      following = current == nullptr ? nullptr : current->getNextSibling();
    }

    reference operator*() const { return current; }
    pointer operator->() const { return &current; }

    iterator& operator++()
    {
      current = is_child(current) ? current->getNextSibling() : is_child(following) ? following : nullptr;
      following = current == nullptr ? nullptr : current->getNextSibling();
      return *this;
    }

    bool operator==(iterator const& other) const { return (current == nullptr) == (other.current == nullptr); }
    bool operator!=(iterator const& other) const { return !(*this == other); }

  private:
    bool is_child(std::shared_ptr<axmNode> const& node) const
    {
      std::shared_ptr<axmNode> const now = node == nullptr ? nullptr : node->getParentNode();
      return now != nullptr && *now == *parent;
    }

    std::shared_ptr<axmNode> parent;
    std::shared_ptr<axmNode> current;
    // What the current one stood before when it came, in case it is taken out.
    std::shared_ptr<axmNode> following;
  };

  explicit child_range(std::shared_ptr<axmNode> node) : parent(std::move(node)) {}

  iterator begin() const { return {parent, parent == nullptr ? nullptr : parent->getFirstChild()}; }
  iterator end() const { return {}; }

private:
  std::shared_ptr<axmNode> parent;
};

/// The children that are elements, or those of them that bear a name.
class element_range
{
public:
  class iterator
  {
  public:
    using iterator_category = std::input_iterator_tag;
    using value_type = std::shared_ptr<axmElement>;
    using difference_type = std::ptrdiff_t;
    using pointer = value_type const*;
    using reference = value_type const&;

    iterator() = default;
    iterator(child_range::iterator first, apString wanted, bool any)
      : child(first),
        name(std::move(wanted)),
        is_any(any)
    {
      find();
    }

    reference operator*() const { return current; }
    pointer operator->() const { return &current; }

    iterator& operator++()
    {
      ++child;
      find();
      return *this;
    }

    bool operator==(iterator const& other) const { return child == other.child; }
    bool operator!=(iterator const& other) const { return child != other.child; }

  private:
    void find()
    {
      for (current = nullptr; child != child_range::iterator(); ++child)
      {
        current = as_element(*child);
        if (current != nullptr && (is_any || current->getNodeName() == name))
          return;
      }
    }

    child_range::iterator child;
    apString name;
    bool is_any = true;
    std::shared_ptr<axmElement> current;
  };

  explicit element_range(std::shared_ptr<axmNode> node) : children(std::move(node)) {}
  element_range(std::shared_ptr<axmNode> node, apString wanted)
    : children(std::move(node)),
      name(std::move(wanted)),
      is_any(false)
  {
  }

  iterator begin() const { return {children.begin(), name, is_any}; }
  iterator end() const { return {}; }

private:
  child_range children;
  apString name;
  bool is_any = true;
};

/// The items of a list, by index; it is followed as it stands.
class item_range
{
public:
  class iterator
  {
  public:
    using iterator_category = std::input_iterator_tag;
    using value_type = std::shared_ptr<axmElement>;
    using difference_type = std::ptrdiff_t;
    using pointer = value_type const*;
    using reference = value_type const&;

    iterator() = default;
    explicit iterator(std::shared_ptr<axmNodeList> of) : list(std::move(of)) { find(); }

    reference operator*() const { return current; }
    pointer operator->() const { return &current; }

    iterator& operator++()
    {
      ++index;
      find();
      return *this;
    }

    bool operator==(iterator const& other) const { return (current == nullptr) == (other.current == nullptr); }
    bool operator!=(iterator const& other) const { return !(*this == other); }

  private:
    void find() { current = list == nullptr || index >= list->length() ? nullptr : list->at(index); }

    std::shared_ptr<axmNodeList> list;
    std::shared_ptr<axmElement> current;
    int index = 0;
  };

  explicit item_range(std::shared_ptr<axmNodeList> of) : list(std::move(of)) {}

  iterator begin() const { return iterator(list); }
  iterator end() const { return {}; }

private:
  std::shared_ptr<axmNodeList> list;
};

/// All children of `node`, which may be empty.
inline child_range children(std::shared_ptr<axmNode> node)
{
  return child_range(std::move(node));
}

/// Its children that are elements.
inline element_range elements(std::shared_ptr<axmNode> node)
{
  return element_range(std::move(node));
}

/// Its children that are elements of that name, as it is written in the document.
inline element_range elements(std::shared_ptr<axmNode> node, std::string_view name)
{
  return {std::move(node), wide(name)};
}

/// Its attributes, as nodes with name and value: those that it has now, so that the loop's body may add and remove some.
inline std::vector<std::shared_ptr<axmNode>> attributes(std::shared_ptr<axmNode> const& node)
{
  std::vector<std::shared_ptr<axmNode>> all;
  if (std::shared_ptr<axmNamedNodeMap> const map = node == nullptr ? nullptr : node->getAttributes())
    for (int i = 0; i < map->getLength(); ++i)
      all.push_back(map->item(i));
  return all;
}

/// The items of a list, such as what selectNodes() found; of a result the loop's body may take out the node that it has.
inline item_range items(std::shared_ptr<axmNodeList> list)
{
  return item_range(std::move(list));
}
}
