#pragma once

#include "axsByteStream.h"

#include <apITarnFilecoPrf.h>

/// An open file of the platform's as a stream. Shares the file.
class axsTarnStream final : public axsByteStream
{
public:
  explicit axsTarnStream(apITarnFilecoPrf const& file);
  ~axsTarnStream() override;

  std::size_t read(char* to, std::size_t size) override;
  bool seek(std::uint64_t position) override;
  apString fault() const override;

private:
  apITarnFilecoPrf file;
};
