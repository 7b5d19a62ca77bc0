#pragma once

#include <string>

namespace CLI
{
class App;
}

/// Scripts that let a shell complete the command line of the program.
class Completion
{
public:
  /// For the shell "bash", "zsh" or "fish".
  static std::string script(CLI::App const& app, std::string const& shell);

private:
  static std::string bash(CLI::App const& app);
  static std::string zsh(CLI::App const& app);
  static std::string fish(CLI::App const& app);
};
