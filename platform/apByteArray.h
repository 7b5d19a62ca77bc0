#pragma once

#include "apExport.h"

#include <cstddef>
#include <vector>

/// Bytes in memory: the form of a document that is not in a file.
///
/// Owns its bytes; a value type. Sizes are in bytes. Operations that grow it throw std::bad_alloc when memory runs out,
/// std::length_error for a size that no memory has, and leave it as it was. One object belongs to one thread at a time.
class AP_API apByteArray
{
public:
  /// No bytes.
  apByteArray() noexcept;

  /// A copy of the `size` bytes at `bytes`.
  apByteArray(void const* bytes, std::size_t size);

  apByteArray(apByteArray const&);
  apByteArray(apByteArray&&) noexcept;
  apByteArray& operator=(apByteArray const&);
  apByteArray& operator=(apByteArray&&) noexcept;
  ~apByteArray();

  /// The first byte; may be null when there is none.
  char const* data() const noexcept;
  char* data() noexcept;

  std::size_t size() const noexcept;

  bool empty() const noexcept;

  /// Makes it `size` bytes long; bytes that come with it are 0.
  void resize(std::size_t size);

  /// Adds a copy of the `size` bytes at `bytes`, which may be its own, at the end.
  void append(void const* bytes, std::size_t size);

  /// Becomes empty and gives its memory back.
  void clear() noexcept;

  bool operator==(apByteArray const& other) const noexcept;
  bool operator!=(apByteArray const& other) const noexcept;

private:
  std::vector<char> contents;
};
