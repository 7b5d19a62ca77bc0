#include "axsNameCache.h"

#include "axsName.h"
#include "axsNames.h"
#include "axsNamespaceScope.h"
#include "axsXmlName.h"

axsNameCache::axsNameCache(axsNames& all) : asked(all), empty(&prefix({})), entries(64) {}

axsQName& axsNameCache::find(std::string_view text)
{
  axsQName& found = look_up(text);
  if (last != nullptr)
    last->following = &found;
  last = &found;
  next = found.following;
  return found;
}

axsQName& axsNameCache::look_up(std::string_view text)
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

axsPrefix const* axsNameCache::find_prefix(std::string_view text) const
{
  auto const found = prefixes.find(std::string(text));
  return found == prefixes.end() ? nullptr : &found->second;
}

axsQName& axsNameCache::add(Entry& entry, std::uint64_t hash, std::string_view text)
{
  axsName const& name = asked.name(text);
  axsQName made(name, name.utf8());
  if (name.local().size() != name.utf8().size())
  {
    made.prefix = &prefix(name.prefix());
    made.is_qualified = axsXmlName::is_qualified(name.utf8());
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
