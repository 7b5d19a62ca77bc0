#include "Arguments.h"

#if defined(_WIN32)
#  include <apString.h>

#  include <windows.h>

#  include <shellapi.h>
#endif

namespace
{
#if defined(_WIN32)
// What the C library hands to main has lost the characters that are not in the code page.
std::vector<std::string> unicode_arguments(int, char const* const*)
{
  std::vector<std::string> texts;
  int count = 0;
  wchar_t** const wide = CommandLineToArgvW(GetCommandLineW(), &count);
  for (int i = 0; i < count; ++i)
    texts.emplace_back(apString(wide[i]).to_utf8().c_str());
  LocalFree(wide);
  return texts;
}
#else
std::vector<std::string> unicode_arguments(int argc, char const* const* argv)
{
  return {argv, argv + argc};
}
#endif
}

Arguments::Arguments(int argc, char const* const* argv) : texts(unicode_arguments(argc, argv))
{
  for (std::string const& text : texts)
    pointers.push_back(text.c_str());
}
