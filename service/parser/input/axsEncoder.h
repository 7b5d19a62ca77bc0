#pragma once

#include <memory>
#include <string>
#include <string_view>

/// Makes the bytes of an encoding of text in UTF-8: what axsDecoder undoes. Belongs to one thread at a time.
class axsEncoder
{
public:
  /// The encoder of the encoding `name`, as axsEncodingName has it, which is one that can be read. Null where the system
  /// has no converter. Throws std::bad_alloc when memory runs out.
  static std::unique_ptr<axsEncoder> make(std::string_view name);

  axsEncoder() = default;
  axsEncoder(axsEncoder const&) = delete;
  axsEncoder& operator=(axsEncoder const&) = delete;
  virtual ~axsEncoder() = default;

  /// Appends to `bytes` what `text`, well-formed UTF-8, is in the encoding; one with states begins and ends in its first
  /// one. False, with `bytes` as it was, where the encoding has no bytes for a character, or none that mean that character
  /// when they are read. Throws std::bad_alloc when memory runs out.
  virtual bool encode(std::string_view text, std::string& bytes) = 0;
};
