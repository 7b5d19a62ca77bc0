#include "ConformListener.h"

#include <cstdio>

#if defined(_WIN32)
#  include <io.h>
#else
#  include <unistd.h>
#endif

namespace
{
bool standard_error_is_terminal()
{
#if defined(_WIN32)
  return _isatty(_fileno(stderr)) != 0;
#else
  return isatty(STDERR_FILENO) != 0;
#endif
}
}

ConformListener::ConformListener() : terminal(standard_error_is_terminal()), console(stdout) {}

void ConformListener::reported(utUnitTestReport const& report)
{
  ++checks;
  // Cleared first, for the console may write where the line stands.
  if (!report.passed)
    show("");
  console.reported(report);
  show(std::to_string(checks) + " checks, " + report.function);
}

void ConformListener::printed(char const* text)
{
  show("");
  console.printed(text);
}

void ConformListener::finished()
{
  show("");
  console.finished();
}

void ConformListener::show(std::string const& line)
{
  if (!terminal)
    return;
  std::fprintf(stderr, "\r%s\r%s", std::string(shown.size(), ' ').c_str(), line.c_str());
  std::fflush(stderr);
  shown = line;
}
