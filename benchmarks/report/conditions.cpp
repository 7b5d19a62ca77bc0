#include "conditions.h"

#include "writing.h"

#include <sys/utsname.h>
#include <unistd.h>

#include <ctime>
#include <fstream>
#include <thread>

namespace
{
std::string processor()
{
  std::ifstream file("/proc/cpuinfo");
  std::string const key = "model name";
  for (std::string line; std::getline(file, line);)
    if (line.compare(0, key.size(), key) == 0)
      return line.substr(line.find(':') + 2);
  return "a processor without a name";
}

std::string machine()
{
  utsname system = {};
  uname(&system);
  double const bytes = static_cast<double>(sysconf(_SC_PHYS_PAGES)) * static_cast<double>(sysconf(_SC_PAGESIZE));
  return processor() + ", " + std::to_string(std::thread::hardware_concurrency()) + " threads, " +
         number(bytes / (1024.0 * 1024 * 1024), 0) + " GiB, " + system.sysname + ' ' + system.machine;
}

std::string date()
{
  std::time_t const now = std::time(nullptr);
  char text[32] = "";
  std::strftime(text, sizeof text, "%Y-%m-%d %H:%M UTC", std::gmtime(&now));
  return text;
}
}

std::vector<std::string> conditions(std::vector<std::string> const& libraries)
{
  std::string names = "libraries: " BENCHMARK_AXM;
  for (std::string const& library : libraries)
    names += ", " + library;
  std::vector<std::string> lines = {
    "date: " + date(), "machine: " + machine(), "compiler: " BENCHMARK_COMPILER ", " BENCHMARK_BUILD, names};
  for (std::string& line : lines)
    line = shortened(line, line_width);
  return lines;
}

std::string pugixml_name(int version)
{
  return "pugixml " + std::to_string(version / 1000) + '.' + std::to_string(version / 10 % 100);
}
