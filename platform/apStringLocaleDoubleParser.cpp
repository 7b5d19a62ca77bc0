#include <apStringLocaleDoubleParser.h>

#include <cwchar>

apStringLocaleDoubleParser::Result apStringLocaleDoubleParser::parse(apString const& text) noexcept
{
  wchar_t const* const begin = text.c_str();
  wchar_t* end = nullptr;
  double const value = std::wcstod(begin, &end);
  if (end == begin)
    return {false, 0, 0.0};
  return {true, static_cast<int>(end - begin), value};
}
