#pragma once

#include "axsQName.h"
#include "axsStartTag.h"

#include <cstddef>
#include <string_view>
#include <vector>

/// The attributes of the element that is being read: as they are told, and what the parser knows of each beside that.
class axsReadAttributes
{
public:
  struct Source
  {
    axsQName const* name = nullptr;

    /// Where the name stands; null of a default.
    char const* at = nullptr;
  };

  void clear() noexcept
  {
    all.clear();
    sources.clear();
    needs_namespaces = false;
  }

  /// Adds one without a namespace, of character data. What is to be told of it may be changed until the next one comes.
  axsTagAttribute& add(axsQName const& name, std::string_view value, char const* at)
  {
    sources.push_back({&name, at});
    needs_namespaces = needs_namespaces || name.prefix != nullptr || name.declared != nullptr;
    // Put together in its place: what is written in parts and read as a whole at once keeps the processor waiting.
    axsTagAttribute& added = all.emplace_back();
    added.name = name.name;
    added.value = value;
    added.is_specified = at != nullptr;
    added.is_declaration = name.declared != nullptr;
    return added;
  }

  std::size_t size() const noexcept { return all.size(); }
  bool empty() const noexcept { return all.empty(); }

  /// Whether one has a prefix or declares one.
  bool has_namespaces() const noexcept { return needs_namespaces; }

  axsTagAttribute& operator[](std::size_t index) noexcept { return all[index]; }
  Source const& source(std::size_t index) const noexcept { return sources[index]; }

  std::vector<axsTagAttribute> const& told() const noexcept { return all; }

private:
  std::vector<axsTagAttribute> all;
  std::vector<Source> sources;
  bool needs_namespaces = false;
};
