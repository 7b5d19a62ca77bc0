#include "axsByteStream.h"

axsByteStream::~axsByteStream() = default;

bool axsByteStream::seek(std::uint64_t)
{
  return false;
}
