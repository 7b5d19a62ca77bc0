#include "axsUnicode.h"

#include "axsCharacters.h"
#include "axsUnicodeTables.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>
#include <vector>

namespace tables = axsUnicodeTables;

namespace
{
// "Cs" is none: surrogates are no characters (Part 2, F.1.1).
bool is_in(std::string_view category, std::string_view name) noexcept
{
  return category != "Cs" && category.substr(0, name.size()) == name;
}

bool is_category(std::string_view name) noexcept
{
  return (name.size() == 1 || name.size() == 2) &&
         std::any_of(std::begin(tables::category_names), std::end(tables::category_names),
           [name](std::string_view category) { return is_in(category, name); });
}

axsCharacterSet set_of(bool (*test)(char32_t) noexcept)
{
  std::vector<axsCharacterSet::Range> ranges;
  for (char32_t c = 0; c <= axsCharacterSet::largest; ++c)
  {
    if (!test(c))
      continue;
    if (ranges.empty() || ranges.back().last + 1 != c)
      ranges.push_back({c, c});
    ranges.back().last = c;
  }
  return axsCharacterSet::of(std::move(ranges));
}
}

bool axsUnicode::find_category(std::string_view name, axsCharacterSet& set)
{
  if (!is_category(name))
    return false;
  std::vector<axsCharacterSet::Range> ranges;
  for (std::size_t i = 0; i < tables::category_count; ++i)
  {
    if (!is_in(tables::category_names[tables::categories[i].category], name))
      continue;
    char32_t const next = i + 1 < tables::category_count ? char32_t{tables::categories[i + 1].first} : 0x110000;
    ranges.push_back({tables::categories[i].first, next - 1});
  }
  set = axsCharacterSet::of(std::move(ranges));
  return true;
}

bool axsUnicode::find_block(std::string_view name, axsCharacterSet& set)
{
  std::vector<axsCharacterSet::Range> ranges;
  for (std::size_t i = 0; i < tables::block_count; ++i)
    if (tables::blocks[i].name == name)
      ranges.push_back({tables::blocks[i].first, tables::blocks[i].last});
  set = axsCharacterSet::of(std::move(ranges));
  return !set.empty();
}

axsCharacterSet axsUnicode::name_starts()
{
  static axsCharacterSet const set = set_of(axsCharacters::is_name_start);
  return set;
}

axsCharacterSet axsUnicode::name_parts()
{
  static axsCharacterSet const set = set_of(axsCharacters::is_name_part);
  return set;
}
