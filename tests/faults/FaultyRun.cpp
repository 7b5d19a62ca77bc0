#include "FaultyRun.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <iterator>

namespace
{
std::string take_contents(std::string const& file)
{
  std::string text = contents_of(file);
  unlink(file.c_str());
  return text;
}

void lead(int descriptor, std::string const& file)
{
  int const number = open(file.c_str(), O_CREAT | O_TRUNC | O_WRONLY | O_CLOEXEC, 0600);
  dup2(number, descriptor);
}

[[noreturn]] void become(std::vector<std::string> arguments)
{
  std::vector<char*> values;
  for (std::string& argument : arguments)
    values.push_back(argument.data());
  values.push_back(nullptr);
  execv(values.front(), values.data());
  _exit(127);
}
}

FaultyRun run_with_fault(std::vector<std::string> const& arguments, std::string const& fault, std::string const& locale,
  std::string const& file)
{
  std::string const prefix = "faulty_" + std::to_string(getpid());
  std::string const done = prefix + ".done";
  std::string const output = prefix + ".out";
  std::string const messages = prefix + ".err";
  pid_t const child = fork();
  if (child == 0)
  {
    setenv("AXM_FAULT", fault.c_str(), 1);
    setenv("AXM_FAULT_DONE", done.c_str(), 1);
    setenv("AXM_FAULT_FILE", file.c_str(), 1);
    setenv("LC_ALL", locale.c_str(), 1);
    setenv("LD_PRELOAD", AXM_FAILING_CALLS, 1);
    lead(STDOUT_FILENO, output);
    lead(STDERR_FILENO, messages);
    become(arguments);
  }
  int status = 0;
  waitpid(child, &status, 0);
  bool const was_met = unlink(done.c_str()) == 0;
  return {was_met, WIFEXITED(status) ? WEXITSTATUS(status) : -1, take_contents(output), take_contents(messages)};
}

std::string contents_of(std::string const& file)
{
  std::ifstream stream(file, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>());
}
