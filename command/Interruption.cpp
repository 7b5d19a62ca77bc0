#include "Interruption.h"

#include <csignal>

#if defined(_WIN32)
#  include <windows.h>

#  include <atomic>
#endif

namespace
{
#if defined(_WIN32)
// Set by a thread that the system starts for it.
std::atomic<int> asked = 0;

BOOL WINAPI note(DWORD)
{
  asked = SIGINT;
  return TRUE;
}
#else
volatile std::sig_atomic_t asked = 0;

int const signals[] = {SIGINT, SIGTERM, SIGHUP};

void note(int signal)
{
  asked = signal;
}
#endif
}

#if defined(_WIN32)

Interruption::Interruption()
{
  SetConsoleCtrlHandler(note, TRUE);
}

Interruption::~Interruption()
{
  SetConsoleCtrlHandler(note, FALSE);
  if (is_asked())
    std::raise(asked);
}

#else

Interruption::Interruption()
{
  // What was ignored before, as under nohup, stays so.
  for (int const signal : signals)
    if (std::signal(signal, note) == SIG_IGN)
      std::signal(signal, SIG_IGN);
}

Interruption::~Interruption()
{
  for (int const signal : signals)
    if (std::signal(signal, SIG_DFL) == SIG_IGN)
      std::signal(signal, SIG_IGN);
  if (is_asked())
    std::raise(asked);
}

#endif

bool Interruption::is_asked()
{
  return asked != 0;
}
