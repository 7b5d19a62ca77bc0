#pragma once

#include <cstddef>
#include <memory>
#include <string_view>

/// Makes UTF-8 of the bytes of another encoding, piece by piece. Strict: a byte that has no meaning in the encoding stops
/// it (XML 1.0, 4.3.3). One decoder goes over one entity, in one thread at a time.
class axsDecoder
{
public:
  /// What became of some bytes.
  struct Result
  {
    /// How many were taken, and how many bytes of UTF-8 were made of them.
    std::size_t taken;
    std::size_t made;
    /// Whether the next one has no meaning in the encoding.
    bool is_illegal;
  };

  /// Room for the longest character, so that something can always be made.
  static constexpr std::size_t min_room = 32;

  /// The decoder of the encoding `name`, as axsEncodingName has it: of UTF-16 and UTF-32 with their byte order, the
  /// encodings of axsSingleByteSets, and whatever else the system has a converter for. Null for others. Throws
  /// std::bad_alloc when memory runs out.
  static std::unique_ptr<axsDecoder> make(std::string_view name);

  /// Whether what a byte means depends on more than the character it is in, as in ISO-2022-JP: then a decoder cannot begin
  /// in the middle. Taken for true of what the system converts.
  static bool has_states(std::string_view name) noexcept;

  axsDecoder() = default;
  axsDecoder(axsDecoder const&) = delete;
  axsDecoder& operator=(axsDecoder const&) = delete;
  virtual ~axsDecoder() = default;

  /// Writes to `to`, where there are `room` bytes, at least `min_room`, what the whole characters at the beginning of
  /// `bytes` are. What is not taken has no room, is illegal, or is the beginning of a character, to be given again with
  /// the bytes that follow it. If `is_end`, none follow. When all was taken at the end and nothing made, nothing is left.
  virtual Result decode(std::string_view bytes, char* to, std::size_t room, bool is_end) noexcept = 0;
};
