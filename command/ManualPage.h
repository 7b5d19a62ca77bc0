#pragma once

#include <string>

namespace CLI
{
class App;
}

/// Manual pages in the form of man(7), made from what the help says.
class ManualPage
{
public:
  /// Of the program: axm(1).
  static std::string of_program(CLI::App const& app);

  /// Of one of its verbs: axm-VERB(1).
  static std::string of_verb(CLI::App const& verb);
};
