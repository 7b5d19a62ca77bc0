#include "Completion.h"
#include "Verb.h"
#include "VerbOptions.h"

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
  VerbOptions verb(app, "completion", description, footer);
  auto const shell = std::make_shared<std::string>();
  verb.add("SHELL", *shell, "The shell: bash, zsh or fish").required().one_of({"bash", "zsh", "fish"});
  verb.run([shell, &app] { std::cout << Completion::script(app, *shell); });
}
