#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// A document as a table: its nodes in document order, each with the number of those in it, so that what is in a node is
/// one range. Plain data, for what looks at whole documents and changes nothing.
struct axsFlatTree
{
  enum class Kind : std::uint8_t
  {
    document,
    doctype,
    element,
    text, // all that stands between markup, CDATA sections included
    comment,
    instruction,
    left_out // only while a tree is built
  };

  struct Attribute
  {
    /// The name as it is written, and the number of what it means.
    std::string_view name;
    std::uint32_t number;
    bool is_declaration;
    std::string_view value;
  };

  struct Node
  {
    Kind kind = Kind::document;
    /// Of an element: how many attributes from first_attribute on.
    std::uint32_t attribute_count = 0;
    std::size_t first_attribute = 0;
    /// Of an element as for attributes; of an instruction its target.
    std::string_view name;
    std::uint32_t number = 0;
    /// Which one of the children of its parent with that name, or of that kind, it is, counted from 1; 0 for the only one.
    std::uint32_t position = 0;
    /// The data of whatever is no element.
    std::string_view text;
    /// Of the whole range; the same for what is equal.
    std::uint64_t hash = 0;
    std::uint64_t line = 0;
    /// How many nodes are in it, itself counted.
    std::size_t size = 1;
    std::size_t parent = 0;
  };

  /// The first one is the document.
  std::vector<Node> nodes;
  std::vector<Attribute> attributes;

  /// Where the range of a node ends. Its children are the nodes from the one after it on, each after the range of the one
  /// before.
  std::size_t after(std::size_t node) const { return node + nodes[node].size; }
};
