#include "Complaint.h"

#include "Messages.h"
#include "SourceLine.h"

#include <ostream>

ExitCode complain(std::string const& about, std::string const& message, ExitCode code)
{
  messages() << "axm: " << shown(about) << ": " << shown(message) << '\n';
  return code;
}
