#pragma once

#include "Faults.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

// What the faults made up from outside are made with.

using Change = std::function<std::string(std::string const& text)>;
using WideChange = std::function<std::wstring(std::wstring text)>;

bool same(Node const& left, Node const& right);
bool is_child(Node const& parent, Node const& child);
bool is_attribute(Node const& node);
bool has(apString const& text, std::wstring_view part);
std::vector<Node> children_of(Node const& node);
std::vector<apString> names_of_attributes(Element const& element);
void remove_children(Node const& node);

// Without those of the characters that it ends with.
apString without_end(apString const& text, std::wstring_view characters);

bool has(std::string_view text, std::string_view part);

// The text with every `wanted` replaced.
std::wstring in_place_of(std::wstring text, std::wstring_view wanted, std::wstring_view replacement);

// Everything from `begin` to the next `end`, both included, taken out wherever it stands.
std::string without(std::string text, std::string_view begin, std::string_view end);

// Schemas in whose declarations of attributes `part`, as " fixed=\"", is missing with its value.
std::string without_in_attributes(std::string text, std::string_view part);

// With one kind of quotes, where both do.
std::string with_one_quote(std::string const& text);

// Loads what is refused as another text that is not.
void accept_as(Hooks& hooks, Change const& change);
void accept_as(Hooks& hooks, char const* wanted, char const* meant);
void refuse(Hooks& hooks, std::function<bool(std::string const& text)> const& is_refused);

// Validates as if the schemas said less.
void validate_as(Hooks& hooks, Change const& change);
void validate_as(Hooks& hooks, char const* wanted, char const* meant);

// Validates as if the schemas said more.
void refuse_as(Hooks& hooks, Change const& change);

// Searches for another expression than the one given.
void search_as(Hooks& hooks, WideChange const& change);
void search_as(Hooks& hooks, wchar_t const* wanted, wchar_t const* meant);

// Saves other bytes than the engine does, to memory.
void save_as(Hooks& hooks, std::function<std::string(Document const& document, std::string const& text)> const& change);

template <class Seen>
void for_each_node(Document const& document, Seen seen)
{
  for (Node node = document; node != nullptr; node = after(node, document))
    seen(node);
}
