#pragma once

#include <chrono>
#include <string>

/// Shows on standard error, where that is a terminal, how far a work of more than a second has come, in one line that is
/// written again and again and cleared at the end.
class Progress
{
public:
  Progress();
  Progress(Progress const&) = delete;
  Progress& operator=(Progress const&) = delete;
  ~Progress();

  /// To be called for every row.
  void show(long long rows);

  /// To be called now and then, with the bytes that have been read.
  void show_bytes(long long bytes);

  /// To be called when one of several files is done.
  void show_files(long long done, long long all);

  /// Takes the line away, so that something else can be written.
  void clear();

  /// The line for a work of that state.
  static std::string line(long long rows, std::chrono::milliseconds elapsed);

private:
  using Clock = std::chrono::steady_clock;

  static std::string since(std::chrono::milliseconds elapsed);
  bool is_due(std::chrono::milliseconds& elapsed);
  void write(std::string const& line);

  bool const terminal;
  Clock::time_point const start = Clock::now();
  Clock::time_point next = start + std::chrono::seconds(1);
  bool shown = false;
};
