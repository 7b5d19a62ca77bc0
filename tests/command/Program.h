#pragma once

#include <apPath.h>
#include <apString.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#if !defined(_WIN32)
#  include <sys/wait.h>
#endif

// The whole file, empty if there is none.
inline std::string contents_of(std::string const& name)
{
  std::string bytes;
  std::FILE* const stream = apPath(name.c_str()).file_open(apPath::read_mode());
  if (stream == nullptr)
    return bytes;
  char block[4096];
  for (std::size_t got; (got = std::fread(block, 1, sizeof block, stream)) > 0;)
    bytes.append(block, got);
  std::fclose(stream);
  return bytes;
}

// The same of messages, whose lines end as the system has it.
inline std::string lines_of(std::string const& name)
{
  std::string text = contents_of(name);
#if defined(_WIN32)
  text.erase(std::remove(text.begin(), text.end(), '\r'), text.end());
#endif
  return text;
}

// A file that goes when it is no longer needed.
class TemporaryFile
{
public:
  TemporaryFile(std::string const& given, std::string const& bytes) : name(given)
  {
    std::FILE* const stream = apPath(name.c_str()).file_open(apPath::write_mode());
    std::fwrite(bytes.data(), 1, bytes.size(), stream);
    std::fclose(stream);
  }
  TemporaryFile(TemporaryFile const&) = delete;
  TemporaryFile& operator=(TemporaryFile const&) = delete;
  ~TemporaryFile() { apPath(name.c_str()).delete_file(); }

  std::string name;
};

// What came of a run of the program axm.
struct ProgramRun
{
  int exit_code;
  std::string out;
  std::string err;
};

// Runs the built program axm with arguments in which no quotes are; `prefix` names the files it writes to, so that tests
// can run side by side.
inline ProgramRun run_axm(std::string const& prefix, std::vector<std::string> const& arguments)
{
  std::string const out = prefix + ".out";
  std::string const err = prefix + ".err";
  std::string command = std::string("\"") + AXM_PROGRAM + "\"";
  for (std::string const& argument : arguments)
    command += " \"" + argument + "\"";
  command += " > " + out + " 2> " + err;
#if defined(_WIN32)
  // -1 is no result of the program: once in some thousand times, Wine does not start it.
  int exit_code = -1;
  for (int tries = 3; exit_code == -1 && tries > 0; --tries)
    exit_code = _wsystem(apString(("\"" + command + "\"").c_str()).c_str());
#else
  int const status = std::system(command.c_str());
  int const exit_code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
#endif
  ProgramRun const run = {exit_code, contents_of(out), lines_of(err)};
  apPath(out.c_str()).delete_file();
  apPath(err.c_str()).delete_file();
  return run;
}
