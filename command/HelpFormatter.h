#pragma once

#include <CLI/CLI.hpp>

#include <string>

/// How the help of the program and its verbs looks: lines of at most 100 columns.
class HelpFormatter final : public CLI::Formatter
{
public:
  std::string make_usage(CLI::App const* app, std::string name) const override;
  std::string make_option(CLI::Option const* option, bool is_positional) const override;
  std::string make_subcommand(CLI::App const* verb) const override;
};
