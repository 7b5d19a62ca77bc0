#pragma once

#include <axsByteStream.h>

#include <string_view>

/// The bytes of a document in memory.
class MemoryStream final : public axsByteStream
{
public:
  /// The bytes must live longer.
  explicit MemoryStream(std::string_view bytes) : left(bytes) {}

  std::size_t read(char* to, std::size_t size) override;
  apString fault() const override { return apString(); }

private:
  std::string_view left;
};
