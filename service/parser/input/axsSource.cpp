#include "axsSource.h"

#include "axsByteStream.h"
#include "axsReadError.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace
{
// More than any declaration takes.
std::size_t const head_size = 8 * 1024;

// What users meet most often.
wchar_t const* reason(int error)
{
  switch (error)
  {
  case EACCES:
    return L": there is no permission to read it";
  case EISDIR:
    return L": it is a folder";
  default:
    return L"";
  }
}

[[noreturn]] void fail(wchar_t const* what, apPath const& path, int error)
{
  throw axsReadError{apString(what) + apString(path.path()) + apString(reason(error)), apString(path.path())};
}

// Where the next byte comes from, and going to another one, in files of any size; below 0 and false where there are no
// places, as in a pipe.
std::int64_t place_in(std::FILE* stream)
{
#if defined(_WIN32)
  return _ftelli64(stream);
#else
  return ftello(stream);
#endif
}

bool move(std::FILE* stream, std::int64_t to, int from)
{
#if defined(_WIN32)
  return _fseeki64(stream, to, from) == 0;
#else
  return fseeko(stream, static_cast<off_t>(to), from) == 0;
#endif
}

// How many bytes the file has, which may still change; 0 where that cannot be told.
std::uint64_t size_of(std::FILE* stream)
{
  std::int64_t const here = place_in(stream);
  if (here < 0 || !move(stream, 0, SEEK_END))
    return 0;
  std::int64_t const end = place_in(stream);
  bool const is_back = move(stream, here, SEEK_SET);
  return is_back && end > 0 ? static_cast<std::uint64_t>(end) : 0;
}
}

axsSource::axsSource(apByteArray const& data) noexcept : present(data.data(), data.size()) {}

axsSource::axsSource(apPath const& file) : path(file)
{
  if (file.empty())
    throw axsReadError{APSTRING("There is no file name"), apString()};
  stream = file.file_open(apPath::read_mode());
  if (stream == nullptr)
  {
    int const error = errno;
    if (!file.exists())
      fail(L"There is no file ", file, 0);
    fail(L"Cannot open the file ", file, error);
  }
  try
  {
    // Pieces are large enough as they come.
    std::setvbuf(stream, nullptr, _IONBF, 0);
    read_head();
  }
  catch (...)
  {
    close();
    throw;
  }
}

axsSource::axsSource(axsByteStream& given, apPath const& name) : path(name), bytes(&given)
{
  read_head();
}

void axsSource::read_head()
{
  kept.resize(head_size);
  kept.resize(read_file(kept.data(), kept.size()));
  present = {kept.data(), kept.size()};
  bool const is_cut_off = bytes != nullptr && !bytes->fault().empty();
  if (kept.size() < head_size && !is_cut_off)
    close();
}

axsSource::~axsSource()
{
  close();
}

void axsSource::close() noexcept
{
  if (stream != nullptr)
    std::fclose(stream);
  stream = nullptr;
  bytes = nullptr;
}

std::uint64_t axsSource::size() const
{
  return !is_open() ? present.size() : stream == nullptr ? 0 : size_of(stream);
}

void axsSource::keep_what_is_read()
{
  before_recent = present.size();
  keeps = is_open() && !move_to(before_recent);
}

void axsSource::seek(std::uint64_t to)
{
  bool const is_here = !is_open() || move_to(std::max<std::uint64_t>(to, present.size()));
  bool const is_kept = keeps && (to >= before_recent || before_recent == present.size());
  if (!is_here && !is_kept)
    throw axsReadError{APSTRING("What was read cannot be read again: of a pipe, the last 32 MiB are kept"), url()};
  position = to;
}

// False where there are no places to go to, as in a pipe.
bool axsSource::move_to(std::uint64_t to)
{
  return bytes != nullptr ? bytes->seek(to) : move(stream, static_cast<std::int64_t>(to), SEEK_SET);
}

std::size_t axsSource::read(char* to, std::size_t size)
{
  if (position < present.size())
  {
    std::size_t const from = static_cast<std::size_t>(position);
    std::size_t const count = std::min(size, present.size() - from);
    std::memcpy(to, present.data() + from, count);
    position += count;
    return count;
  }
  if (position < before_recent + recent.size() && position >= before_recent)
  {
    std::size_t const from = static_cast<std::size_t>(position - before_recent);
    std::size_t const count = recent.copy(to, size, from);
    position += count;
    return count;
  }
  if (!is_open())
    return 0;
  // What was kept of the beginning has been read.
  std::size_t const count = read_file(to, size);
  position += count;
  remember(to, count);
  return count;
}

void axsSource::remember(char const* read, std::size_t size)
{
  if (!keeps)
    return;
  recent.append(read, size);
  if (recent.size() > 2 * max_kept)
  {
    before_recent += recent.size() - max_kept;
    recent.erase(0, recent.size() - max_kept);
  }
}

// Fewer bytes than asked for mean the end of the file.
std::size_t axsSource::read_file(char* to, std::size_t size)
{
  if (bytes != nullptr)
    return read_stream(to, size);
  if (std::feof(stream) != 0)
    return 0; // the system would be asked once more
  std::size_t const count = std::fread(to, 1, size, stream);
  if (count < size && std::ferror(stream) != 0)
    fail(L"Cannot read the file ", path, errno);
  return count;
}

std::size_t axsSource::read_stream(char* to, std::size_t size)
{
  std::size_t count = 0;
  while (count < size)
  {
    std::size_t const more = bytes->read(to + count, size - count);
    count += more;
    // What came before a fault is read first; asked again, the stream tells it again.
    if (apString const fault = bytes->fault(); !fault.empty() && count == 0)
      throw axsReadError{fault, url()};
    if (more == 0 || !bytes->fault().empty())
      break;
  }
  return count;
}
