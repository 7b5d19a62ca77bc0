#pragma once

#include <cstddef>
#include <cstdint>

/// What the Unicode data files say of characters; axsUnicodeTables.cpp is made from them (unicode/make_tables.py).
namespace axsUnicodeTables
{
extern char const version[];

/// The general categories, in the order of their numbers in the table.
inline constexpr char const* category_names[] = {"Lu", "Ll", "Lt", "Lm", "Lo", "Mn", "Mc", "Me", "Nd", "Nl", "No", "Pc",
  "Pd", "Ps", "Pe", "Pi", "Pf", "Po", "Zs", "Zl", "Zp", "Sm", "Sc", "Sk", "So", "Cc", "Cf", "Co", "Cn", "Cs"};

/// From `first` up to the next one's, all characters are of the category.
struct CategoryStart
{
  std::uint32_t first : 24;
  std::uint32_t category : 8;
};
extern CategoryStart const categories[];
extern std::size_t const category_count;

/// A block, sorted by its name, which has no spaces; one that lies in several pieces stands there several times.
struct Block
{
  char const* name;
  char32_t first;
  char32_t last;
};
extern Block const blocks[];
extern std::size_t const block_count;
}
