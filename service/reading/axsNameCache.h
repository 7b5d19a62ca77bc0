#pragma once

#include <xercesc/util/XercesDefs.hpp>

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <vector>

class axsName;
class axsReadingEvents;

/// Finds the names of one document by the parser's text of them: a document has few names and says them often.
class axsNameCache
{
public:
  /// Asks `events` for every name once; they must live longer.
  explicit axsNameCache(axsReadingEvents& events);

  axsName const& find(XMLCh const* text, std::size_t length);

private:
  struct Entry
  {
    std::uint64_t hash = 0;
    std::basic_string<XMLCh> const* text = nullptr;
    axsName const* name = nullptr;
  };

  axsName const& add(Entry& entry, std::uint64_t hash, XMLCh const* text, std::size_t length);
  void grow();

  axsReadingEvents& asked;
  std::deque<std::basic_string<XMLCh>> texts;
  // Of a power of two, at least half of them empty; an entry stands at its hash or behind.
  std::vector<Entry> entries;
};
