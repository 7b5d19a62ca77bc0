#pragma once

#include <algorithm>
#include <cmath>
#include <ctime>
#include <vector>

// The processor time a call takes, that of the system for it included, in seconds: on a busy machine the time on the
// clock is mostly that of others.
template <class Call>
double seconds(Call call)
{
  std::clock_t const start = std::clock();
  call();
  return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

inline double median(std::vector<double> values)
{
  std::sort(values.begin(), values.end());
  return values.empty() ? 0 : values[values.size() / 2];
}

inline double geometric_mean(std::vector<double> const& values)
{
  double sum = 0;
  for (double const value : values)
    sum += std::log(value);
  return values.empty() ? 0 : std::exp(sum / static_cast<double>(values.size()));
}

// The median times of some calls that take turns, so that a machine that is busy for a while is so for all of them.
template <class Calls>
std::vector<double> interleaved(Calls const& calls, int runs)
{
  std::vector<std::vector<double>> times(calls.size());
  for (int run = 0; run < runs; ++run)
    for (std::size_t i = 0; i < calls.size(); ++i)
      times[i].push_back(seconds(calls[i]));
  std::vector<double> medians;
  for (auto const& of_call : times)
    medians.push_back(median(of_call));
  return medians;
}
