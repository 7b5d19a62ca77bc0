#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

/// Decompresses a stream of bytes, piece by piece. Several streams after one another count as one, as the formats' own
/// commands have it.
class Decompressor
{
public:
  virtual ~Decompressor() = default;

  /// The one for what begins with `head`; null where that is in no format of ours. Where it is in one that this program
  /// was built without, null as well, with `wrong` saying so.
  static std::unique_ptr<Decompressor> of(std::string_view head, std::string& wrong);

  /// Takes bytes from the front of `input` and writes up to `size` bytes to `to`; how many. 0 means that it needs more
  /// input, or that something is `wrong`, which it says then.
  virtual std::size_t decompress(std::string_view& input, char* to, std::size_t size, std::string& wrong) = 0;

  /// Whether the input may end here.
  virtual bool is_complete() const = 0;
};
