#include "Verb.h"

#include <CLI/CLI.hpp>

namespace
{
// In the order in which the help lists them.
Verb const verbs[] = {nullptr};
}

int main(int argc, char** argv)
{
  CLI::App app("Work with XML documents through axm.", "axm");
  app.require_subcommand(1);
  int exit_code = exit_good;
  for (Verb const verb : verbs)
    if (verb != nullptr)
      verb(app, exit_code);

  try
  {
    app.parse(argc, argv);
  }
  catch (CLI::ParseError const& error)
  {
    return app.exit(error) == 0 ? exit_good : exit_usage;
  }
  return exit_code;
}
