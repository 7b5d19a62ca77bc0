#pragma once

/// While it lives, a request to end the program (Ctrl-C, SIGTERM, SIGHUP) is only noted, so that it can be left in order.
/// One at a time, in the main thread.
class Interruption
{
public:
  Interruption();
  Interruption(Interruption const&) = delete;
  Interruption& operator=(Interruption const&) = delete;

  /// From now on such a request ends the program again; one that was noted does so here.
  ~Interruption();

  /// Whether there was one.
  static bool is_asked();
};
