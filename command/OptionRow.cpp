#include "OptionRow.h"

#include <CLI/CLI.hpp>

#include <sstream>

namespace
{
std::string joined(std::vector<std::string> const& texts, char const* between)
{
  std::string all;
  for (std::string const& text : texts)
    all += (all.empty() ? "" : between) + text;
  return all;
}

// A check adds what it asks for to the name of the type: TEXT:{csv,tsv}.
std::vector<std::string> choices_in(std::string const& type)
{
  std::size_t const begin = type.find('{');
  std::size_t const end = type.rfind('}');
  std::vector<std::string> choices;
  if (begin == std::string::npos || end == std::string::npos)
    return choices;
  std::istringstream list(type.substr(begin + 1, end - begin - 1));
  for (std::string choice; std::getline(list, choice, ',');)
    choices.push_back(choice);
  return choices;
}
}

OptionRow OptionRow::of(CLI::Option const& option)
{
  OptionRow row;
  row.is_positional = option.get_positional();
  row.is_required = option.get_required() || option.get_option_text() == filled_by_verb;
  row.is_repeatable = option.get_expected_max() == CLI::detail::expected_max_vector_size;
  row.text = option.get_description();
  if (row.is_positional)
    row.names.push_back(option.get_name(true));
  for (std::string const& name : option.get_snames())
    row.names.push_back("-" + name);
  for (std::string const& name : option.get_lnames())
    row.names.push_back("--" + name);
  if (option.get_type_size() == 0)
    return row;
  std::string const type = option.get_type_name();
  row.choices = choices_in(type);
  // A verb has too many classes of checks to name them all.
  bool const are_few = !row.choices.empty() && row.choices.size() <= 8;
  row.value = are_few ? joined(row.choices, "|") : type.substr(0, type.find(':'));
  return row;
}

std::vector<OptionRow> OptionRow::all_of(CLI::App const& verb)
{
  std::vector<OptionRow> rows;
  for (CLI::Option const* const option : verb.get_options())
    if (!option->get_group().empty())
      rows.push_back(of(*option));
  return rows;
}

std::string OptionRow::shown() const
{
  std::string const all = joined(names, ", ");
  return is_positional || value.empty() ? all : all + " " + value;
}

std::string OptionRow::in_usage() const
{
  std::string const name = names.front() + (is_repeatable ? "..." : "");
  return is_required ? name : "[" + name + "]";
}

std::vector<CLI::App const*> shown_verbs(CLI::App const& app)
{
  std::vector<CLI::App const*> verbs;
  for (CLI::App const* const verb : app.get_subcommands([](CLI::App const*) { return true; }))
    if (!verb->get_group().empty())
      verbs.push_back(verb);
  return verbs;
}

std::vector<std::string> wrapped(std::string const& text, std::size_t width)
{
  std::vector<std::string> lines(1);
  std::istringstream words(text);
  for (std::string word; words >> word;)
  {
    if (!lines.back().empty() && lines.back().size() + 1 + word.size() > width)
      lines.emplace_back();
    lines.back() += (lines.back().empty() ? "" : " ") + word;
  }
  return lines;
}
