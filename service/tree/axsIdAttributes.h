#pragma once

#include <unordered_map>
#include <unordered_set>

class axsName;

/// Which attributes of which elements a document type declares to be of the type ID (XML 1.0, 3.3.1). The names are those
/// of one document.
class axsIdAttributes
{
public:
  using Names = std::unordered_set<axsName const*>;

  /// Throws std::bad_alloc when memory runs out.
  void declare(axsName const& element, axsName const& attribute) { declared[&element].insert(&attribute); }

  /// The attributes of elements of that name that are IDs, null if there is none.
  Names const* of(axsName const& element) const noexcept
  {
    auto const found = declared.find(&element);
    return found == declared.end() ? nullptr : &found->second;
  }

private:
  std::unordered_map<axsName const*, Names> declared;
};
