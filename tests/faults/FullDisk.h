#pragma once

#include <cstddef>
#include <functional>
#include <string>

/// Calls `prepare` and then `work` in a child process and returns what the latter gives. In between, the disk that the
/// folder `place` is on in that process is filled but for `room` bytes. It is a small file system of the process's own;
/// where the system does not let it have one, no file may become larger than 48 KiB instead.
std::string on_full_disk(std::string const& place, std::size_t room, std::function<void()> const& prepare,
  std::function<std::string()> const& work);
