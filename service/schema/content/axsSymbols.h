#pragma once

#include "axsSchemaName.h"
#include "axsTextHash.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <limits>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

struct axsElementDecl;

/// The names of the elements of a schema, numbered so that a substitution group (Part 1, 3.3.6) is a span of numbers: a
/// global element declaration comes first, all that can stand in its place follow it at once. Names that only local
/// declarations have come last. Namespaces are numbered too.
///
/// Filled while a schema is built; then any number of threads may look names up.
class axsSymbols
{
public:
  static constexpr std::uint32_t none = std::numeric_limits<std::uint32_t>::max();

  /// Takes all global declarations; each is affiliated to a head that is among them, or to none.
  explicit axsSymbols(std::vector<axsElementDecl const*> const& globals);

  /// The number of a name or a namespace, made if there is none yet.
  std::uint32_t add(axsSchemaName const& name);
  std::uint32_t add_space(std::string_view name_space);

  /// The number, or none.
  std::uint32_t find(std::string_view name_space, std::string_view local) const;
  std::uint32_t find_space(std::string_view name_space) const;

  std::uint32_t space_of(std::uint32_t symbol) const { return spaces_of_names[symbol]; }

  /// The global declaration of the name; null if there is none.
  axsElementDecl const* global(std::uint32_t symbol) const noexcept
  {
    return symbol < globals_by_number.size() ? globals_by_number[symbol] : nullptr;
  }

  /// The last one of those that can stand in place of the global declaration `symbol`; itself if there is none.
  std::uint32_t last_of_group(std::uint32_t symbol) const noexcept
  {
    return symbol < group_ends.size() ? group_ends[symbol] : symbol;
  }

private:
  struct Key
  {
    std::string_view name_space;
    std::string_view local;

    friend bool operator==(Key const& left, Key const& right) noexcept
    {
      return left.local == right.local && left.name_space == right.name_space;
    }
  };

  struct KeyHash
  {
    axsTextHash text;

    std::size_t operator()(Key const& key) const { return text(key.local) * 31 + text(key.name_space); }
  };

  void add_group(axsElementDecl const& root,
    std::unordered_map<axsElementDecl const*, std::vector<axsElementDecl const*>> const& members);
  std::uint32_t add_global(axsElementDecl const& decl);

  std::deque<axsSchemaName> names; // where the keys lie
  std::unordered_map<Key, std::uint32_t, KeyHash> numbers;
  std::vector<std::uint32_t> spaces_of_names;
  std::vector<axsElementDecl const*> globals_by_number;
  std::vector<std::uint32_t> group_ends;
  std::deque<std::string> spaces;
  std::unordered_map<std::string_view, std::uint32_t, axsTextHash> space_numbers;
};
