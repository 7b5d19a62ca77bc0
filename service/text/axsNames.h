#pragma once

#include <string_view>

class axsName;

/// Knows the names of one document.
class axsNames
{
public:
  virtual ~axsNames() = default;

  /// The object for the name `text`, in UTF-8, the same at every call with that name.
  virtual axsName const& name(std::string_view text) = 0;
};
