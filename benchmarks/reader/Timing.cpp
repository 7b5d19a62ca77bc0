#include "Timing.h"

#include "allocations.h"

#include <malloc.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <ctime>
#include <exception>
#include <stdexcept>

namespace
{
double peak_megabytes()
{
  rusage usage = {};
  getrusage(RUSAGE_SELF, &usage);
  return static_cast<double>(usage.ru_maxrss) / 1024;
}

// In the process of its own.
Cost measured(std::function<void()> const& call)
{
  try
  {
    double const megabytes = peak_megabytes();
    long const allocations = allocations_so_far();
    std::clock_t const start = std::clock();
    call();
    double const seconds = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
    return {seconds, peak_megabytes() - megabytes, allocations_so_far() - allocations};
  }
  catch (std::exception const&)
  {
    return {-1, 0, 0};
  }
}

template <class Member>
Cost median(std::vector<Cost> costs, Member member)
{
  std::sort(costs.begin(), costs.end(), [&](Cost const& a, Cost const& b) { return a.*member < b.*member; });
  return costs[costs.size() / 2];
}
}

Cost cost_of(std::function<void()> const& call)
{
  // What this process has freed is not to be there for the other one, which would have to copy it besides.
  malloc_trim(0);
  int ends[2];
  if (pipe(ends) != 0)
    throw std::runtime_error("no pipe");
  pid_t const child = fork();
  if (child < 0)
    throw std::runtime_error("no process");
  if (child == 0)
  {
    Cost const cost = measured(call);
    ssize_t const written = write(ends[1], &cost, sizeof cost);
    _exit(written == sizeof cost ? 0 : 1);
  }
  close(ends[1]);
  Cost cost = {-1, 0, 0};
  ssize_t const got = read(ends[0], &cost, sizeof cost);
  close(ends[0]);
  int status = 0;
  waitpid(child, &status, 0);
  if (got != sizeof cost || cost.seconds < 0)
    throw std::runtime_error("a run has failed or has found something else than before");
  return cost;
}

std::vector<Cost> interleaved(std::vector<std::function<void()>> const& calls, int runs)
{
  std::vector<std::vector<Cost>> costs(calls.size());
  for (int run = 0; run < runs; ++run)
    for (std::size_t i = 0; i < calls.size(); ++i)
      costs[i].push_back(cost_of(calls[i]));
  std::vector<Cost> medians;
  for (auto const& of_call : costs)
    medians.push_back(median(of_call, &Cost::seconds));
  return medians;
}

double geometric_mean(std::vector<double> const& values)
{
  double sum = 0;
  for (double const value : values)
    sum += std::log(value);
  return values.empty() ? 0 : std::exp(sum / static_cast<double>(values.size()));
}
