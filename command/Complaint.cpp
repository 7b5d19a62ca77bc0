#include "Complaint.h"

#include <iostream>

ExitCode complain(std::string const& about, std::string const& message, ExitCode code)
{
  std::cerr << "axm: " << about << ": " << message << '\n';
  return code;
}
