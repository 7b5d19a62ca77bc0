#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <vector>

/// Another process of this program, which hands bytes back through a pipe of its own. What it writes to standard output
/// goes to standard error.
///
/// One object belongs to one thread. The process is ended with the object, if it still runs.
class ChildProcess
{
public:
  /// What a read came to.
  enum class Got
  {
    bytes,
    nothing_yet,
    end
  };

  /// How the process ended.
  struct End
  {
    bool well;
    /// In words: "ended with exit code 3", "was ended by signal 11 (Segmentation fault)".
    std::string how;
  };

  /// Starts the program with `arguments`, in UTF-8, and after them the name of the pipe for open_pipe(). Empty on failure.
  static std::unique_ptr<ChildProcess> start(std::vector<std::string> arguments);

  ChildProcess(ChildProcess const&) = delete;
  ChildProcess& operator=(ChildProcess const&) = delete;
  ~ChildProcess();

  /// Adds what the process has written to `bytes`; waits for it no longer than `patience`. It is the end when the process
  /// is gone and all that it wrote was read.
  Got read(std::string& bytes, std::chrono::milliseconds patience);

  /// Ends the process, whatever it does.
  void kill();

  /// Waits for the process to end, no longer than `patience`; then it is ended. To be called once.
  End wait(std::chrono::milliseconds patience);

private:
  struct State;

  explicit ChildProcess(std::unique_ptr<State> given);

  std::unique_ptr<State> state;
};

/// The other side: writes to the pipe whose name the process was started with.
class ParentPipe
{
public:
  /// What is written to standard output goes to standard error from here on.
  explicit ParentPipe(std::string const& name);

  /// False when the other side takes nothing any more.
  bool write(std::string const& bytes);

private:
  long long handle;
};
