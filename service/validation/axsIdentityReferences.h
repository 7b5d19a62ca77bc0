#pragma once

#include "axsPlace.h"
#include "axsValueSet.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// The values of a key reference in one element and those within it, and which of them are still to be looked for among
/// the keys. A value that has found its key need not be looked for again further out, unless the key may have gone
/// (Part 1, 3.11.5). Memory in proportion to the values.
class axsIdentityReferences
{
public:
  std::size_t size() const noexcept { return entries.size(); }

  /// A reference of the element itself, as it stands in the document and where.
  void add(std::string_view value, std::string text, axsPlace place);

  /// The key may be gone that this value, of an element within, has found.
  void look_again(std::string_view value);

  /// Takes over the references of an element within, whose keys have been looked for. The smaller set is walked, so that
  /// what is handed up through all levels of a document costs no more than a logarithm of it for each value.
  void take(axsIdentityReferences&& inner);

  /// Visits the value, text and place of each that is to be looked for, which none of them is after that.
  template <class Visit>
  void visit_open(Visit visit)
  {
    for (std::size_t const number : open)
    {
      visit(values[number], entries[number].text, entries[number].place);
      entries[number].is_open = false;
    }
    open.clear();
  }

private:
  struct Entry
  {
    std::string text;
    axsPlace place;
    bool is_open = false;
  };

  void set_open(std::size_t number);

  axsValueSet values;
  std::vector<Entry> entries;
  std::vector<std::size_t> open;
};
