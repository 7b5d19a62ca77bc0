#pragma once

#include "ConformRecord.h"

#include <chrono>
#include <string>
#include <vector>

class ChildProcess;
class utUnitTest;

/// A run of the checks in processes of their own: as many as it takes, each from the group after the one that ended the
/// process before. However a process ends, all that was checked is reported, and what ended it is a failed check of the
/// group that was under way.
class ConformRun
{
public:
  /// `arguments` are those of the worker. A group that takes longer than `limit` is ended; from then on a tenth of that,
  /// but no less than a second, is enough for a group. The process may take `limit` to end after the last of them. The
  /// tester is not owned.
  ConformRun(std::vector<std::string> arguments, std::chrono::milliseconds limit, utUnitTest& tester);

  /// Whether the first check that fails is the last one; not by default.
  void set_fail_fast(bool given) { fail_fast = given; }

  /// Runs all groups, unless the program is interrupted. False when there is no engine; error() says why then.
  bool run();

  std::string const& error() const { return no_engine; }

private:
  using Clock = std::chrono::steady_clock;

  /// What one process came to.
  enum class Outcome
  {
    done,
    go_on,
    give_up
  };

  Outcome run_process();
  Outcome listen(ChildProcess& process);
  Outcome judge(ChildProcess& process);
  void grant(std::chrono::milliseconds time);
  void take(ConformRecord const& record);
  void take_report(std::vector<std::string> const& texts);
  void fail(std::string const& description);

  std::vector<std::string> const arguments;
  std::chrono::milliseconds const end_limit;
  std::chrono::milliseconds group_limit;
  std::chrono::milliseconds granted{0};
  utUnitTest& tester;
  std::string no_engine;
  // Groups that have begun in all processes, and in the present one.
  int begun = 0;
  int begun_here = 0;
  std::string group = "axm_register_engine";
  std::string step;
  bool fail_fast = false;
  bool has_failed = false;
  bool is_finished = false;
  bool ran_out_of_time = false;
  Clock::time_point deadline;
};
