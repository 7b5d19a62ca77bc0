#include "Colours.h"

#include <cstdlib>

#if !defined(_WIN32)
#  include <unistd.h>
#endif

namespace
{
// A console of Windows has to be asked for them first: there nobody gets colours who does not ask for them.
bool takes_colours()
{
#if defined(_WIN32)
  return false;
#else
  char const* const none = std::getenv("NO_COLOR");
  char const* const terminal = std::getenv("TERM");
  bool const is_refused = none != nullptr && *none != '\0';
  return !is_refused && terminal != nullptr && std::string_view(terminal) != "dumb" && isatty(STDOUT_FILENO) != 0;
#endif
}
}

Colours::Colours(std::string const& when) : is_coloured(when == "always" || (when == "auto" && takes_colours())) {}

std::string Colours::in(Colour colour, std::string_view text) const
{
  if (!is_coloured)
    return std::string(text);
  return "\x1B[" + std::to_string(colour) + "m" + std::string(text) + "\x1B[0m";
}
