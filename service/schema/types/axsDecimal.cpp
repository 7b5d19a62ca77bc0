#include "axsDecimal.h"

namespace
{
enum Sign : unsigned char
{
  below = 0x40,
  zero = 0x80,
  above = 0xC0
};

// Exponents up to this far from 0 take one byte, others one for the side and eight.
std::int64_t const near_exponent = 100;
unsigned char const exponent_below = 0x01;
unsigned char const exponent_above = 0xFE;

bool is_digit(char c) noexcept
{
  return c >= '0' && c <= '9';
}

std::size_t digits_at(std::string_view text, std::size_t at) noexcept
{
  std::size_t end = at;
  while (end < text.size() && is_digit(text[end]))
    ++end;
  return end - at;
}

std::string_view without_leading_zeros(std::string_view digits) noexcept
{
  std::size_t const first = digits.find_first_not_of('0');
  return first == std::string_view::npos ? std::string_view() : digits.substr(first);
}

std::string_view without_trailing_zeros(std::string_view digits) noexcept
{
  return digits.substr(0, digits.find_last_not_of('0') + 1);
}

void append_exponent(std::int64_t exponent, std::string& bytes)
{
  if (exponent >= -near_exponent && exponent <= near_exponent)
  {
    bytes += static_cast<char>(0x80 + exponent);
    return;
  }
  bytes += static_cast<char>(exponent < 0 ? exponent_below : exponent_above);
  for (int shift = 56; shift >= 0; shift -= 8)
    bytes += static_cast<char>(static_cast<std::uint64_t>(exponent) >> shift & 0xFF);
}

// The digits, each one more than it is, in half bytes, of which a 0 ends them.
class HalfBytes
{
public:
  explicit HalfBytes(std::string& out) : bytes(out) {}

  void append(std::string_view digits)
  {
    for (char const c : digits)
      append_half(static_cast<unsigned>(c - '0' + 1));
  }

  void append_half(unsigned half)
  {
    if (is_upper)
      bytes += static_cast<char>(half << 4);
    else
      bytes.back() = static_cast<char>(static_cast<unsigned char>(bytes.back()) | half);
    is_upper = !is_upper;
  }

private:
  std::string& bytes;
  bool is_upper = true;
};
}

bool axsDecimal::parse(std::string_view text, Parts& parts) noexcept
{
  std::size_t at = 0;
  parts.negative = !text.empty() && text.front() == '-';
  if (!text.empty() && (text.front() == '-' || text.front() == '+'))
    ++at;
  std::size_t const whole = digits_at(text, at);
  std::string_view const whole_digits = text.substr(at, whole);
  at += whole;
  std::string_view fraction_digits;
  parts.has_point = at < text.size() && text[at] == '.';
  if (parts.has_point)
  {
    ++at;
    fraction_digits = text.substr(at, digits_at(text, at));
    at += fraction_digits.size();
  }
  if (at != text.size() || whole_digits.size() + fraction_digits.size() == 0)
    return false;
  parts.whole = without_leading_zeros(whole_digits);
  parts.fraction = without_trailing_zeros(fraction_digits);
  return true;
}

int axsDecimal::compare_counts(std::string_view left, std::string_view right) noexcept
{
  Parts one;
  Parts other;
  parse(left, one);
  parse(right, other);
  if (one.whole.size() != other.whole.size())
    return one.whole.size() < other.whole.size() ? -1 : 1;
  return one.whole.compare(other.whole);
}

void axsDecimal::append(Parts const& parts, std::string& bytes)
{
  if (parts.digits() == 0)
  {
    bytes += static_cast<char>(zero);
    return;
  }
  bytes += static_cast<char>(parts.negative ? below : above);
  std::size_t const begin = bytes.size();
  std::string_view whole = parts.whole;
  std::string_view fraction = parts.fraction;
  auto exponent = static_cast<std::int64_t>(whole.size());
  if (whole.empty())
  {
    fraction = without_leading_zeros(fraction);
    exponent = -static_cast<std::int64_t>(parts.fraction.size() - fraction.size());
  }
  if (fraction.empty())
    whole = without_trailing_zeros(whole);
  append_exponent(exponent, bytes);
  HalfBytes halves(bytes);
  halves.append(whole);
  halves.append(fraction);
  halves.append_half(0);
  if (parts.negative)
    for (std::size_t i = begin; i < bytes.size(); ++i)
      bytes[i] = static_cast<char>(~static_cast<unsigned char>(bytes[i]));
}

axsDecimal::Number axsDecimal::take(std::string_view& bytes)
{
  Number number;
  auto const sign = static_cast<unsigned char>(bytes.front());
  bytes.remove_prefix(1);
  if (sign == zero)
    return number;
  number.negative = sign == below;
  unsigned const turned = number.negative ? 0xFF : 0;
  auto const take_byte = [&bytes, turned]
  {
    unsigned const byte = static_cast<unsigned char>(bytes.front()) ^ turned;
    bytes.remove_prefix(1);
    return byte;
  };
  unsigned const first = take_byte();
  if (first == exponent_below || first == exponent_above)
  {
    std::uint64_t exponent = 0;
    for (int i = 0; i < 8; ++i)
      exponent = exponent << 8 | take_byte();
    number.exponent = static_cast<std::int64_t>(exponent);
  }
  else
    number.exponent = static_cast<std::int64_t>(first) - 0x80;
  while (true)
  {
    unsigned const byte = take_byte();
    if (byte >> 4 == 0)
      return number;
    number.digits += static_cast<char>('0' + (byte >> 4) - 1);
    if ((byte & 0xF) == 0)
      return number;
    number.digits += static_cast<char>('0' + (byte & 0xF) - 1);
  }
}

void axsDecimal::append_fraction(std::string_view digits, std::string& bytes)
{
  HalfBytes(bytes).append(digits);
}
