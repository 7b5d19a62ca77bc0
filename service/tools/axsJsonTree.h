#pragma once

#include "axsFlatTree.h"
#include "axsJsonWriter.h"

#include <cstddef>
#include <vector>

/// Writes a flat tree as JSON; see axsJsonText.
class axsJsonTree
{
public:
  /// Both references must outlive this.
  axsJsonTree(axsFlatTree const& written, unsigned indent, axsJsonWriter::Write const& write)
    : tree(written),
      json(indent, write)
  {
  }

  void run();

private:
  // What is still to be written, in the order from the last one back.
  enum class Step
  {
    key,   // the name of the element
    value, // its value
    item,  // the node as a part of "#content"
    begin_array,
    end_array,
    end_object
  };

  struct Work
  {
    Step step;
    std::size_t node;
  };

  void do_next(Work work);
  void write_value(std::size_t node);
  void write_item(std::size_t node);
  void write_attributes(axsFlatTree::Node const& node);
  void push_content(std::size_t node);
  bool has_groups(std::size_t node) const;
  void push_groups(std::size_t node);
  std::vector<std::size_t> children_of(std::size_t node) const;

  axsFlatTree const& tree;
  axsJsonWriter json;
  std::vector<Work> steps;
};
