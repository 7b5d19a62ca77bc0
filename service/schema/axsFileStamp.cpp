#include "axsFileStamp.h"

#include "axsLocalFile.h"
#include "axsTextHash.h"

#include <chrono>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string_view>
#include <system_error>
#include <vector>

namespace
{
std::size_t const piece = 65536;

// The coarsest clock of a file system in use (FAT).
std::chrono::seconds const resolution{2};
}

axsFileStamp axsFileStamp::of(apPath const& path)
{
  axsFileStamp stamp;
  stamp.path = path;
  utString const text = path.path();
  std::filesystem::path const native =
    std::filesystem::u8path(text.c_str(), text.c_str() + static_cast<std::size_t>(text.length()));
  std::error_code failure;
  stamp.size = std::filesystem::file_size(native, failure);
  if (!failure)
    stamp.time = std::filesystem::last_write_time(native, failure);
  stamp.exists = !failure;
  if (stamp.exists)
    stamp.identity = axsLocalFile::identity(path);
  return stamp;
}

std::uint64_t axsFileStamp::hash_of(apPath const& path)
{
  std::unique_ptr<std::FILE, int (*)(std::FILE*)> const file(path.file_open(apPath::read_mode()), &std::fclose);
  if (file == nullptr)
    return 0;
  // What a piece hashes to goes before the next one.
  std::vector<char> buffer(sizeof(std::uint64_t) + piece);
  axsTextHash const hash_text;
  std::uint64_t hash = 1;
  std::size_t read = 0;
  while ((read = std::fread(buffer.data() + sizeof hash, 1, piece, file.get())) > 0)
  {
    std::memcpy(buffer.data(), &hash, sizeof hash);
    hash = hash_text(std::string_view(buffer.data(), sizeof hash + read)) | 1;
  }
  return std::ferror(file.get()) != 0 ? 0 : hash;
}

bool axsFileStamp::looks_like(axsFileStamp const& other) const noexcept
{
  return exists == other.exists && size == other.size && time == other.time && identity == other.identity;
}

bool axsFileStamp::is_fresh(std::filesystem::file_time_type now) const noexcept
{
  return exists && time + resolution >= now;
}
