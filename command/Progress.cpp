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
  clear();
}

void Progress::clear()
{
  if (shown)
    std::fputs("\r                                        \r", stderr);
  shown = false;
}

void Progress::show(long long rows)
{
  std::chrono::milliseconds elapsed{};
  if (terminal && rows % 64 == 0 && is_due(elapsed))
    write(line(rows, elapsed));
}

void Progress::show_bytes(long long bytes)
{
  std::chrono::milliseconds elapsed{};
  if (terminal && is_due(elapsed))
    write(std::to_string(bytes / 1000000) + " MB" + since(elapsed));
}

void Progress::show_files(long long done, long long all)
{
  std::chrono::milliseconds elapsed{};
  if (terminal && is_due(elapsed))
    write(std::to_string(done) + " of " + std::to_string(all) + " files" + since(elapsed));
}

bool Progress::is_due(std::chrono::milliseconds& elapsed)
{
  Clock::time_point const now = Clock::now();
  if (now < next)
    return false;
  next = now + std::chrono::milliseconds(200);
  elapsed = std::chrono::duration_cast<std::chrono::milliseconds>(now - start);
  return true;
}

void Progress::write(std::string const& line)
{
  shown = true;
  std::fputs(("\r" + line).c_str(), stderr);
}

std::string Progress::line(long long rows, std::chrono::milliseconds elapsed)
{
  return std::to_string(rows) + " rows" + since(elapsed);
}

std::string Progress::since(std::chrono::milliseconds elapsed)
{
  long long const tenths = elapsed.count() / 100;
  return ", " + std::to_string(tenths / 10) + "." + std::to_string(tenths % 10) + " s";
}
