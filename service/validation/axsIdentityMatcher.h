#pragma once

#include "axsIdentityConstraint.h"

#include <cstddef>
#include <string_view>
#include <vector>

struct axsKnownName;

/// A restricted XPath (Part 1, 3.11.6), made ready for being asked at each element that begins.
class axsIdentityMatcher
{
public:
  explicit axsIdentityMatcher(axsIdentityPath const& path);

  /// Whether the path leads from the element at `from` of those that are open to the last of them; of a field, by elements.
  bool leads_to_element(std::vector<axsKnownName const*> const& open, std::size_t from) const;

  /// The same for the alternatives that lead to one depth only.
  bool leads_near_to_element(std::vector<axsKnownName const*> const& open, std::size_t from) const;

  /// The innermost level, counted from 1, from which the path leads to the last of them to any depth, as it then does from
  /// all levels around that; 0 if it does from none. Of a field, by elements.
  std::size_t innermost_origin(std::vector<axsKnownName const*> const& open) const;

  /// Whether it leads to the attribute of the last one.
  bool leads_to_attribute(std::vector<axsKnownName const*> const& open, std::size_t from, std::string_view name_space,
    std::string_view local) const;

  /// Whether it leads there to any depth, from some level.
  bool leads_deep_to_attribute(
    std::vector<axsKnownName const*> const& open, std::string_view name_space, std::string_view local) const;

  /// Whether it leads to attributes at all.
  bool has_attributes() const noexcept { return attributes; }

  /// Whether it leads to any depth, and else, down to which one.
  bool is_deep() const noexcept { return deep; }
  /// Whether each of its alternatives does.
  bool is_deep_only() const noexcept { return deep_only; }
  std::size_t depth() const noexcept { return steps; }

private:
  struct Alternative
  {
    bool from_descendants;
    std::vector<axsIdentityPath::Step const*> children;
    axsIdentityPath::Step const* attribute;
  };

  static bool has_names(Alternative const& alternative, std::vector<axsKnownName const*> const& open) noexcept;
  static bool is_deep_at(Alternative const& alternative, std::vector<axsKnownName const*> const& open) noexcept;
  static bool is_at(
    Alternative const& alternative, std::vector<axsKnownName const*> const& open, std::size_t from) noexcept;

  std::vector<Alternative> alternatives;
  bool attributes = false;
  bool deep = false;
  bool deep_only = true;
  std::size_t steps = 0;
};
