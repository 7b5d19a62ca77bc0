#pragma once

#include "axsTextHash.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// Values by their bytes, each numbered in the order of its first coming. A table whose hash nobody can foresee
/// (axsTextHash); takes the bytes themselves and about 20 more for each. Any number of threads may look at one while none
/// changes it.
class axsValueSet
{
public:
  static constexpr std::size_t none = static_cast<std::size_t>(-1);

  /// The number of the value, whose bytes are not empty, which is size() as it was before if it is new. Where memory runs
  /// out, or there are 2^32 - 1 values, std::bad_alloc, and the set is as it was.
  std::size_t insert(std::string_view bytes);

  /// The number of the value, none if it is not there.
  std::size_t find(std::string_view bytes) const;

  /// The same for a value whose bytes are `first` and then `rest`.
  std::size_t find(char first, std::string_view rest) const;

  /// The bytes of a value by its number, up to the next insert.
  std::string_view operator[](std::size_t number) const noexcept;

  std::size_t size() const noexcept { return ends.size(); }
  bool empty() const noexcept { return ends.empty(); }

private:
  // A place of the table: free, or the number of a value and its hash.
  struct Slot
  {
    std::uint32_t number = no_number;
    std::uint32_t hash = 0;
  };

  static constexpr std::uint32_t no_number = static_cast<std::uint32_t>(-1);

  std::uint32_t hash_of(char first, std::string_view rest) const;
  std::size_t slot_of(std::uint32_t hash, char first, std::string_view rest) const;
  void make_room();

  std::string data;
  std::vector<std::size_t> ends;
  std::vector<Slot> slots;
  axsTextHash hasher;
};
