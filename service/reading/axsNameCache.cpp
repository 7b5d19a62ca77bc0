#include "axsNameCache.h"

#include "axsName.h"
#include "axsNames.h"
#include "axsNamespaceScope.h"
#include "axsXmlName.h"

#include <cstring>

namespace
{
std::uint64_t mixed(std::uint64_t hash, std::uint64_t value)
{
  hash = (hash ^ value) * 0x9E3779B97F4A7C15u;
  return hash ^ (hash >> 32);
}

template <class Word>
std::uint64_t word_at(char const* at)
{
  Word word = 0;
  std::memcpy(&word, at, sizeof word);
  return word;
}

// The last word overlaps the one before it.
std::uint64_t hash_of(std::string_view text)
{
  char const* at = text.data();
  std::size_t const length = text.size();
  std::uint64_t hash = length;
  if (length >= 8)
  {
    char const* const last = at + length - 8;
    for (; at < last; at += 8)
      hash = mixed(hash, word_at<std::uint64_t>(at));
    return mixed(hash, word_at<std::uint64_t>(last));
  }
  if (length >= 4)
    return mixed(hash, word_at<std::uint32_t>(at) << 32 | word_at<std::uint32_t>(at + length - 4));
  for (char const c : text)
    hash = hash << 8 | static_cast<unsigned char>(c);
  return mixed(0, hash);
}

// Whether it is prefix, colon, local part, each without a colon.
bool is_qualified(axsName const& name)
{
  return !name.prefix().empty() && name.local().find(':') == std::string_view::npos &&
         axsXmlName::is_name(apString::from_utf8(name.local()));
}
}

axsNameCache::axsNameCache(axsNames& all) : asked(all), entries(64) {}

axsReadName& axsNameCache::find(std::string_view text)
{
  std::uint64_t const hash = hash_of(text);
  std::size_t const mask = entries.size() - 1;
  for (std::size_t at = hash & mask;; at = (at + 1) & mask)
  {
    Entry& entry = entries[at];
    if (entry.name == nullptr)
      return add(entry, hash, text);
    if (entry.hash == hash && entry.text == text)
      return *entry.name;
  }
}

axsReadName& axsNameCache::add(Entry& entry, std::uint64_t hash, std::string_view text)
{
  axsName const& name = asked.name(text);
  axsReadName made{&name, nullptr, nullptr, true};
  if (name.local().size() != name.utf8().size())
  {
    made.prefix = &prefix(name.prefix());
    made.is_qualified = is_qualified(name);
    if (name.prefix() == "xmlns")
      made.declared = &prefix(name.local());
  }
  else if (name.utf8() == "xmlns")
    made.declared = &prefix({});
  names.push_back(made);
  entry = Entry{hash, &names.back(), name.utf8()};
  if (names.size() * 2 > entries.size())
    grow();
  return names.back();
}

axsPrefix& axsNameCache::prefix(std::string_view text)
{
  auto const [found, is_new] = prefixes.try_emplace(std::string(text));
  axsPrefix& prefix = found->second;
  if (is_new)
  {
    prefix.text = text;
    if (text == "xml")
      prefix.bound.emplace_back(axsNamespaceScope::xml_namespace);
  }
  return prefix;
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
