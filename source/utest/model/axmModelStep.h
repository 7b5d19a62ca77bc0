#pragma once

#include <string>
#include <vector>

// What a step of a run does. Where it says so, the result goes to the step's own slot.
enum class axmModelAction
{
  // Documents: by name; from the text that `index` stands for (axmModelSource.h), by way of memory or a file; from the
  // text `text`, which must fail; a saved and loaded copy of `a`, by way of memory, a file or its XML (of an element, too).
  create_document,
  load,
  load_from_file,
  load_failing,
  reload,
  reload_from_file,
  reload_xml,
  // New nodes of the document `a`.
  create_element,
  create_text,
  create_comment,
  // Edits of `a` with `b` and `c`, of which each may be no node.
  append,
  insert,
  replace,
  remove,
  set_text,
  // Attributes of `a` by `name`, and an attribute node `b`.
  set_attribute,
  remove_attribute,
  attribute_node,
  remove_attribute_node,
  set_attribute_node,
  // Another way to a node.
  parent,
  first,
  last,
  next,
  previous,
  item,
  root,
  owner,
  // Lists of `a`, and steps of the list `a`.
  children,
  by_name,
  list_step,
  list_reset,
  list_next,
  // Lets go of `a`.
  drop
};

// A step of a run. Nodes and lists are meant by slots, of which each step has one of its own; `no_slot` is no node.
struct axmModelStep
{
  static constexpr int no_slot = -1;

  axmModelAction action = axmModelAction::create_document;
  int slot = no_slot;
  int a = no_slot;
  int b = no_slot;
  int c = no_slot;
  int index = 0;
  std::wstring name;
  std::wstring text;
};

// The steps as a text in C++.
std::string axm_model_program(std::vector<axmModelStep> const& steps);

// What stands for a slot there.
std::string axm_model_variable(int slot);
