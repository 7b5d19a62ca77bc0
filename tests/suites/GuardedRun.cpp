#include "GuardedRun.h"

#include <poll.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <limits>
#include <memory>
#include <optional>
#include <system_error>
#include <utility>
#include <vector>

namespace
{
using Clock = std::chrono::steady_clock;

/// Stands before the text of an answer.
struct AnswerHead
{
  std::size_t length;
  std::size_t peak_bytes;
};

std::size_t peak_of(rusage const& usage)
{
  return static_cast<std::size_t>(usage.ru_maxrss) * 1024;
}

bool read_all(int socket, void* bytes, std::size_t size)
{
  auto* to = static_cast<char*>(bytes);
  while (size > 0)
  {
    ssize_t const got = read(socket, to, size);
    if (got < 0 && errno == EINTR)
      continue;
    if (got <= 0)
      return false;
    to += got;
    size -= static_cast<std::size_t>(got);
  }
  return true;
}

/// False when the other side is gone, without the signal that a pipe would raise.
bool write_all(int socket, void const* bytes, std::size_t size)
{
  auto const* from = static_cast<char const*>(bytes);
  while (size > 0)
  {
    ssize_t const put = send(socket, from, size, MSG_NOSIGNAL);
    if (put < 0 && errno == EINTR)
      continue;
    if (put <= 0)
      return false;
    from += put;
    size -= static_cast<std::size_t>(put);
  }
  return true;
}

/// The whole life of a child: a task for each number that comes, until no more can come.
[[noreturn]] void serve(int socket, std::function<std::string(std::size_t)> const& task, std::size_t bytes)
{
  if (bytes > 0)
  {
    rlimit const limit{bytes, bytes};
    setrlimit(RLIMIT_AS, &limit);
  }
  std::size_t number = 0;
  while (read_all(socket, &number, sizeof number))
  {
    std::string const text = task(number);
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    AnswerHead const head{text.size(), peak_of(usage)};
    if (!write_all(socket, &head, sizeof head) || !write_all(socket, text.data(), text.size()))
      break;
  }
  // Not exit(): what the parent has registered for its end is none of ours.
  _exit(0);
}

/// A child process and the task that it is at.
class Worker
{
public:
  Worker(std::function<std::string(std::size_t)> const& to_run, GuardedLimits const& allowed)
    : task(to_run),
      limits(allowed)
  {
  }

  Worker(Worker const&) = delete;
  Worker& operator=(Worker const&) = delete;
  ~Worker() { stop(); }

  bool idle() const { return !number.has_value(); }
  int descriptor() const { return socket; }
  Clock::time_point deadline() const { return begin + std::chrono::seconds(limits.seconds); }

  /// Gives the task to the child, which is forked here unless there is one already; `others` are the descriptors that
  /// it must not keep open.
  void start(std::size_t task_number, std::vector<int> const& others)
  {
    if (socket < 0)
      fork_child(others);
    number = task_number;
    begin = Clock::now();
    // Where the child is gone its end is noticed when the answer is read.
    write_all(socket, &task_number, sizeof task_number);
  }

  /// The task has answered, or its process has ended: hands out its number and its end.
  std::pair<std::size_t, GuardedEnd> finish()
  {
    GuardedEnd end;
    end.seconds = elapsed();
    AnswerHead head{};
    bool answered = read_all(socket, &head, sizeof head);
    if (answered)
    {
      end.text.resize(head.length);
      end.peak_bytes = head.peak_bytes;
      answered = read_all(socket, end.text.data(), head.length);
    }
    if (!answered)
    {
      end.how = GuardedEnd::How::crashed;
      end.text = stop(&end.peak_bytes);
    }
    return {take_number(), end};
  }

  /// The task has taken too long.
  std::pair<std::size_t, GuardedEnd> give_up()
  {
    GuardedEnd end;
    end.how = GuardedEnd::How::overran;
    end.seconds = elapsed();
    kill(child, SIGKILL);
    end.text = stop(&end.peak_bytes);
    return {take_number(), end};
  }

private:
  double elapsed() const { return std::chrono::duration<double>(Clock::now() - begin).count(); }

  std::size_t take_number() { return *std::exchange(number, std::nullopt); }

  void fork_child(std::vector<int> const& others)
  {
    int ends[2];
    if (socketpair(AF_UNIX, SOCK_STREAM, 0, ends) != 0)
      throw std::system_error(errno, std::generic_category(), "socketpair");
    child = fork();
    if (child == 0)
    {
      // A descriptor kept open here would keep the other children from seeing their end.
      for (int const other : others)
        close(other);
      close(ends[0]);
      serve(ends[1], task, limits.bytes);
    }
    int const error = errno;
    close(ends[1]);
    if (child < 0)
    {
      close(ends[0]);
      throw std::system_error(error, std::generic_category(), "fork");
    }
    socket = ends[0];
  }

  /// Lets the child go, which ends as soon as its socket is closed, and tells how it ended.
  std::string stop(std::size_t* peak_bytes = nullptr)
  {
    if (socket < 0)
      return {};
    close(std::exchange(socket, -1));
    // In the middle of a task, after an exception here, it would not look at its socket for long.
    if (number.has_value() && peak_bytes == nullptr)
      kill(child, SIGKILL);
    int status = 0;
    rusage usage{};
    while (wait4(child, &status, 0, &usage) < 0 && errno == EINTR)
    {
    }
    if (peak_bytes != nullptr)
      *peak_bytes = peak_of(usage);
    if (WIFSIGNALED(status))
      return "signal " + std::to_string(WTERMSIG(status));
    return "exit code " + std::to_string(WEXITSTATUS(status));
  }

  std::function<std::string(std::size_t)> const& task;
  GuardedLimits const& limits;
  pid_t child = -1;
  int socket = -1;
  std::optional<std::size_t> number;
  Clock::time_point begin;
};

/// The milliseconds to wait until `deadline`, rounded up.
int until(Clock::time_point deadline)
{
  auto const left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now()).count();
  return static_cast<int>(std::clamp<long long>(left, 0, std::numeric_limits<int>::max()));
}
}

void run_guarded(std::size_t count, std::function<std::string(std::size_t)> const& task, GuardedLimits const& limits,
  std::function<void(std::size_t, GuardedEnd const&)> const& report)
{
  std::vector<std::unique_ptr<Worker>> workers;
  for (int i = 0; i < limits.processes; ++i)
    workers.push_back(std::make_unique<Worker>(task, limits));

  std::size_t next = 0;
  while (true)
  {
    for (auto const& worker : workers)
    {
      if (!worker->idle() || next == count)
        continue;
      std::vector<int> others;
      for (auto const& other : workers)
        if (other->descriptor() >= 0)
          others.push_back(other->descriptor());
      worker->start(next, others);
      ++next;
    }

    std::vector<Worker*> busy;
    std::vector<pollfd> polled;
    auto deadline = Clock::time_point::max();
    for (auto const& worker : workers)
    {
      if (worker->idle())
        continue;
      busy.push_back(worker.get());
      polled.push_back({worker->descriptor(), POLLIN, 0});
      deadline = std::min(deadline, worker->deadline());
    }
    if (busy.empty())
      return;

    if (poll(polled.data(), polled.size(), until(deadline)) < 0 && errno != EINTR)
      throw std::system_error(errno, std::generic_category(), "poll");
    for (std::size_t i = 0; i < busy.size(); ++i)
    {
      if (polled[i].revents != 0)
      {
        auto const [number, end] = busy[i]->finish();
        report(number, end);
      }
      else if (Clock::now() >= busy[i]->deadline())
      {
        auto const [number, end] = busy[i]->give_up();
        report(number, end);
      }
    }
  }
}
