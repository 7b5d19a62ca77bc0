#pragma once

#include "Verb.h"

#include <string>

/// Says on standard error what is wrong with what, and is `code`.
ExitCode complain(std::string const& about, std::string const& message, ExitCode code);
