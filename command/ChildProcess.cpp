#include "ChildProcess.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>

#if defined(_WIN32)
#  include <apString.h>

#  include <io.h>
#  include <windows.h>

#  include <cstdio>
#else
#  include <poll.h>
#  include <spawn.h>
#  include <sys/wait.h>
#  include <unistd.h>

#  include <cerrno>
#  include <csignal>
#  include <cstring>
#  include <fcntl.h>
#  include <thread>

extern char** environ;
#endif

using std::chrono::milliseconds;

namespace
{
constexpr std::size_t block_size = 65536;
}

#if defined(_WIN32)

namespace
{
// As the C library of the other side takes the line apart.
std::wstring quoted(std::string const& argument)
{
  apString const text(argument.c_str());
  std::wstring result = L"\"";
  std::size_t slashes = 0;
  for (wchar_t const character : text.view())
  {
    if (character == L'"')
      result.append(slashes + 1, L'\\');
    slashes = character == L'\\' ? slashes + 1 : 0;
    result += character;
  }
  return result.append(slashes, L'\\') + L'"';
}

std::wstring own_path()
{
  std::wstring path(32768, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
  return path;
}
}

struct ChildProcess::State
{
  HANDLE process;
  HANDLE pipe;
};

std::unique_ptr<ChildProcess> ChildProcess::start(std::vector<std::string> arguments)
{
  SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
  HANDLE ours = nullptr;
  HANDLE theirs = nullptr;
  if (CreatePipe(&ours, &theirs, &inherited, block_size) == 0)
    return nullptr;
  SetHandleInformation(ours, HANDLE_FLAG_INHERIT, 0);
  arguments.push_back(std::to_string(reinterpret_cast<std::intptr_t>(theirs)));
  std::wstring const path = own_path();
  std::wstring line = L"\"" + path + L"\"";
  for (std::string const& argument : arguments)
    line += L" " + quoted(argument);
  STARTUPINFOW setup = {};
  setup.cb = sizeof setup;
  PROCESS_INFORMATION made = {};
  BOOL const started =
    CreateProcessW(path.c_str(), line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &setup, &made);
  CloseHandle(theirs);
  if (started == 0)
  {
    CloseHandle(ours);
    return nullptr;
  }
  CloseHandle(made.hThread);
  return std::unique_ptr<ChildProcess>(new ChildProcess(std::make_unique<State>(State{made.hProcess, ours})));
}

ChildProcess::~ChildProcess()
{
  kill();
  CloseHandle(state->pipe);
  CloseHandle(state->process);
}

ChildProcess::Got ChildProcess::read(std::string& bytes, milliseconds patience)
{
  bool const gone = WaitForSingleObject(state->process, 0) == WAIT_OBJECT_0;
  DWORD waiting = 0;
  if (PeekNamedPipe(state->pipe, nullptr, 0, nullptr, &waiting, nullptr) == 0)
    return Got::end;
  if (waiting == 0)
  {
    if (gone)
      return Got::end;
    WaitForSingleObject(state->process, static_cast<DWORD>(std::min(patience, milliseconds(2)).count()));
    return Got::nothing_yet;
  }
  char block[block_size];
  DWORD got = 0;
  if (ReadFile(state->pipe, block, std::min<DWORD>(waiting, block_size), &got, nullptr) == 0)
    return Got::end;
  bytes.append(block, got);
  return Got::bytes;
}

void ChildProcess::kill()
{
  TerminateProcess(state->process, 1);
  WaitForSingleObject(state->process, 10000);
}

ChildProcess::End ChildProcess::wait(milliseconds patience)
{
  if (WaitForSingleObject(state->process, static_cast<DWORD>(patience.count())) != WAIT_OBJECT_0)
  {
    kill();
    return {false, "did not end"};
  }
  DWORD code = 0;
  GetExitCodeProcess(state->process, &code);
  char text[40];
  std::snprintf(text, sizeof text, code > 255 ? "ended with exit code 0x%lX" : "ended with exit code %lu", code);
  return {code == 0, text};
}

ParentPipe::ParentPipe(std::string const& name) : handle(std::stoll(name))
{
  _dup2(_fileno(stderr), _fileno(stdout));
}

bool ParentPipe::write(std::string const& bytes)
{
  for (std::size_t done = 0; done < bytes.size();)
  {
    DWORD written = 0;
    HANDLE const pipe = reinterpret_cast<HANDLE>(static_cast<std::intptr_t>(handle));
    if (WriteFile(pipe, bytes.data() + done, static_cast<DWORD>(bytes.size() - done), &written, nullptr) == 0)
      return false;
    done += written;
  }
  return true;
}

#else

namespace
{
// Beyond what a program opens by itself, so that no number means two things.
constexpr int pipe_number = 100;

std::string own_path()
{
  char path[4096];
  ssize_t const length = readlink("/proc/self/exe", path, sizeof path);
  return length > 0 ? std::string(path, static_cast<std::size_t>(length)) : std::string("axm");
}
}

struct ChildProcess::State
{
  pid_t process;
  int pipe;
  bool gone;
  int status;

  // Whether the process has ended.
  bool is_gone()
  {
    gone = gone || waitpid(process, &status, WNOHANG) == process;
    return gone;
  }
};

std::unique_ptr<ChildProcess> ChildProcess::start(std::vector<std::string> arguments)
{
  int ends[2];
  if (pipe(ends) != 0)
    return nullptr;
  fcntl(ends[0], F_SETFD, FD_CLOEXEC);
  fcntl(ends[1], F_SETFD, FD_CLOEXEC);
  std::string path = own_path();
  arguments.push_back(std::to_string(pipe_number));
  std::vector<char*> pointers = {path.data()};
  for (std::string& argument : arguments)
    pointers.push_back(argument.data());
  pointers.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, ends[1], pipe_number);
  pid_t process = 0;
  int const failure = posix_spawnp(&process, path.c_str(), &actions, nullptr, pointers.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  close(ends[1]);
  if (failure != 0)
  {
    close(ends[0]);
    return nullptr;
  }
  return std::unique_ptr<ChildProcess>(new ChildProcess(std::make_unique<State>(State{process, ends[0], false, 0})));
}

ChildProcess::~ChildProcess()
{
  kill();
  close(state->pipe);
}

ChildProcess::Got ChildProcess::read(std::string& bytes, milliseconds patience)
{
  // Asked first: what a process that is gone has written is all there.
  bool const gone = state->is_gone();
  pollfd waiting = {state->pipe, POLLIN, 0};
  int const ready = poll(&waiting, 1, gone ? 0 : static_cast<int>(std::min(patience, milliseconds(100)).count()));
  if (ready <= 0)
    return gone ? Got::end : Got::nothing_yet;
  char block[block_size];
  ssize_t const got = ::read(state->pipe, block, sizeof block);
  if (got <= 0)
    return got < 0 && errno == EINTR ? Got::nothing_yet : Got::end;
  bytes.append(block, static_cast<std::size_t>(got));
  return Got::bytes;
}

void ChildProcess::kill()
{
  if (state->gone)
    return;
  ::kill(state->process, SIGKILL);
  waitpid(state->process, &state->status, 0);
  state->gone = true;
}

ChildProcess::End ChildProcess::wait(milliseconds patience)
{
  auto const deadline = std::chrono::steady_clock::now() + patience;
  while (!state->is_gone())
  {
    if (std::chrono::steady_clock::now() >= deadline)
    {
      kill();
      return {false, "did not end"};
    }
    std::this_thread::sleep_for(milliseconds(1));
  }
  if (WIFSIGNALED(state->status))
  {
    int const signal = WTERMSIG(state->status);
    return {false, "was ended by signal " + std::to_string(signal) + " (" + strsignal(signal) + ")"};
  }
  int const code = WEXITSTATUS(state->status);
  return {code == 0, "ended with exit code " + std::to_string(code)};
}

ParentPipe::ParentPipe(std::string const& name) : handle(std::stoll(name))
{
  dup2(STDERR_FILENO, STDOUT_FILENO);
}

bool ParentPipe::write(std::string const& bytes)
{
  for (std::size_t done = 0; done < bytes.size();)
  {
    ssize_t const written = ::write(static_cast<int>(handle), bytes.data() + done, bytes.size() - done);
    if (written > 0)
      done += static_cast<std::size_t>(written);
    else if (errno != EINTR)
      return false;
  }
  return true;
}

#endif

ChildProcess::ChildProcess(std::unique_ptr<State> given) : state(std::move(given)) {}
