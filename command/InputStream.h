#pragma once

#include "Decompressor.h"

#include <axsByteStream.h>

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

/// The bytes of a document: of a file or, where its name is "-", of standard input; decompressed if they are in the format
/// of gzip, xz or zstd.
class InputStream final : public axsByteStream
{
public:
  /// Opens the file, a path in UTF-8. That it cannot be opened shows in is_plain_file(), so that the engine says it.
  explicit InputStream(std::string const& name);
  ~InputStream() override;

  /// Whether it is a file that the engine may as well read by itself, as what it has is not compressed and comes again.
  bool is_plain_file() const;

  /// Whether it could be opened.
  bool is_open() const noexcept { return file != nullptr; }

  std::size_t read(char* to, std::size_t size) override;
  apString fault() const override { return apString::from_utf8(wrong); }

private:
  std::size_t read_bytes(char* to, std::size_t size);
  bool read_compressed();

  std::FILE* file = nullptr;
  bool is_standard_input = false;
  // What has been read, but not handed on: bytes as they are, or compressed ones.
  std::vector<char> pending;
  std::size_t used = 0;
  std::unique_ptr<Decompressor> decompressor;
  std::string wrong;
};
