#pragma once

#include "axsSchemaPlace.h"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

/// What is wrong with the schema documents of a set, up to a bound; more is not kept. In the order in which it is found.
class axsSchemaErrors
{
public:
  /// The default of the bound: enough to work on, few enough to read.
  static constexpr std::size_t default_limit = 20;

  struct Error
  {
    std::string message;
    axsSchemaPlace place;
  };

  explicit axsSchemaErrors(std::size_t most = default_limit) : limit(most) {}

  void add(axsSchemaPlace place, std::string message)
  {
    found = true;
    if (errors.size() < limit)
      errors.push_back({std::move(message), place});
  }

  bool any() const noexcept { return found; }

  /// Whether more would not be kept.
  bool full() const noexcept { return errors.size() >= limit; }

  std::vector<Error> const& all() const noexcept { return errors; }

private:
  std::vector<Error> errors;
  std::size_t limit;
  bool found = false;
};
