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
#include <iostream>
#include <stdexcept>

namespace
{
double peak_megabytes()
{
  rusage usage = {};
  getrusage(RUSAGE_SELF, &usage);
  return static_cast<double>(usage.ru_maxrss) / 1024;
}

double seconds_of(timeval const& time)
{
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

// With the processes that have been waited for.
double processor_seconds()
{
  timespec time = {};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  rusage children = {};
  getrusage(RUSAGE_CHILDREN, &children);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9 + seconds_of(children.ru_utime) +
         seconds_of(children.ru_stime);
}

// In the process of its own.
Cost measured(Run const& run)
{
  try
  {
    if (run.warm_up)
      run.warm_up();
    double const megabytes = peak_megabytes();
    long const allocations = allocations_so_far();
    double const start = processor_seconds();
    run.work();
    double const seconds = processor_seconds() - start;
    return {seconds, peak_megabytes() - megabytes, allocations_so_far() - allocations};
  }
  catch (std::exception const& error)
  {
    std::cerr << error.what() << '\n';
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

Cost cost_of(Run const& run)
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
    Cost const cost = measured(run);
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
    throw std::runtime_error("a run has failed");
  return cost;
}

std::vector<Cost> interleaved(std::vector<Run> const& runs, int times)
{
  std::vector<std::vector<Cost>> costs(runs.size());
  for (int time = 0; time < times; ++time)
    for (std::size_t i = 0; i < runs.size(); ++i)
      costs[i].push_back(cost_of(runs[i]));
  std::vector<Cost> medians;
  for (auto const& of_run : costs)
    medians.push_back(median(of_run, &Cost::seconds));
  return medians;
}

double geometric_mean(std::vector<double> const& values)
{
  double sum = 0;
  for (double const value : values)
    sum += std::log(value);
  return values.empty() ? 0 : std::exp(sum / static_cast<double>(values.size()));
}
