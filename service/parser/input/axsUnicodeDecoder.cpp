#include "axsUnicodeDecoder.h"

#include <utUtf16.h>
#include <utUtf8.h>

template <std::size_t unit_size, axsByteOrder order>
axsDecoder::Result axsUnicodeDecoder<unit_size, order>::decode(
  std::string_view bytes, char* to, std::size_t room, bool is_end) noexcept
{
  char const* const begin = bytes.data();
  char const* const end = begin + bytes.size();
  char const* at = begin;
  char* made = to;
  char const* const last = to + room - utUtf8::max_bytes;
  bool is_illegal = false;
  while (made <= last)
  {
    // Most text is ASCII.
    for (; static_cast<std::size_t>(end - at) >= unit_size && made <= last && unit(at) < 0x80; at += unit_size)
      *made++ = static_cast<char>(unit(at));
    if (at == end || made > last)
      break;
    utCodePoint const found = character(at, end);
    if (!found.is_valid())
    {
      is_illegal = !found.is_cut_off() || is_end;
      break;
    }
    made = utUtf8::encode(found.code, made);
    at += found.length;
  }
  return {static_cast<std::size_t>(at - begin), static_cast<std::size_t>(made - to), is_illegal};
}

template <std::size_t unit_size, axsByteOrder order>
char32_t axsUnicodeDecoder<unit_size, order>::unit(char const* at) noexcept
{
  char32_t value = 0;
  for (std::size_t i = 0; i < unit_size; ++i)
    value = value << 8 | static_cast<unsigned char>(at[order == axsByteOrder::big ? i : unit_size - 1 - i]);
  return value;
}

// The code point at `at`, which is before `end`; its length is in bytes.
template <std::size_t unit_size, axsByteOrder order>
utCodePoint axsUnicodeDecoder<unit_size, order>::character(char const* at, char const* end) noexcept
{
  auto const size = static_cast<std::size_t>(end - at);
  if (size < unit_size)
    return {utCodePoint::cut_off, 1};
  char32_t const first = unit(at);
  if constexpr (unit_size == 4)
    return {first > utCodePoint::last || utUtf16::is_surrogate(first) ? utCodePoint::ill_formed : first, 4};
  else
  {
    bool const has_second = utUtf16::is_high_surrogate(first) && size >= 4;
    char16_t const units[] = {
      static_cast<char16_t>(first), static_cast<char16_t>(has_second ? unit(at + unit_size) : 0)};
    utCodePoint const found = utUtf16::decode(units, units + (has_second ? 2 : 1));
    return {found.code, found.length * 2};
  }
}

template class axsUnicodeDecoder<2, axsByteOrder::little>;
template class axsUnicodeDecoder<2, axsByteOrder::big>;
template class axsUnicodeDecoder<4, axsByteOrder::little>;
template class axsUnicodeDecoder<4, axsByteOrder::big>;
