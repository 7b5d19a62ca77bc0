#pragma once

#include <string>

/// What the program says of itself: its version in the first line, then how it was built.
std::string version_text();
