#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// Decimal numbers of any number of digits (XML Schema Part 2, 3.2.3).
namespace axsDecimal
{
/// A number as parts of its text, zeros that say nothing left out: 0.0 has neither part.
struct Parts
{
  bool negative = false;
  bool has_point = false;
  std::string_view whole;
  std::string_view fraction;

  /// The digits that totalDigits counts (4.3.11): those of the least integer times a power of ten.
  std::size_t digits() const noexcept { return whole.size() + fraction.size(); }
};

/// Reads the lexical form: an optional sign, digits, at most one point. Whether it is one.
bool parse(std::string_view text, Parts& parts) noexcept;

/// Compares texts of numbers that are whole and not negative: below 0 if `left` is less, 0 if it is equal, else above.
int compare_counts(std::string_view left, std::string_view right) noexcept;

/// Appends the number in a form that memcmp orders as the numbers are, that is the same exactly for the same number, and
/// that ends itself: sign, decimal exponent, digits in half bytes.
void append(Parts const& parts, std::string& bytes);

/// A number of `append`: the sign times 0.`digits` times ten to the `exponent`; no digits for 0.
struct Number
{
  bool negative = false;
  std::int64_t exponent = 0;
  std::string digits;
};

/// Takes the number off the beginning of `bytes`, where one stands.
Number take(std::string_view& bytes);

/// Appends digits that follow a number, without zeros at their end, so that memcmp orders them as fractions.
void append_fraction(std::string_view digits, std::string& bytes);
}
