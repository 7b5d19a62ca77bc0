#pragma once

#include <string>
#include <string_view>

/// The formats in which documents are kept smaller.
enum class Compression
{
  none,
  gzip,
  xz,
  zstd
};

/// That of bytes that begin with `head`, and that which the name of a file tells.
Compression compression_of(std::string_view head) noexcept;
Compression compression_of_name(std::string_view name) noexcept;

/// Puts `bytes` in the format into `made`. What is wrong, such as that this program was built without it; empty if it is
/// done. Throws std::bad_alloc when memory runs out.
std::string compress(Compression format, std::string_view bytes, std::string& made);
