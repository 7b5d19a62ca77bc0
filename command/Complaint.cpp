#include "Complaint.h"

#include "SourceLine.h"

#include <iostream>

ExitCode complain(std::string const& about, std::string const& message, ExitCode code)
{
  std::cerr << "axm: " << shown(about) << ": " << shown(message) << '\n';
  return code;
}
