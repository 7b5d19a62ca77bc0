#pragma once

#include <apByteArray.h>
#include <apPath.h>
#include <apString.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

class axsByteStream;

/// The bytes of one document, schema or entity: in memory, or in a file that we open ourselves and read piece by piece as
/// long as nobody needs them all. Throws axsReadError when there is no file or it cannot be read, std::bad_alloc when
/// memory runs out.
class axsSource
{
public:
  /// Refers to the bytes of `data`, which must live longer.
  explicit axsSource(apByteArray const& data) noexcept;

  /// Opens the file.
  explicit axsSource(apPath const& file);

  /// Reads on from the stream, which must live longer; `name` is what errors call it.
  axsSource(axsByteStream& stream, apPath const& name);

  axsSource(axsSource const&) = delete;
  axsSource& operator=(axsSource const&) = delete;
  ~axsSource();

  /// What errors say it is: the path, empty for bytes in memory.
  apString url() const { return apString(path.path()); }

  apPath const& file() const noexcept { return path; }

  /// The beginning: all of it, if it is small or in memory.
  std::string_view head() const noexcept { return present; }

  /// How many bytes there are; 0 where that cannot be told, as of a pipe.
  std::uint64_t size() const;

  /// Reads on from where the last read() ended, at first from the start. 0 at the end.
  std::size_t read(char* to, std::size_t size);

  /// How many bytes have been read.
  std::uint64_t consumed() const noexcept { return position; }

  /// The next read() is so many bytes after the first one, which have been read before. Throws axsReadError where that
  /// cannot be: what came from a pipe or a stream is kept only after keep_what_is_read(), and only the last of it.
  void seek(std::uint64_t position);

  /// Keeps from now on what a pipe or a stream gives, the last `max_kept` bytes at least. To be called before the first
  /// read().
  void keep_what_is_read();

  static constexpr std::size_t max_kept = std::size_t{32} * 1024 * 1024;

private:
  void read_head();
  std::size_t read_file(char* to, std::size_t size);
  std::size_t read_stream(char* to, std::size_t size);
  bool move_to(std::uint64_t position);
  void remember(char const* bytes, std::size_t size);
  bool is_open() const noexcept { return stream != nullptr || bytes != nullptr; }
  void close() noexcept;

  apPath path;
  std::FILE* stream = nullptr;
  axsByteStream* bytes = nullptr;
  std::vector<char> kept;
  std::string_view present;
  std::uint64_t position = 0;
  // What came last from where nothing comes twice, and how many bytes came before that.
  std::string recent;
  std::uint64_t before_recent = 0;
  bool keeps = false;
};
