#pragma once

#include "axsDecoder.h"
#include "axsSingleByteSets.h"

/// Decodes an encoding of one byte a character.
class axsSingleByteDecoder final : public axsDecoder
{
public:
  /// `set` must live longer.
  explicit axsSingleByteDecoder(axsSingleByteSets::Characters const& set) noexcept : characters(set) {}

  Result decode(std::string_view bytes, char* to, std::size_t room, bool is_end) noexcept override;

private:
  axsSingleByteSets::Characters const& characters;
};
