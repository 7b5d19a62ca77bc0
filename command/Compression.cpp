#include "Compression.h"

#if defined(AXM_HAS_ZLIB)
#  include <zlib.h>
#endif
#if defined(AXM_HAS_LZMA)
#  include <lzma.h>
#endif
#if defined(AXM_HAS_ZSTD)
#  include <zstd.h>
#endif

#include <algorithm>
#include <climits>
#include <cstddef>
#include <cstdint>

namespace
{
using namespace std::string_view_literals;

// What every file of the format begins with, and how its name ends.
struct Format
{
  Compression compression;
  std::string_view head;
  std::string_view ending;
};

Format const formats[] = {
  {Compression::gzip, "\x1F\x8B"sv, ".gz"},
  {Compression::xz, "\xFD\x37zXZ\0"sv, ".xz"},
  {Compression::zstd, "\x28\xB5\x2F\xFD"sv, ".zst"},
};

[[maybe_unused]] std::string const failed = "cannot be compressed";
[[maybe_unused]] std::string const missing = "would have to be compressed, which this program was built without";

#if defined(AXM_HAS_ZLIB)
std::string gzip(std::string_view bytes, std::string& made)
{
  int const gzip_format = 16;
  z_stream stream{};
  if (deflateInit2(&stream, Z_DEFAULT_COMPRESSION, Z_DEFLATED, MAX_WBITS + gzip_format, 8, Z_DEFAULT_STRATEGY) != Z_OK)
    return failed;
  int result = Z_OK;
  char room[64 * 1024];
  while (result == Z_OK)
  {
    auto const given = static_cast<uInt>(std::min<std::size_t>(bytes.size(), UINT_MAX));
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data()));
    stream.avail_in = given;
    stream.next_out = reinterpret_cast<Bytef*>(room);
    stream.avail_out = sizeof room;
    result = deflate(&stream, given == bytes.size() ? Z_FINISH : Z_NO_FLUSH);
    bytes.remove_prefix(given - stream.avail_in);
    made.append(room, sizeof room - stream.avail_out);
  }
  deflateEnd(&stream);
  return result == Z_STREAM_END ? std::string() : failed;
}
#else
std::string gzip(std::string_view, std::string&)
{
  return missing;
}
#endif

#if defined(AXM_HAS_LZMA)
std::string xz(std::string_view bytes, std::string& made)
{
  made.resize(lzma_stream_buffer_bound(bytes.size()));
  std::size_t size = 0;
  lzma_ret const result = lzma_easy_buffer_encode(LZMA_PRESET_DEFAULT, LZMA_CHECK_CRC64, nullptr,
    reinterpret_cast<std::uint8_t const*>(bytes.data()), bytes.size(), reinterpret_cast<std::uint8_t*>(made.data()),
    &size, made.size());
  made.resize(size);
  return result == LZMA_OK ? std::string() : failed;
}
#else
std::string xz(std::string_view, std::string&)
{
  return missing;
}
#endif

#if defined(AXM_HAS_ZSTD)
std::string zstd(std::string_view bytes, std::string& made)
{
  int const usual_level = 3;
  made.resize(ZSTD_compressBound(bytes.size()));
  std::size_t const size = ZSTD_compress(made.data(), made.size(), bytes.data(), bytes.size(), usual_level);
  made.resize(ZSTD_isError(size) != 0 ? 0 : size);
  return ZSTD_isError(size) != 0 ? failed : std::string();
}
#else
std::string zstd(std::string_view, std::string&)
{
  return missing;
}
#endif
}

Compression compression_of(std::string_view head) noexcept
{
  for (Format const& format : formats)
    if (head.substr(0, format.head.size()) == format.head)
      return format.compression;
  return Compression::none;
}

Compression compression_of_name(std::string_view name) noexcept
{
  for (Format const& format : formats)
    if (name.size() > format.ending.size() && name.substr(name.size() - format.ending.size()) == format.ending)
      return format.compression;
  return Compression::none;
}

std::string compress(Compression format, std::string_view bytes, std::string& made)
{
  switch (format)
  {
  case Compression::gzip:
    return gzip(bytes, made);
  case Compression::xz:
    return xz(bytes, made);
  case Compression::zstd:
    return zstd(bytes, made);
  case Compression::none:
    break;
  }
  made = bytes;
  return std::string();
}
