#pragma once

#include "axsDecoder.h"

#include <utCodePoint.h>

enum class axsByteOrder
{
  little,
  big
};

/// Decodes UTF-16 (units of two bytes) or UTF-32 (of four) in one byte order.
template <std::size_t unit_size, axsByteOrder order>
class axsUnicodeDecoder final : public axsDecoder
{
public:
  Result decode(std::string_view bytes, char* to, std::size_t room, bool is_end) noexcept override;

private:
  static char32_t unit(char const* at) noexcept;
  static utCodePoint character(char const* at, char const* end) noexcept;
};

extern template class axsUnicodeDecoder<2, axsByteOrder::little>;
extern template class axsUnicodeDecoder<2, axsByteOrder::big>;
extern template class axsUnicodeDecoder<4, axsByteOrder::little>;
extern template class axsUnicodeDecoder<4, axsByteOrder::big>;
