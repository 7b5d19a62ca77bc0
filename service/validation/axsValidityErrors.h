#pragma once

#include "axsReadError.h"

#include <cstddef>
#include <vector>

/// What is not valid in a document, in the order in which it is found, up to a bound.
class axsValidityErrors
{
public:
  /// With a bound of 1, the first error is thrown.
  explicit axsValidityErrors(std::size_t max_errors) : bound(max_errors) {}

  /// Keeps the error; throws it if there may be no more.
  void add(axsReadError const& error)
  {
    errors.push_back(error);
    if (errors.size() >= bound)
      throw error;
  }

  /// Keeps the error, whatever the bound.
  void append(axsReadError const& error) { errors.push_back(error); }

  bool is_full() const noexcept { return errors.size() >= bound; }
  std::vector<axsReadError> const& all() const noexcept { return errors; }

private:
  std::size_t bound;
  std::vector<axsReadError> errors;
};
