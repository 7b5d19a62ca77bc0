#include "CommandLine.h"

#include "Complaint.h"
#include "HelpFormatter.h"
#include "ManualPage.h"
#include "OptionRow.h"
#include "Verb.h"
#include "Version.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace
{
// In the order in which the help lists them; the last one is for the program itself.
Verb const verbs[] = {add_check, add_select,
#if defined(AXM_HAS_ENGINE)
  add_set, add_delete, add_insert, add_move, add_rename, add_outline, add_diff, add_format, add_canon, add_convert,
  add_split,
#endif
  add_table, add_conform, add_completion, add_conform_worker};

char const footer[] = "axm VERB --help explains a verb; axm --man VERB writes its manual page.";

std::string wrong_page(CLI::App const& app, std::string const& name)
{
  std::vector<CLI::App const*> const all = shown_verbs(app);
  bool const is_verb =
    std::any_of(all.begin(), all.end(), [&](CLI::App const* verb) { return verb->get_name() == name; });
  return is_verb || name == "axm" ? std::string() : "there is no verb " + name;
}

// The page of "axm" or of a verb.
std::string manual_page(CLI::App const& app, std::string const& name)
{
  std::string page = name == "axm" ? ManualPage::of_program(app) : ManualPage::of_verb(*app.get_subcommand(name));
  page.pop_back(); // the line end comes with what is shown
  return page;
}

// None where an option comes first, or nothing.
std::optional<std::string> wanted_verb(Arguments const& arguments)
{
  if (arguments.count() < 2 || arguments.values()[1][0] == '-')
    return std::nullopt;
  return arguments.values()[1];
}

bool has_verb(CLI::App& app, std::string const& name)
{
  return !app.get_subcommands([&](CLI::App const* verb) { return verb->check_name(name); }).empty();
}

// All of them, or as many as it takes to have the one that is asked for: each has many options, which take longer to be
// made than a short document to be read. Only completion has to know those of the others.
void add_verbs(CLI::App& app, std::optional<std::string> const& wanted, int& exit_code)
{
  for (Verb const verb : verbs)
  {
    verb(app, exit_code);
    if (wanted && wanted != "completion" && has_verb(app, *wanted))
      return;
  }
}
}

int run_command_line(Arguments const& arguments)
{
  CLI::App app("Work with XML documents through axm.", "axm");
  // A slash begins a path or an XPath expression on every system, never an option.
  app.allow_windows_style_options(false);
  app.require_subcommand(1);
  app.formatter(std::make_shared<HelpFormatter>());
  app.set_version_flag("--version", version_text(), "Say the version and how the program was built");
  app.set_help_flag("-h,--help", "Explain the program or a verb");
  app.footer(footer);
  app
    .add_option_function<std::string>(
      "--man", [&app](std::string const& name) { throw CLI::CallForVersion(manual_page(app, name), 0); },
      "Write the manual page of a verb, or that of axm")
    ->type_name("VERB")
    ->check([&app](std::string const& name) { return wrong_page(app, name); });
  int exit_code = exit_good;
  std::optional<std::string> const wanted = wanted_verb(arguments);
  add_verbs(app, wanted, exit_code);
  for (CLI::App* const verb : app.get_subcommands([](CLI::App const* each) { return !each->get_group().empty(); }))
    verb->group("Verbs");

  if (wanted && !has_verb(app, *wanted))
    return complain(*wanted, "there is no such verb; axm --help lists them", exit_usage);
  try
  {
    app.parse(arguments.count(), arguments.values());
  }
  catch (CLI::ParseError const& error)
  {
    return app.exit(error) == 0 ? exit_good : exit_usage;
  }
  return exit_code;
}
