#pragma once

#include "axsReadError.h"

#include <functional>

class axsParserMemory;

/// The parser library as such.
namespace axsXerces
{
/// Makes it ready, once in the life of the process: it is never put away, since other threads may be using it.
void initialise();

/// Runs `work` and turns whatever the library may throw into axsReadError or std::bad_alloc; `place` is asked for url,
/// line and column where the exception has none.
void run(axsParserMemory const& memory, std::function<void()> const& work, std::function<axsReadError()> const& place);
}
