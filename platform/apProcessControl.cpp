#include "apProcessControl.h"

#if defined(_WIN32)

#  include <windows.h>

int apProcessControl::getpid() noexcept
{
  return static_cast<int>(GetCurrentProcessId());
}

#else

#  include <unistd.h>

int apProcessControl::getpid() noexcept
{
  return static_cast<int>(::getpid());
}

#endif
