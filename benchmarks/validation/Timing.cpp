#include "Timing.h"

#include <sys/resource.h>

#include <algorithm>
#include <ctime>

double Timing::now()
{
  timespec time{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

double Timing::now_of_programs()
{
  rusage usage{};
  getrusage(RUSAGE_CHILDREN, &usage);
  auto const milliseconds = [](timeval const& time)
  { return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3; };
  return milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime);
}

double Timing::median(std::vector<double> times)
{
  std::sort(times.begin(), times.end());
  return times[times.size() / 2];
}
