#pragma once

#include "axmDocumentFactory.h"
#include "axmModel.h"
#include "axmModelStep.h"
#include "axmNamedNodeMap.h"
#include "axmNodeList.h"

#include <apPath.h>
#include <utAssertListener.h>

#include <memory>
#include <string>
#include <vector>

// Does steps on an engine and in the model and holds the answers of the one to those of the other, up to the first
// difference. While one lives, assertions of the process are counted and go nowhere else. Not installed.
class axmModelRun
{
public:
  // After each `period`-th step everything is compared, after the others what the step has to do with.
  axmModelRun(axmDocumentFactory& factory, int period);
  axmModelRun(axmModelRun const&) = delete;
  axmModelRun& operator=(axmModelRun const&) = delete;
  ~axmModelRun();

  // Does a step; one that uses a slot with nothing in it does nothing. False when a difference was found, now or before.
  bool execute(axmModelStep const& step);

  // Compares everything that can be asked.
  bool compare_all();

  // What was asked, what the contract promises and what came, as a sentence; empty while there is no difference.
  std::string const& difference() const { return found; }

  // What was asked of the engine so far.
  long questions() const { return asked; }

  // For those who draw steps: what is in the slots.
  struct Slot
  {
    // The node; `axmModel::none` where there is no node.
    int number = axmModel::none;
    std::shared_ptr<axmNode> handle;
    // Handed out by a list, so that it stands as an element whatever it is.
    bool is_item = false;

    std::shared_ptr<axmNodeList> list;
    // Whose children the list holds, or in which document it found `name` and what it was then.
    int list_of = axmModel::none;
    std::wstring list_name;
    std::vector<int> list_found;
    int cursor = -1;
  };

  axmModel const& state() const { return model; }
  std::vector<Slot> const& all_slots() const { return slots; }

private:
  class Assertions;
  using Node = std::shared_ptr<axmNode>;
  using Document = std::shared_ptr<axmDocument>;
  using Element = std::shared_ptr<axmElement>;
  using List = std::shared_ptr<axmNodeList>;

  // Where a question is asked: a slot, and from there the way down by the children's indexes.
  struct Place
  {
    int slot;
    std::vector<int> path;
  };

  bool is_ready(axmModelStep const& step) const;
  bool is_open(axmModelStep const& step) const;
  bool perform(axmModelStep const& step);
  bool perform_unless_it_throws(axmModelStep const& step);
  bool perform_on_nodes(axmModelStep const& step);
  bool perform_on_attributes(axmModelStep const& step);
  bool perform_on_lists(axmModelStep const& step);
  bool compare_after(axmModelStep const& step);

  Slot& slot(int number);
  Node handle(int slot) const;
  int number(int slot) const;
  Document document(int slot) const;
  Element element(int slot) const;
  int handle_of(int number) const;
  bool keep(axmModelStep const& step, Node const& handle, int number, bool is_item = false);

  bool create_document(axmModelStep const& step);
  bool load(axmModelStep const& step);
  bool load_failing(axmModelStep const& step);
  bool reload(axmModelStep const& step);
  bool reload_xml(axmModelStep const& step);
  Document saved_and_loaded(axmModelStep const& step, bool& is_saved);
  Document loaded(std::string const& text, bool from_file);
  bool put(axmModelStep const& step);
  bool remove(axmModelStep const& step);
  bool set_text(axmModelStep const& step);
  bool set_attribute(axmModelStep const& step);
  bool set_attribute_node(axmModelStep const& step);
  bool remove_attribute_node(axmModelStep const& step);
  bool go(axmModelStep const& step);
  bool make_list(axmModelStep const& step);
  bool list_step(axmModelStep const& step);

  bool check_slot(int slot);
  bool check_tree(int slot);
  bool check_node(Place const& place, Node const& handle, int number, bool is_item);
  bool check_xml(Place const& place, Node const& handle, axmModelNode const& node);
  bool check_kind(Place const& place, Node const& handle, int number);
  bool check_around(Place const& place, Node const& handle, int number);
  bool check_owner(Place const& place, Node const& handle, int number);
  bool check_children(Place const& place, Node const& handle, int number, std::vector<Node>& children);
  bool check_child_list(Place const& place, Node const& handle, std::vector<Node> const& children);
  bool check_attributes(Place const& place, Node const& handle, int number);
  bool check_attribute(Place const& place, axmElement& element, axmNamedNodeMap& map, int attribute);
  bool check_absent(Place const& place, axmElement& element, axmNamedNodeMap& map, apString const& name);
  std::vector<int> attributes_in(axmNamedNodeMap& map, int number) const;
  bool check_map_items(Place const& place, axmNamedNodeMap& map, std::vector<int> left);
  bool check_no_attributes(Place const& place, Node const& handle, bool is_item);
  bool check_identity(int slot);
  bool check_list(int slot);
  bool check_document(Place const& place, axmDocument& document, int number);
  std::vector<int> present_items(Slot const& slot);
  bool are_items(axmNodeList& list, std::vector<int> const& numbers);

  bool same(Place const& place, char const* question, std::wstring const& promised, apString const& came);
  bool same(Place const& place, char const* question, bool promised, bool came);
  bool same(Place const& place, char const* question, int promised, int came);
  // That there is no node.
  bool none(Place const& place, char const* question, Node const& came);
  // That both denote one node.
  bool one(Place const& place, char const* question, axmNode const& promised, Node const& came);
  bool differ(Place const& place, std::string const& question, std::string const& promised, std::string const& came);

  axmDocumentFactory& factory;
  int const period;
  int steps_done = 0;
  long asked = 0;
  apPath const path;
  std::unique_ptr<Assertions> assertions;
  axmModel model;
  std::vector<Slot> slots;
  std::string found;
};
