#pragma once

/// An object that counts how many of its kind are alive.
class Counted
{
public:
  explicit Counted(int number = 0) : value(number) { ++alive; }
  Counted(Counted const&) = delete;
  Counted& operator=(Counted const&) = delete;
  ~Counted() { --alive; }

  int const value;

  inline static int alive = 0;
};
