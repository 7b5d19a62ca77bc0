#include "CommandLine.h"
#include "Complaint.h"
#include "Utf8Console.h"
#include "Verb.h"

#include <csignal>
#include <cstdio>
#include <exception>
#include <iostream>

namespace
{
// Whether all that was written to standard output has reached the system.
bool is_written(std::ostream& stream, std::FILE* file)
{
  return stream.flush().good() && std::fflush(file) == 0 && std::ferror(file) == 0;
}
}

int main(int argc, char** argv)
{
  Utf8Console const console;
#if defined(SIGXFSZ)
  // A file that may not become so large is one that cannot be written, and is told as that.
  std::signal(SIGXFSZ, SIG_IGN);
#endif
  try
  {
    int const exit_code = run_command_line(Arguments(argc, argv));
    // A verb that has met it has said so.
    if (exit_code == exit_good && !is_written(std::cout, stdout))
      return complain("standard output", "cannot be written", exit_bad_input);
    return exit_code;
  }
  catch (std::exception const& error)
  {
    std::cerr << "axm: " << error.what() << '\n';
    return exit_bad_input;
  }
}
