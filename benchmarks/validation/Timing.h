#pragma once

#include <vector>

/// Processor time in milliseconds, of this process and of the programs that it has run.
namespace Timing
{
double now();
double now_of_programs();
double median(std::vector<double> times);
}
