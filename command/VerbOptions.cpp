#include "VerbOptions.h"

#include "OptionRow.h"

#include <CLI/CLI.hpp>

VerbOption VerbOption::value_name(char const* name) const
{
  option->type_name(name);
  return *this;
}

VerbOption VerbOption::required() const
{
  option->required();
  return *this;
}

VerbOption VerbOption::one_of(std::vector<std::string> const& values) const
{
  option->check(CLI::IsMember(values));
  return *this;
}

VerbOption VerbOption::in_range(int least, int most) const
{
  option->check(CLI::Range(least, most));
  return *this;
}

VerbOption VerbOption::not_negative() const
{
  option->check(CLI::NonNegativeNumber);
  return *this;
}

VerbOption VerbOption::checked_by(std::function<std::string(std::string const& value)> const& complaint) const
{
  option->check(complaint);
  return *this;
}

VerbOption VerbOption::one_at_a_time() const
{
  option->allow_extra_args(false);
  return *this;
}

VerbOption VerbOption::excludes(VerbOption other) const
{
  option->excludes(other.option);
  return *this;
}

VerbOption VerbOption::needs(VerbOption other) const
{
  option->needs(other.option);
  return *this;
}

bool VerbOption::is_given() const
{
  return option->count() > 0;
}

VerbOptions::VerbOptions(CLI::App& app, char const* name, char const* description, char const* footer)
  : verb(app.add_subcommand(name, description))
{
  verb->footer(footer);
}

VerbOption VerbOptions::add(char const* names, std::string& value, std::string const& text)
{
  return VerbOption(*verb->add_option(names, value, text));
}

VerbOption VerbOptions::add(char const* names, std::vector<std::string>& values, std::string const& text)
{
  return VerbOption(*verb->add_option(names, values, text));
}

VerbOption VerbOptions::add(char const* names, int& value, std::string const& text)
{
  return VerbOption(*verb->add_option(names, value, text));
}

VerbOption VerbOptions::add(char const* names, unsigned& value, std::string const& text)
{
  return VerbOption(*verb->add_option(names, value, text));
}

VerbOption VerbOptions::add(char const* names, std::uint64_t& value, std::string const& text)
{
  return VerbOption(*verb->add_option(names, value, text));
}

VerbOption VerbOptions::add_filled_by_verb(std::string const& name, std::string const& text)
{
  auto const ignore = [](std::string const&) {};
  return VerbOption(
    *verb->add_option_function<std::string>(name, ignore, text)->option_text(OptionRow::filled_by_verb));
}

VerbOption VerbOptions::add_flag(char const* names, bool& value, std::string const& text)
{
  return VerbOption(*verb->add_flag(names, value, text));
}

void VerbOptions::hide()
{
  verb->group("");
}

void VerbOptions::run(std::function<void()> const& work)
{
  verb->callback(work);
}
