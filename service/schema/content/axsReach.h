#pragma once

#include "axsContentItem.h"
#include "axsSymbolSet.h"

#include <cstddef>
#include <cstdint>
#include <vector>

/// Which elements and wildcards can take the next child, somewhere in a content.
class axsReach
{
public:
  /// Two that both can take one name; both null if there are none.
  struct Overlap
  {
    axsContentItem const* first = nullptr;
    axsContentItem const* second = nullptr;

    explicit operator bool() const noexcept { return first != nullptr; }
  };

  void add(axsContentItem const& leaf);
  void unite(axsReach const& other);

  bool empty() const noexcept { return names.empty() && narrow.empty() && broad.empty(); }

  bool has(std::uint32_t symbol, std::uint32_t space) const noexcept;
  bool has_wildcards() const noexcept { return !narrow.empty() || !broad.empty(); }
  std::size_t size() const noexcept { return names.size() + narrow.size() + broad.size(); }
  axsSymbolSet const& elements() const noexcept { return names; }

  /// Two that overlap (Part 1, 3.8.6 cos-nonambig), one of each. As fast as the smaller of both allows.
  static Overlap overlap(axsReach const& left, axsReach const& right);

private:
  static Overlap overlap_of_names(axsReach const& left, axsReach const& right);
  static Overlap overlap_of_spaces(axsSymbolSet const& left, axsSymbolSet const& right);
  Overlap overlap_of_broad(axsReach const& other) const;

  axsSymbolSet names;
  axsSymbolSet spaces;                      // of the names
  axsSymbolSet narrow;                      // of wildcards that list their namespaces
  std::vector<axsContentItem const*> broad; // wildcards that take all namespaces but a few; of equal ones, one
};
