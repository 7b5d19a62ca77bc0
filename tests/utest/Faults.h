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

// The text with every `wanted` replaced.
apString replaced(apString text, apString const& wanted, apString const& replacement);

// Without white space at its ends.
apString trimmed(apString const& text);

apString lower_case(apString const& text);

bool is_element(Node const& node);

template <class Kind>
bool is(Node const& node)
{
  return std::dynamic_pointer_cast<Kind>(node) != nullptr;
}

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
