#pragma once

#include <functional>
#include <vector>

// What is measured, and what is done in front of it, which brings the code of a library into memory.
struct Run
{
  std::function<void()> warm_up;
  std::function<void()> work;
};

// What a run cost in a process of its own, so that no run finds memory that another one has left.
struct Cost
{
  double seconds;   // of processor time, that of the system included: on a busy machine the clock shows that of others
  double megabytes; // at the peak, beyond what the process began with
  long allocations;
};

// Throws std::runtime_error when the run does.
Cost cost_of(Run const& run);

// The median costs of some runs that take turns, so that a machine that is busy for a while is so for all of them.
std::vector<Cost> interleaved(std::vector<Run> const& runs, int times);

double geometric_mean(std::vector<double> const& values);
