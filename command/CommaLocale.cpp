#include "CommaLocale.h"

#if defined(__GLIBC__)

#  include <cstdint>
#  include <cstdlib>
#  include <fstream>
#  include <iterator>
#  include <string>
#  include <system_error>

namespace
{
// The category LC_NUMERIC as a file: a number that tells the category, how many values there are, where each begins, and
// the values: the point, the separator of thousands, their grouping, both again as wide characters, the encoding.
std::string numeric_category()
{
  constexpr std::uint32_t mark = 0x20031115U ^ 1U;
  constexpr std::uint32_t places[] = {32, 34, 36, 40, 44, 48};
  constexpr std::uint32_t comma = U',';
  constexpr std::uint32_t dot = U'.';
  std::string bytes;
  auto const add = [&bytes](std::uint32_t number)
  { bytes.append(reinterpret_cast<char const*>(&number), sizeof number); };
  add(mark);
  add(std::size(places));
  for (std::uint32_t const place : places)
    add(place);
  bytes.append(",\0.\0\3\3\0\0", 8);
  add(comma);
  add(dot);
  bytes.append("UTF-8", 6);
  return bytes;
}
}

void comma_locale::provide(std::filesystem::path const& folder)
{
  std::filesystem::path const locale = folder / "axm_utest_comma";
  std::error_code failed;
  std::filesystem::create_directories(locale, failed);
  if (!(std::ofstream(locale / "LC_NUMERIC", std::ios::binary) << numeric_category()))
    return;
  static char const* const given = std::getenv("LOCPATH");
  static std::string const others = given != nullptr ? std::string(":") + given : std::string();
  setenv("LOCPATH", (folder.string() + others).c_str(), 1);
}

#else

void comma_locale::provide(std::filesystem::path const&) {}

#endif
