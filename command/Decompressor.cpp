#include "Decompressor.h"

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
#include <cstdint>
#include <new>

namespace
{
using namespace std::string_view_literals;

bool begins_with(std::string_view text, std::string_view beginning)
{
  return text.substr(0, beginning.size()) == beginning;
}

#if defined(AXM_HAS_ZLIB)
class Gzip final : public Decompressor
{
public:
  Gzip()
  {
    int const gzip_only = 16;
    if (inflateInit2(&stream, MAX_WBITS + gzip_only) != Z_OK)
      throw std::bad_alloc();
  }
  Gzip(Gzip const&) = delete;
  Gzip& operator=(Gzip const&) = delete;
  ~Gzip() override { inflateEnd(&stream); }

  std::size_t decompress(std::string_view& input, char* to, std::size_t size, std::string& wrong) override
  {
    if (complete && !input.empty())
    {
      inflateReset(&stream);
      complete = false;
    }
    auto const given = static_cast<uInt>(std::min<std::size_t>(input.size(), UINT_MAX));
    auto const room = static_cast<uInt>(std::min<std::size_t>(size, UINT_MAX));
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(input.data()));
    stream.avail_in = given;
    stream.next_out = reinterpret_cast<Bytef*>(to);
    stream.avail_out = room;
    int const result = complete ? Z_OK : inflate(&stream, Z_NO_FLUSH);
    complete = complete || result == Z_STREAM_END;
    if (result != Z_OK && result != Z_STREAM_END && result != Z_BUF_ERROR)
      wrong = "the compressed data (gzip) is damaged";
    input.remove_prefix(given - stream.avail_in);
    return room - stream.avail_out;
  }

  bool is_complete() const override { return complete; }

private:
  z_stream stream{};
  bool complete = false;
};
#endif

#if defined(AXM_HAS_LZMA)
class Xz final : public Decompressor
{
public:
  Xz()
  {
    if (lzma_stream_decoder(&stream, UINT64_MAX, 0) != LZMA_OK)
      throw std::bad_alloc();
  }
  Xz(Xz const&) = delete;
  Xz& operator=(Xz const&) = delete;
  ~Xz() override { lzma_end(&stream); }

  std::size_t decompress(std::string_view& input, char* to, std::size_t size, std::string& wrong) override
  {
    if (complete && !input.empty())
    {
      lzma_end(&stream);
      stream = LZMA_STREAM_INIT;
      if (lzma_stream_decoder(&stream, UINT64_MAX, 0) != LZMA_OK)
        throw std::bad_alloc();
      complete = false;
    }
    stream.next_in = reinterpret_cast<std::uint8_t const*>(input.data());
    stream.avail_in = input.size();
    stream.next_out = reinterpret_cast<std::uint8_t*>(to);
    stream.avail_out = size;
    lzma_ret const result = complete ? LZMA_OK : lzma_code(&stream, LZMA_RUN);
    complete = complete || result == LZMA_STREAM_END;
    if (result != LZMA_OK && result != LZMA_STREAM_END && result != LZMA_BUF_ERROR)
      wrong = "the compressed data (xz) is damaged";
    input.remove_prefix(input.size() - stream.avail_in);
    return size - stream.avail_out;
  }

  bool is_complete() const override { return complete; }

private:
  lzma_stream stream = LZMA_STREAM_INIT;
  bool complete = false;
};
#endif

#if defined(AXM_HAS_ZSTD)
class Zstd final : public Decompressor
{
public:
  Zstd() : stream(ZSTD_createDStream())
  {
    if (stream == nullptr)
      throw std::bad_alloc();
  }
  Zstd(Zstd const&) = delete;
  Zstd& operator=(Zstd const&) = delete;
  ~Zstd() override { ZSTD_freeDStream(stream); }

  std::size_t decompress(std::string_view& input, char* to, std::size_t size, std::string& wrong) override
  {
    ZSTD_inBuffer in{input.data(), input.size(), 0};
    ZSTD_outBuffer out{to, size, 0};
    if (!complete || !input.empty())
    {
      std::size_t const result = ZSTD_decompressStream(stream, &out, &in);
      complete = result == 0;
      if (ZSTD_isError(result) != 0)
        wrong = "the compressed data (zstd) is damaged";
    }
    input.remove_prefix(in.pos);
    return out.pos;
  }

  bool is_complete() const override { return complete; }

private:
  ZSTD_DStream* const stream;
  bool complete = false;
};
#endif

template <class Known>
std::unique_ptr<Decompressor> make(char const*, std::string&)
{
  return std::make_unique<Known>();
}

[[maybe_unused]] std::unique_ptr<Decompressor> refuse(char const* format, std::string& wrong)
{
  wrong = std::string("is compressed (") + format + "), which this program was built without";
  return nullptr;
}
}

std::unique_ptr<Decompressor> Decompressor::of(std::string_view head, std::string& wrong)
{
  if (begins_with(head, "\x1F\x8B"sv))
#if defined(AXM_HAS_ZLIB)
    return make<Gzip>("gzip", wrong);
#else
    return refuse("gzip", wrong);
#endif
  if (begins_with(head, "\xFD"
                        "7zXZ\0"sv))
#if defined(AXM_HAS_LZMA)
    return make<Xz>("xz", wrong);
#else
    return refuse("xz", wrong);
#endif
  if (begins_with(head, "\x28\xB5\x2F\xFD"sv))
#if defined(AXM_HAS_ZSTD)
    return make<Zstd>("zstd", wrong);
#else
    return refuse("zstd", wrong);
#endif
  return nullptr;
}
