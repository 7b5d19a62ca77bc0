#pragma once

#include <string>
#include <vector>

namespace CLI
{
class App;
class Option;
}

/// What is to be said of an option or a positional argument of a verb: the one source of its help, its manual page and its
/// completion.
struct OptionRow
{
  /// As they are written, such as "-n" and "--line-number"; of a positional argument its one name.
  std::vector<std::string> names;
  /// What stands for its value, such as FILE or csv|tsv; empty for a flag.
  std::string value;
  /// The values that it takes, where these are few.
  std::vector<std::string> choices;
  std::string text;
  bool is_positional = false;
  bool is_required = false;
  bool is_repeatable = false;

  static OptionRow of(CLI::Option const& option);

  /// In the order in which they were added.
  static std::vector<OptionRow> all_of(CLI::App const& verb);

  /// Whether its value names a file, and whether a file is named after what ends with '='.
  bool takes_file() const { return value == "FILE" || value == "LIBRARY"; }
  bool takes_file_of_something() const { return value == "NS=XSD"; }

  /// The names with the value, as the help shows them.
  std::string shown() const;

  /// How a usage line has it.
  std::string in_usage() const;

  /// What a positional argument that the verb fills by itself has as its option text, so that it counts as required.
  static constexpr char const* filled_by_verb = "REQUIRED";
};

/// The verbs that users see, in their order.
std::vector<CLI::App const*> shown_verbs(CLI::App const& app);

/// The text in lines of at most `width` bytes, where its words allow it.
std::vector<std::string> wrapped(std::string const& text, std::size_t width);
