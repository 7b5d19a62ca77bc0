#include "Progress.h"

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

Progress::Progress() : terminal(standard_error_is_terminal()) {}

Progress::~Progress()
{
  if (shown)
    std::fputs("\r                                        \r", stderr);
}

void Progress::show(long long rows)
{
  if (!terminal || rows % 64 != 0)
    return;
  Clock::time_point const now = Clock::now();
  if (now < next)
    return;
  next = now + std::chrono::milliseconds(200);
  shown = true;
  std::fputs(("\r" + line(rows, std::chrono::duration_cast<std::chrono::milliseconds>(now - start))).c_str(), stderr);
}

std::string Progress::line(long long rows, std::chrono::milliseconds elapsed)
{
  long long const tenths = elapsed.count() / 100;
  return std::to_string(rows) + " rows, " + std::to_string(tenths / 10) + "." + std::to_string(tenths % 10) + " s";
}
