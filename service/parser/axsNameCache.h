#pragma once

#include "axsPrefix.h"
#include "axsQName.h"
#include "axsTextHash.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

class axsNames;

/// Finds the names of one document by their text: a document has few names and says them often.
class axsNameCache
{
public:
  /// Asks `all` for every name once; it must live longer.
  explicit axsNameCache(axsNames& all);

  /// The name `text`, in UTF-8. It stays where it is.
  axsQName& find(std::string_view text);

  /// Moves after the name at `p`, in memory as axsCharacters wants it, if that is the one that comes where names come in
  /// the same order as before; null otherwise. Costs less than finding it.
  axsQName* expected(char const*& p)
  {
    if (next == nullptr || !next->stands_at(p))
      return nullptr;
    p += next->text.size();
    last = next;
    next = last->following;
    return last;
  }

  /// A prefix that some name has had, null for others.
  axsPrefix const* find_prefix(std::string_view text) const;

  /// That of names without a prefix.
  axsPrefix const& no_prefix() const noexcept { return *empty; }

private:
  struct Entry
  {
    std::uint64_t hash = 0;
    axsQName* name = nullptr;
    // Of the name; here, so that comparing takes no way over it.
    std::string_view text;
  };

  axsQName& look_up(std::string_view text);

  axsQName& add(Entry& entry, std::uint64_t hash, std::string_view text);
  axsPrefix& prefix(std::string_view text);
  void grow();

  axsNames& asked;
  axsTextHash const hash_of;
  std::unordered_map<std::string, axsPrefix, axsTextHash> prefixes;
  axsPrefix const* empty;
  std::deque<axsQName> names;
  // Of a power of two, at least half of them empty; an entry stands at its hash or after it.
  std::vector<Entry> entries;
  // What was found last, and what came after it the last time.
  axsQName* last = nullptr;
  axsQName* next = nullptr;
};
