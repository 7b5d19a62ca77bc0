#include "apTarnFileStdio.h"

#include "apNativeFile.h"

#include <algorithm>
#include <climits>

apTarnFileStdio::apTarnFileStdio(utString const& name, apTarnMode mode)
  : stream(mode == apTarnModeRead ? apNativeFile::open(name, "rb") : nullptr)
{
}

apTarnFileStdio::~apTarnFileStdio()
{
  if (stream != nullptr)
    std::fclose(stream);
}

bool apTarnFileStdio::seek(int offset, int origin)
{
  return stream != nullptr && origin >= 0 && origin <= 2 &&
         std::fseek(stream, offset,
           origin == 0   ? SEEK_SET
           : origin == 1 ? SEEK_CUR
                         : SEEK_END) == 0;
}

int apTarnFileStdio::tell()
{
  if (stream == nullptr)
    return -1;
#if defined(_WIN32)
  long long const position = _ftelli64(stream);
#else
  long long const position = ftello(stream);
#endif
  return position > INT_MAX ? -1 : static_cast<int>(position);
}

bool apTarnFileStdio::rewind()
{
  return seek(0, 0);
}

int apTarnFileStdio::read(void* buffer, int size, int count)
{
  if (stream == nullptr || size <= 0 || count <= 0)
    return 0;
  std::size_t const item = static_cast<std::size_t>(size);
  std::size_t const whole = std::min(static_cast<std::size_t>(count), static_cast<std::size_t>(-1) / item);
  std::size_t const bytes = apNativeFile::read(stream, buffer, item * whole);
  return static_cast<int>(bytes / item);
}
