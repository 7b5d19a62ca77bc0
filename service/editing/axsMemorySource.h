#pragma once

#include "axsByteStream.h"
#include "axsSource.h"

#include <apPath.h>

#include <string_view>

/// The bytes of a document in memory as a source for a parser, with the path to which what it names is relative.
class axsMemorySource final : private axsByteStream
{
public:
  /// Refers to `all`, which must live longer.
  axsMemorySource(std::string_view all, apPath const& file) : bytes(all), stream(*this, file) {}

  axsSource& source() noexcept { return stream; }

private:
  std::size_t read(char* to, std::size_t size) override;
  apString fault() const override { return {}; }

  std::string_view bytes;
  std::size_t at = 0;
  axsSource stream;
};
