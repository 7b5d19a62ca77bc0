#pragma once

#include "Hooks.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

// An engine with one promise broken.
struct Fault
{
  // The operation whose promise it is.
  char const* operation;
  // What the engine does instead.
  char const* name;
  void (*put_into)(Hooks& hooks);
};

std::vector<Fault> const& node_faults();
std::vector<Fault> const& content_faults();
std::vector<Fault> const& collection_faults();
std::vector<Fault> const& factory_faults();

// Those that show at certain sizes, after certain sequences or with certain characters only.
std::vector<Fault> const& subtle_tree_faults();
std::vector<Fault> const& subtle_content_faults();
std::vector<Fault> const& subtle_factory_faults();

// Those read off the promises of the headers, sentence by sentence.
std::vector<Fault> const& promise_faults();

// Those against the rules that the headers refer to.
std::vector<Fault> const& rule_faults();

// Those of what is held while others change, of what is deep, large or rare.
std::vector<Fault> const& held_faults();

// Those made up by somebody who knows the headers and not the suite.
std::vector<Fault> const& outside_tree_faults();
std::vector<Fault> const& outside_value_faults();
std::vector<Fault> const& outside_load_faults();
std::vector<Fault> const& outside_second_faults();

// The same once more, wrong in combinations only.
std::vector<Fault> const& outside_third_tree_faults();
std::vector<Fault> const& outside_third_typed_faults();
std::vector<Fault> const& outside_third_load_faults();
std::vector<Fault> const& outside_third_save_faults();
std::vector<Fault> const& outside_third_schema_faults();
std::vector<Fault> const& outside_third_search_faults();
std::vector<Fault> const& outside_fourth_faults();

// Engines that break no promise, with what they do otherwise than the one that comes with the library.
std::vector<Fault> const& freedoms();

// The text with every `wanted` replaced.
apString replaced(apString text, apString const& wanted, apString const& replacement);

// Without white space at its ends.
apString trimmed(apString const& text);

apString lower_case(apString const& text);

// With so many digits.
apString written(double value, int digits);

bool is_element(Node const& node);
bool is_text(Node const& node);

template <class Kind>
bool is(Node const& node)
{
  return std::dynamic_pointer_cast<Kind>(node) != nullptr;
}

// The node after `node` in document order among those below `top`.
Node after(Node const& node, Node const& top);

// How many nodes it lies in.
int depth_of(Node const& node);

std::string text_of(apByteArray const& data);
apByteArray bytes_of(std::string const& text);
bool holds(apByteArray const& data, std::string_view part);

// The text with every `wanted` replaced.
std::string with(std::string text, std::string const& wanted, std::string const& replacement);

// Empty if it cannot be read.
std::string contents_of(apPath const& path);
void write(apPath const& path, std::string const& text);

// Loads other text than what is in the memory.
void read_as(Hooks& hooks, std::function<std::string(std::string const& text)> const& change);
void read_as(Hooks& hooks, char const* wanted, char const* meant);

// A list of the items given, and the items of a list.
List list_of(std::vector<Element> const& items);
std::vector<Element> items_of(List const& list);

// What a load that fails for no reason hands out.
Document refused(axmParseError& error);

// Changes what is told of a load from memory: `change` has the text, the document and the error.
template <class Change>
void tell_of_bytes(Hooks& hooks, Change change)
{
  hooks.load_bytes =
    [change](Factory const& factory, apByteArray const& data, axmLoadOptions const& options, axmParseError& error)
  {
    Document const document = factory->loadDocument(data, options, error);
    change(text_of(data), document, error);
    return document;
  };
}

// A list whose items are found as the functions say.
class ListAs : public axmNodeList
{
public:
  ListAs(std::function<Element(int)> given_item, std::function<int()> given_size)
    : item(std::move(given_item)),
      size(std::move(given_size))
  {
  }
  Element at(int index) override { return item(index); }
  int length() const override { return size(); }

private:
  std::function<Element(int)> item;
  std::function<int()> size;
};

// A map that is another one.
class MapAs : public axmNamedNodeMap
{
public:
  explicit MapAs(Map given_map) : map(std::move(given_map)) {}
  int getLength() override { return map->getLength(); }
  Node item(int index) override { return map->item(index); }
  Node getNamedItem(apString const& name) override { return map->getNamedItem(name); }
  Node removeNamedItem(apString const& name) override { return map->removeNamedItem(name); }
  Node setNamedItem(Node node) override { return map->setNamedItem(std::move(node)); }

protected:
  Map const map;
};
