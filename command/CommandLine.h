#pragma once

#include "Arguments.h"

/// Does what the arguments say, and returns the exit code. What is thrown is what no verb could tell of better.
int run_command_line(Arguments const& arguments);
