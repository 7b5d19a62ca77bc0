#pragma once

#include "axsName.h"

#include <memory>
#include <string_view>
#include <unordered_map>

/// The names of one document.
class axsNameTable
{
public:
  /// The one object for the name `text`, in UTF-8. Throws std::bad_alloc when memory runs out.
  axsName const& intern(std::string_view text);

  /// The object for the name `text`, null if no node ever had it.
  axsName const* find(std::string_view text) const noexcept;

private:
  // The keys lie in the names, which the map keeps in their places.
  std::unordered_map<std::string_view, std::unique_ptr<axsName const>> names;
};
