#include "axsFloat.h"

#include "axsDecimal.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <system_error>

namespace
{
// The lexical form of a number: a decimal one, and an exponent that is an integer.
struct Text
{
  axsDecimal::Parts mantissa;
  std::string_view digits; // the mantissa without its sign
  std::string_view exponent;
};

bool split(std::string_view text, Text& parts)
{
  std::size_t const e = text.find_first_of("eE");
  std::string_view mantissa = text.substr(0, e);
  if (!axsDecimal::parse(mantissa, parts.mantissa))
    return false;
  if (mantissa.front() == '+' || mantissa.front() == '-')
    mantissa.remove_prefix(1);
  parts.digits = mantissa;
  if (e == std::string_view::npos)
    return true;
  parts.exponent = text.substr(e + 1);
  axsDecimal::Parts exponent;
  return axsDecimal::parse(parts.exponent, exponent) && !exponent.has_point;
}

// Of a number out of range: whether it is too large rather than too small.
bool is_large(Text const& parts)
{
  axsDecimal::Parts exponent;
  if (!axsDecimal::parse(parts.exponent.empty() ? "0" : parts.exponent, exponent))
    return false;
  // No text is so long that its digits outweigh an exponent of that many.
  if (exponent.whole.size() > 18)
    return !exponent.negative;
  std::int64_t power = 0;
  for (char const digit : exponent.whole)
    power = power * 10 + (digit - '0');
  std::string_view const fraction = parts.mantissa.fraction;
  std::size_t const zeros = std::min(fraction.find_first_not_of('0'), fraction.size());
  auto const place = parts.mantissa.whole.empty() ? -static_cast<std::int64_t>(zeros)
                                                  : static_cast<std::int64_t>(parts.mantissa.whole.size());
  return (exponent.negative ? -power : power) + place > 0;
}

template <class Number>
Number value_of(Text const& parts)
{
  if (parts.mantissa.digits() == 0)
    return 0;
  Number number = 0;
  // In the form that from_chars takes: without a sign before the exponent's digits but '-'.
  std::string plain(parts.digits);
  if (!parts.exponent.empty())
  {
    plain += 'e';
    plain += parts.exponent.substr(parts.exponent.front() == '+' ? 1 : 0);
  }
  auto const read = std::from_chars(plain.data(), plain.data() + plain.size(), number);
  if (read.ec == std::errc::result_out_of_range)
    number = is_large(parts) ? std::numeric_limits<Number>::infinity() : 0;
  return number;
}

// The bits, with the sign turned so that larger numbers have larger bits; the highest byte first.
template <class Number, class Bits>
void append_bits(Number number, std::string& bytes)
{
  static_assert(sizeof(Number) == sizeof(Bits));
  Bits bits = 0;
  // There is one zero.
  Number const plain = number == 0 ? 0 : number;
  std::memcpy(&bits, &plain, sizeof bits);
  Bits const sign = Bits(1) << (sizeof(Bits) * 8 - 1);
  bits = (bits & sign) != 0 ? ~bits : bits | sign;
  for (std::size_t i = sizeof(Bits); i > 0; --i)
    bytes += static_cast<char>(bits >> ((i - 1) * 8) & 0xFF);
}

template <class Number, class Bits>
bool append(std::string_view text, std::string& bytes)
{
  if (text == "NaN")
    return true;
  Number const infinity = std::numeric_limits<Number>::infinity();
  Text parts;
  if (text == "INF" || text == "-INF")
    append_bits<Number, Bits>(text == "INF" ? infinity : -infinity, bytes);
  else if (split(text, parts))
  {
    auto const number = value_of<Number>(parts);
    append_bits<Number, Bits>(parts.mantissa.negative ? -number : number, bytes);
  }
  else
    return false;
  return true;
}
}

bool axsFloat::append32(std::string_view text, std::string& bytes)
{
  return append<float, std::uint32_t>(text, bytes);
}

bool axsFloat::append64(std::string_view text, std::string& bytes)
{
  return append<double, std::uint64_t>(text, bytes);
}
