#pragma once

#include <cstddef>
#include <functional>
#include <string>

/// How one task of a guarded run ended.
struct GuardedEnd
{
  enum class How
  {
    answered,
    crashed,
    overran
  };

  How how = How::answered;

  /// What the task answered, or how its process ended.
  std::string text;

  double seconds = 0;

  /// The most memory that the task's process had had in use until then, with the tasks before it.
  std::size_t peak_bytes = 0;
};

/// What a guarded run allows.
struct GuardedLimits
{
  int processes = 1;

  /// For one task; after that its process is killed.
  int seconds = 20;

  /// Of address space, for one process; 0 leaves it as it is.
  std::size_t bytes = 0;
};

/// Runs the tasks 0 to count - 1 in child processes, several at a time and many one after another in each process, and
/// calls `report` in this process for each that has ended, in the order of their ends. A task that crashes or overruns
/// takes nothing with it but its process. Throws std::system_error when there can be no processes.
void run_guarded(std::size_t count, std::function<std::string(std::size_t)> const& task, GuardedLimits const& limits,
  std::function<void(std::size_t, GuardedEnd const&)> const& report);
