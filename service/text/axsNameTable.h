#pragma once

#include "axsName.h"
#include "axsTextHash.h"

#include <cstdint>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <vector>

/// The names of one document.
class axsNameTable
{
public:
  /// The one object for the name `text`, in UTF-8. Throws std::bad_alloc when memory runs out.
  axsName const& intern(std::string_view text);

  /// The object for the name `text`, null if no node ever had it.
  axsName const* find(std::string_view text) const noexcept;

  /// Whether a name has a prefix or declares a namespace, or once did.
  bool has_namespaces() const noexcept { return namespaces; }

  /// The object for the name that a caller gives, null if it is no XML name. Throws std::bad_alloc when memory runs out.
  /// A name that was asked for a short time ago is not checked again.
  axsName const* intern_checked(apString const& text);

  /// The name that has the number, which is not axsName::no_number.
  axsName const& numbered(std::uint16_t number) const noexcept { return *by_number[number]; }

private:
  // The keys lie in the names, which the map keeps in their places.
  std::unordered_map<std::string_view, std::unique_ptr<axsName const>, axsTextHash> names;
  std::vector<axsName const*> by_number;
  bool namespaces = false;
  // Names that callers gave, each in a place that follows from its length and its ends.
  axsName const* recent[16] = {};
};
