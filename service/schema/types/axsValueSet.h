#pragma once

#include "axsTextHash.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// Values by their bytes, each numbered in the order of its first coming. A table whose hash nobody can foresee
/// (axsTextHash); takes the bytes themselves and about 20 more each. Any number of threads may look at one at a time that
/// none changes.
class axsValueSet
{
public:
  static constexpr std::size_t none = static_cast<std::size_t>(-1);

  /// The number of the value, which is size() as it was before if it is new.
  std::size_t insert(std::string_view bytes);

  /// The number of the value, none if it is not there.
  std::size_t find(std::string_view bytes) const;

  std::string_view operator[](std::size_t number) const noexcept;
  std::size_t size() const noexcept { return ends.size(); }
  bool empty() const noexcept { return ends.empty(); }

private:
  std::size_t slot_of(std::string_view bytes, std::size_t hash) const;
  void grow();

  struct Slot
  {
    std::uint32_t hash = 0;
    std::uint32_t number_after = 0; // one more than the number; 0 of a free slot
  };

  std::string data;
  std::vector<std::size_t> ends;
  std::vector<Slot> slots;
  axsTextHash hasher;
};
