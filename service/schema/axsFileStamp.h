#pragma once

#include <apPath.h>

#include <cstdint>
#include <filesystem>
#include <string>

/// The state of a file by which one notices that it has changed.
struct axsFileStamp
{
  apPath path;
  bool exists = false;
  std::string identity;
  std::uintmax_t size = 0;
  std::filesystem::file_time_type time;

  /// Of the contents (see hash_of); 0 as long as nobody asked for it.
  std::uint64_t hash = 0;

  /// How the file is now. Does not look into it.
  static axsFileStamp of(apPath const& path);

  /// A hash of what is in the file that nobody can foresee; 0 where it cannot be read.
  static std::uint64_t hash_of(apPath const& path);

  /// Whether both are the same as far as one can tell without a look into the file.
  bool looks_like(axsFileStamp const& other) const noexcept;

  /// Whether the file was changed so short a time before `now` that another change may have left its time as it is.
  bool is_fresh(std::filesystem::file_time_type now) const noexcept;
};
