#pragma once

namespace CLI
{
class App;
}

/// The exit codes of the command.
enum ExitCode : int
{
  exit_good = 0,
  exit_bad_input = 1,
  exit_usage = 2
};

/// A verb of the command: what adds itself to the command line as a subcommand whose callback does the work and stores
/// its exit code in `exit_code`. One file a verb.
using Verb = void (*)(CLI::App& app, int& exit_code);

void add_canon(CLI::App& app, int& exit_code);
void add_check(CLI::App& app, int& exit_code);
void add_completion(CLI::App& app, int& exit_code);
void add_conform(CLI::App& app, int& exit_code);
void add_conform_worker(CLI::App& app, int& exit_code);
void add_convert(CLI::App& app, int& exit_code);
void add_delete(CLI::App& app, int& exit_code);
void add_diff(CLI::App& app, int& exit_code);
void add_format(CLI::App& app, int& exit_code);
void add_insert(CLI::App& app, int& exit_code);
void add_move(CLI::App& app, int& exit_code);
void add_outline(CLI::App& app, int& exit_code);
void add_rename(CLI::App& app, int& exit_code);
void add_select(CLI::App& app, int& exit_code);
void add_set(CLI::App& app, int& exit_code);
void add_split(CLI::App& app, int& exit_code);
void add_table(CLI::App& app, int& exit_code);
