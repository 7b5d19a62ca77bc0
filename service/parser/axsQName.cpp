#include "axsQName.h"

#include <algorithm>
#include <cstring>

axsQName::axsQName(axsName const& full, std::string_view utf8) noexcept : name(&full), text(utf8)
{
  for (std::size_t i = 0; i < 2; ++i)
  {
    std::string_view const part = text.substr(std::min(i * word_size, text.size()), word_size);
    char bytes[word_size] = {};
    char mask[word_size] = {};
    std::copy(part.begin(), part.end(), bytes);
    std::fill_n(mask, part.size(), '\xFF');
    words[i] = apBits::load(bytes);
    masks[i] = apBits::load(mask);
  }
}

bool axsQName::has_rest_at(char const* p) const noexcept
{
  std::size_t const in_words = 2 * word_size;
  return ((apBits::load(p + word_size) ^ words[1]) & masks[1]) == 0 &&
         (text.size() <= in_words || std::strncmp(p + in_words, text.data() + in_words, text.size() - in_words) == 0);
}
