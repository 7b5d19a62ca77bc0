#pragma once

#include <string>
#include <string_view>

/// The numbers of XPath 1.0: doubles, and how they are written and read, whatever the locale.
///
/// Stateless; safe from several threads.
namespace axsXPathNumber
{
/// The number that `text` writes, NaN where it writes none: white space, an optional '-', digits with at most one '.',
/// white space (XPath 1.0, number()). The nearest double; beyond the largest one an infinity.
double from_text(std::string_view text) noexcept;

/// "NaN", "Infinity", "-Infinity", "0" for both zeros, the digits of an integer, otherwise as many digits after the
/// point as tell the number from every other double, and at least one before it; never an exponent (XPath 1.0, string()).
std::string to_text(double number);

/// The nearest integer, of two the one closer to positive infinity; NaN, infinities and zeros stay, and from -0.5 up
/// to 0 it is -0 (XPath 1.0, round()).
double round(double number) noexcept;
}
