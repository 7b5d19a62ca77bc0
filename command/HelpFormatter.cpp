#include "HelpFormatter.h"

#include "OptionRow.h"

namespace
{
std::size_t const width = 100;
std::size_t const indent = 28;

std::string row(std::string const& name, std::string const& text)
{
  std::string line = "  " + name;
  if (line.size() + 2 > indent)
    line += "\n" + std::string(indent, ' ');
  else
    line.resize(indent, ' ');
  bool is_first = true;
  for (std::string const& part : wrapped(text, width - indent))
  {
    line += (is_first ? "" : "\n" + std::string(indent, ' ')) + part;
    is_first = false;
  }
  return line + "\n";
}
}

std::string HelpFormatter::make_usage(CLI::App const* app, std::string name) const
{
  std::string usage = "Usage: " + name;
  for (OptionRow const& each : OptionRow::all_of(*app))
    if (!each.is_positional)
    {
      usage += " [OPTIONS]";
      break;
    }
  for (OptionRow const& each : OptionRow::all_of(*app))
    if (each.is_positional)
      usage += " " + each.in_usage();
  return usage + (shown_verbs(*app).empty() ? "" : " VERB ...") + "\n";
}

std::string HelpFormatter::make_option(CLI::Option const* option, bool) const
{
  OptionRow const each = OptionRow::of(*option);
  return row(each.shown(), each.text);
}

std::string HelpFormatter::make_subcommand(CLI::App const* verb) const
{
  return row(verb->get_name(), verb->get_description());
}
