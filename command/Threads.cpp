#include "Threads.h"

#include <chrono>
#include <filesystem>
#include <iterator>
#include <system_error>
#include <thread>

int Threads::count()
{
  namespace fs = std::filesystem;
  std::error_code failure;
  fs::directory_iterator const threads("/proc/self/task", failure);
  return failure ? 0 : static_cast<int>(std::distance(begin(threads), end(threads)));
}

bool Threads::come_down_to(int wanted)
{
  // One that is about to end is given the time for it.
  for (int wait = 0; wait < 40; ++wait)
  {
    if (count() <= wanted)
      return true;
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  return false;
}
