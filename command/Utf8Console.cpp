#include "Utf8Console.h"

#if defined(_WIN32)

#  include <fcntl.h>
#  include <io.h>
#  include <windows.h>

#  include <cstdio>

Utf8Console::Utf8Console() : code_page_before(GetConsoleOutputCP())
{
  SetConsoleOutputCP(CP_UTF8);
  _setmode(_fileno(stdout), _O_BINARY);
}

// The setting belongs to the console, which the program leaves as it found it.
Utf8Console::~Utf8Console()
{
  SetConsoleOutputCP(code_page_before);
}

#else

Utf8Console::Utf8Console() : code_page_before(0) {}
Utf8Console::~Utf8Console() = default;

#endif
