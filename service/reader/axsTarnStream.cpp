#include "axsTarnStream.h"

#include <algorithm>
#include <climits>

axsTarnStream::axsTarnStream(apITarnFilecoPrf const& given) : file(given) {}
axsTarnStream::~axsTarnStream() = default;

std::size_t axsTarnStream::read(char* to, std::size_t size)
{
  int const count = static_cast<int>(std::min<std::size_t>(size, INT_MAX));
  int const got = file.get() == nullptr ? 0 : file->read(to, 1, count);
  return static_cast<std::size_t>(std::max(got, 0));
}

// In steps, for the file counts in `int`.
bool axsTarnStream::seek(std::uint64_t position)
{
  if (file.get() == nullptr || !file->rewind())
    return false;
  while (position > 0)
  {
    int const step = static_cast<int>(std::min<std::uint64_t>(position, INT_MAX));
    if (!file->seek(step, 1))
      return false;
    position -= static_cast<std::uint64_t>(step);
  }
  return true;
}

apString axsTarnStream::fault() const
{
  return file.get() == nullptr ? APSTRING("There is no file") : apString();
}
