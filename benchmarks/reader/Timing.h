#pragma once

#include <functional>
#include <vector>

// What a call cost in a process of its own, so that no call finds memory that another one has left.
struct Cost
{
  double seconds;   // of processor time, that of the system included: on a busy machine the clock shows that of others
  double megabytes; // at the peak, beyond what the process began with
  long allocations;
};

// Throws std::runtime_error when the call does.
Cost cost_of(std::function<void()> const& call);

// The median costs of some calls that take turns, so that a machine that is busy for a while is so for all of them.
std::vector<Cost> interleaved(std::vector<std::function<void()>> const& calls, int runs);

double geometric_mean(std::vector<double> const& values);
