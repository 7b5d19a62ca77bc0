#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace CLI
{
class App;
class Option;
}

/// An option or a positional argument of a verb: what is said of it beyond its name. A handle; the command line has the
/// option.
class VerbOption
{
public:
  explicit VerbOption(CLI::Option& added) : option(&added) {}

  /// What the help shows for its value, such as FILE.
  VerbOption value_name(char const* name) const;

  VerbOption required() const;

  VerbOption one_of(std::vector<std::string> const& values) const;
  VerbOption in_range(int least, int most) const;
  VerbOption not_negative() const;

  /// `complaint` says what is wrong with a value; nothing if it is right.
  VerbOption checked_by(std::function<std::string(std::string const& value)> const& complaint) const;

  /// Given several times, it takes one value each time.
  VerbOption one_at_a_time() const;

  VerbOption excludes(VerbOption other) const;
  VerbOption needs(VerbOption other) const;

  bool is_given() const;

private:
  CLI::Option* option;
};

/// A verb of the command line, to which it adds its options. The values go to the variables that are named, which must live
/// as long as the command line does.
///
/// Verbs know the library that reads command lines by these classes only: its headers take longer to compile than a verb.
class VerbOptions
{
public:
  VerbOptions(CLI::App& app, char const* name, char const* description, char const* footer);

  /// An option is named as in "-j,--jobs", a positional argument without dashes.
  VerbOption add(char const* names, std::string& value, std::string const& text = {});
  VerbOption add(char const* names, std::vector<std::string>& values, std::string const& text = {});
  VerbOption add(char const* names, int& value, std::string const& text = {});
  VerbOption add(char const* names, unsigned& value, std::string const& text = {});
  VerbOption add(char const* names, std::uint64_t& value, std::string const& text = {});

  /// A positional argument of which only the help tells: the verb takes it from the arguments before it.
  VerbOption add_filled_by_verb(std::string const& name, std::string const& text);

  VerbOption add_flag(char const* names, bool& value, std::string const& text = {});

  /// The verb is for the program itself: no help names it.
  void hide();

  /// What the verb does when the command line was right.
  void run(std::function<void()> const& work);

private:
  CLI::App* verb;
};
