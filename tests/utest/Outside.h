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
bool is_empty_text(Node const& node);
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

// A load from memory or from a file, whichever it is.
class Loading
{
public:
  Loading(Factory const& given_factory, apByteArray const& data, axmLoadOptions const& given_options,
    axmParseError& given_error);
  Loading(Factory const& given_factory, apPath const& given_path, axmLoadOptions const& given_options,
    axmParseError& given_error);

  bool is_of_file() const { return path.c_str()[0] != '\0'; }
  bool is_validated() const { return options.validate_mode() == axmValidateWithSchemas; }

  Document as_it_is() const;
  Document with(axmLoadOptions const& other) const;
  // From a file beside the one given, which is gone afterwards.
  Document of(std::string const& other, axmParseError& told) const;

  std::string const text;
  axmLoadOptions const& options;
  axmParseError& error;

private:
  Factory const factory;
  std::string const path;
};

void load_by(Hooks& hooks, std::function<Document(Loading const& loading)> const& load);

// Validates as if the document were another one.
void judge_as(Hooks& hooks, Change const& change);

// Validates as if schemas that others include, import or redefine said less.
void validate_included_as(Hooks& hooks, Change const& change);

// Replaces what a regular expression finds; texts of more than some thousand characters stay as they are.
Change by_rule(char const* pattern, char const* replacement);
WideChange by_rule(wchar_t const* pattern, wchar_t const* replacement);

// What `change` does with texts that hold `part`.
Change where_it_says(char const* part, Change const& change);

// Saves other bytes than the engine does, to a file.
void save_file_as(Hooks& hooks, Change const& change);

template <class Seen>
void for_each_node(Document const& document, Seen seen)
{
  for (Node node = document; node != nullptr; node = after(node, document))
    seen(node);
}
