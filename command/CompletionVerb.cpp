#include "Completion.h"
#include "Verb.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>
#include <string>

namespace
{
char const description[] = "Write a script with which a shell completes the command line.";

char const footer[] =
  R"(Examples:
  source <(axm completion bash)
  axm completion zsh > ~/.zfunc/_axm
  axm completion fish > ~/.config/fish/completions/axm.fish

The folder of the zsh script has to be in fpath before compinit is called.)";
}

void add_completion(CLI::App& app, int&)
{
  CLI::App* const verb = app.add_subcommand("completion", description);
  auto const shell = std::make_shared<std::string>();
  verb->add_option("SHELL", *shell, "The shell: bash, zsh or fish")
    ->required()
    ->check(CLI::IsMember({"bash", "zsh", "fish"}));
  verb->footer(footer);
  verb->callback([shell, &app] { std::cout << Completion::script(app, *shell); });
}
