#pragma once

#if !defined(_WIN32)
#  include <csignal>
#endif

// While it lives, signals that would end the process wait. One object belongs to one thread. Not installed.
class apHeldSignals
{
public:
#if defined(_WIN32)
  apHeldSignals() noexcept = default;
  ~apHeldSignals() {}
#else
  apHeldSignals() noexcept
  {
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_BLOCK, &all, &before);
  }
  ~apHeldSignals()
  {
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
  }
#endif
  apHeldSignals(apHeldSignals const&) = delete;
  apHeldSignals& operator=(apHeldSignals const&) = delete;

#if !defined(_WIN32)
private:
  sigset_t before;
#endif
};
