// The command with any arguments, one a line; what follows an empty line is the document a.xml in the folder where it runs,
// and what follows a line of four hyphens is b.xml. It must come to an end with one of its exit codes.

#include "CommandLine.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace
{
namespace fs = std::filesystem;

// While it lives, the process works in a folder of its own, which goes with it, for verbs write files; nothing is to be
// read from standard input, and nothing is shown.
class Seclusion
{
public:
  Seclusion() : outside(fs::current_path()), shown(std::cerr.rdbuf(nullptr))
  {
    char name[] = "/tmp/axm_arguments_XXXXXX";
    if (mkdtemp(name) == nullptr)
      std::abort();
    folder = name;
    fs::current_path(folder);
    for (int number = 0; number < 3; ++number)
    {
      kept[number] = dup(number);
      int const null = open("/dev/null", O_RDWR | O_CLOEXEC);
      dup2(null, number);
      close(null);
    }
  }
  Seclusion(Seclusion const&) = delete;
  Seclusion& operator=(Seclusion const&) = delete;
  ~Seclusion()
  {
    std::cout.flush();
    std::fflush(stdout);
    for (int number = 0; number < 3; ++number)
    {
      dup2(kept[number], number);
      close(kept[number]);
    }
    std::cerr.rdbuf(shown);
    fs::current_path(outside);
    fs::remove_all(folder);
  }

private:
  fs::path const outside;
  fs::path folder;
  std::streambuf* const shown;
  int kept[3];
};

// Whether it can name nothing outside of the folder, and starts no other program. After a slash may stand what is no file
// at the root, so that expressions can begin with one.
bool is_harmless(std::string const& argument)
{
  if (argument.find("..") != std::string::npos || argument.find("conform") != std::string::npos)
    return false;
  for (std::size_t at = argument.find('/'); at != std::string::npos; at = argument.find('/', at + 1))
  {
    std::string const name = argument.substr(at + 1, argument.find('/', at + 1) - at - 1);
    // What is too long for a name is none.
    std::error_code ignored;
    if (!name.empty() && fs::exists("/" + name, ignored))
      return false;
  }
  return true;
}

std::string take_line(std::string_view& text)
{
  std::size_t const end = std::min(text.find('\n'), text.size());
  std::string const line(text.substr(0, end));
  text.remove_prefix(std::min(end + 1, text.size()));
  return line;
}
}

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
  std::string_view text(reinterpret_cast<char const*>(data), size);
  std::vector<std::string> texts = {"axm"};
  for (std::string line = take_line(text); !line.empty(); line = take_line(text))
    texts.push_back(line.substr(0, line.find('\0')));
  if (texts.size() > 20 || !std::all_of(texts.begin(), texts.end(), is_harmless))
    return 0;
  std::vector<char const*> values;
  for (std::string const& each : texts)
    values.push_back(each.c_str());

  Seclusion const seclusion;
  std::string_view const hyphens = "\n----\n";
  std::size_t const end = text.find(hyphens);
  std::ofstream("a.xml", std::ios::binary) << text.substr(0, end);
  if (end != std::string_view::npos)
    std::ofstream("b.xml", std::ios::binary) << text.substr(end + hyphens.size());
  int const code = run_command_line(Arguments(static_cast<int>(values.size()), values.data()));
  std::cout.clear();
  if (code < 0 || code > 2)
    std::abort();
  return 0;
}
