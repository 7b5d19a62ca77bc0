#include "Arguments.h"
#include "Utf8Console.h"
#include "Verb.h"

#include <CLI/CLI.hpp>

#include <exception>
#include <iostream>

namespace
{
// In the order in which the help lists them.
Verb const verbs[] = {add_check, add_select, add_set, add_table, add_conform};

int run(Arguments const& arguments)
{
  CLI::App app("Work with XML documents through axm.", "axm");
  // A slash begins a path or an XPath expression on every system, never an option.
  app.allow_windows_style_options(false);
  app.require_subcommand(1);
  int exit_code = exit_good;
  for (Verb const verb : verbs)
    verb(app, exit_code);

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
}

int main(int argc, char** argv)
{
  Utf8Console const console;
  try
  {
    return run(Arguments(argc, argv));
  }
  catch (std::exception const& error)
  {
    std::cerr << "axm: " << error.what() << '\n';
    return exit_bad_input;
  }
}
