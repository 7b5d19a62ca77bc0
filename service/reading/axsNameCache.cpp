#include "axsNameCache.h"

#include "axsReadingEvents.h"
#include "axsUtf16.h"

#include <cstring>

namespace
{
std::uint64_t mixed(std::uint64_t hash, std::uint64_t value)
{
  hash = (hash ^ value) * 0x9E3779B97F4A7C15u;
  return hash ^ (hash >> 32);
}

std::uint64_t hash_of(XMLCh const* text, std::size_t length)
{
  std::uint64_t hash = length;
  for (; length >= 4; text += 4, length -= 4)
  {
    std::uint64_t units = 0;
    std::memcpy(&units, text, sizeof units);
    hash = mixed(hash, units);
  }
  for (; length > 0; ++text, --length)
    hash = mixed(hash, static_cast<char16_t>(*text));
  return hash;
}
}

axsNameCache::axsNameCache(axsReadingEvents& events) : asked(events), entries(64) {}

axsName const& axsNameCache::find(XMLCh const* text, std::size_t length)
{
  std::uint64_t const hash = hash_of(text, length);
  std::size_t const mask = entries.size() - 1;
  for (std::size_t at = hash & mask;; at = (at + 1) & mask)
  {
    Entry& entry = entries[at];
    if (entry.name == nullptr)
      return add(entry, hash, text, length);
    if (entry.hash == hash && entry.text->size() == length &&
        std::memcmp(entry.text->data(), text, length * sizeof(XMLCh)) == 0)
      return *entry.name;
  }
}

axsName const& axsNameCache::add(Entry& entry, std::uint64_t hash, XMLCh const* text, std::size_t length)
{
  std::string utf8;
  axsUtf16::append_utf8(text, length, utf8);
  axsName const& name = asked.name(utf8);
  texts.emplace_back(text, length);
  entry = Entry{hash, &texts.back(), &name};
  if (texts.size() * 2 > entries.size())
    grow();
  return name;
}

void axsNameCache::grow()
{
  std::vector<Entry> larger(entries.size() * 2);
  std::size_t const mask = larger.size() - 1;
  for (Entry const& entry : entries)
    if (entry.name != nullptr)
    {
      std::size_t at = entry.hash & mask;
      while (larger[at].name != nullptr)
        at = (at + 1) & mask;
      larger[at] = entry;
    }
  entries.swap(larger);
}
