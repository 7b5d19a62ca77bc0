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
  std::string text;
  {
    std::ifstream stream(file, std::ios::binary);
    text.assign(std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>());
  }
  unlink(file.c_str());
  return text;
}

[[noreturn]] void become(std::vector<std::string> const& arguments, std::string const& messages)
{
  std::string program = AXM_PROGRAM;
  std::vector<char*> values = {program.data()};
  std::vector<std::string> copies = arguments;
  for (std::string& argument : copies)
    values.push_back(argument.data());
  values.push_back(nullptr);
  int const null = open("/dev/null", O_WRONLY);
  int const errors = open(messages.c_str(), O_CREAT | O_TRUNC | O_WRONLY, 0600);
  dup2(null, STDOUT_FILENO);
  dup2(errors, STDERR_FILENO);
  setenv("LD_PRELOAD", AXM_FAILING_CALLS, 1);
  execv(program.c_str(), values.data());
  _exit(127);
}
}

FaultyRun run_with_fault(std::vector<std::string> const& arguments, std::string const& fault, std::string const& locale)
{
  std::string const prefix = "faulty_" + std::to_string(getpid());
  std::string const done = prefix + ".done";
  std::string const messages = prefix + ".err";
  pid_t const child = fork();
  if (child == 0)
  {
    setenv("AXM_FAULT", fault.c_str(), 1);
    setenv("AXM_FAULT_DONE", done.c_str(), 1);
    setenv("LC_ALL", locale.c_str(), 1);
    become(arguments, messages);
  }
  int status = 0;
  waitpid(child, &status, 0);
  bool const was_met = unlink(done.c_str()) == 0;
  return {was_met, WIFEXITED(status) ? WEXITSTATUS(status) : -1, take_contents(messages)};
}
