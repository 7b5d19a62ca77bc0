#pragma once

/// The threads of this process.
class Threads
{
public:
  /// Their number; 0 where the system does not tell.
  static int count();

  /// Whether there are no more than `wanted`, after a short while if need be. True where the system does not tell.
  static bool come_down_to(int wanted);
};
