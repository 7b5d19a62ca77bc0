#pragma once

#include "axsName.h"
#include "axsTextHash.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <vector>

/// The names of one document.
///
/// Names that are read stay as long as the table: a document has as many as it has text for. Names that a program gives
/// (intern_checked) stay while a node has them, so that a program that gives ever new ones to nodes that go does not fill
/// the memory: those that no node has go when they become more than the others.
class axsNameTable
{
public:
  /// The one object for the name `text`, in UTF-8, which stays from now on. Throws std::bad_alloc when memory runs out.
  axsName const& intern(std::string_view text);

  /// The object for the name `text`, null if no node has it.
  axsName const* find(std::string_view text) const noexcept;

  /// Whether a name has a prefix or declares a namespace, or once did.
  bool has_namespaces() const noexcept { return namespaces; }

  /// The object for the name that a caller gives, null if it is no XML name. It stays until this is called again and, from
  /// add_user() on, until no node has it. Throws std::bad_alloc when memory runs out. A name that was asked for a short
  /// time ago is not checked again.
  axsName const* intern_checked(apString const& text);

  /// A node that a program has made has the name.
  void add_user(axsName const& name) noexcept
  {
    if (!name.stays && name.users++ == 0)
      --unused;
  }

  /// A node that has the name goes. It need not have been counted if the name was read.
  void remove_user(axsName const& name) noexcept
  {
    if (!name.stays && --name.users == 0)
      ++unused;
  }

  /// How many names there are.
  std::size_t size() const noexcept { return names.size(); }

  /// The name that has the number, which is not axsName::no_number.
  axsName const& numbered(std::uint16_t number) const noexcept { return *by_number[number]; }

private:
  axsName const& add(std::string_view text);
  std::uint16_t free_number();
  void remove_unused() noexcept;

  // The keys lie in the names, which the map keeps in their places.
  std::unordered_map<std::string_view, std::unique_ptr<axsName const>, axsTextHash> names;
  // Null where the name has gone; before the first place to look at, none has.
  std::vector<axsName const*> by_number;
  std::size_t first_to_look_at = 0;
  std::size_t unused = 0;
  bool namespaces = false;
  // Names that callers gave, each in a place that follows from its length and its ends.
  axsName const* recent[16] = {};
};
