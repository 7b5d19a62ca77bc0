#pragma once

#include "axsTextHash.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

/// The texts of flat trees: names and data, which live as long as this, and the numbers of what names mean, which are the
/// same for several trees.
class axsFlatTreeNames
{
public:
  /// The number of a name in a namespace, which is empty for none.
  std::uint32_t number(std::string_view name_space, std::string_view local)
  {
    std::string key(name_space);
    key += '\0';
    key += local;
    return numbers.try_emplace(std::move(key), static_cast<std::uint32_t>(numbers.size())).first->second;
  }

  /// A copy that is shared by all that are equal.
  std::string_view shared(std::string_view text)
  {
    auto const found = names.find(text);
    if (found != names.end())
      return found->second;
    std::string_view const copy = kept(text);
    names.emplace(copy, copy);
    return copy;
  }

  /// A copy of its own.
  std::string_view kept(std::string_view text)
  {
    if (text.size() > block_size / 4)
      return large.emplace_back(text);
    if (blocks.empty() || blocks.back().size() + text.size() > block_size)
      blocks.emplace_back().reserve(block_size);
    std::string& block = blocks.back();
    std::size_t const at = block.size();
    block += text;
    return std::string_view(block).substr(at);
  }

private:
  static constexpr std::size_t block_size = std::size_t{64} * 1024;

  std::unordered_map<std::string, std::uint32_t, axsTextHash> numbers;
  std::unordered_map<std::string_view, std::string_view, axsTextHash> names;
  // None of them moves what it has.
  std::deque<std::string> blocks;
  std::deque<std::string> large;
};
