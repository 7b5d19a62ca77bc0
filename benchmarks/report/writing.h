#pragma once

#include <cstddef>
#include <string>
#include <vector>

/// No line of a report is longer.
inline constexpr std::size_t line_width = 100;

/// What the reports of the benchmarks write their tables and plots with.
std::string number(double value, int digits);

/// With spaces after the text, or before it, up to `width`; a longer text as it is.
std::string padded(std::string const& text, std::size_t width);
std::string aligned_right(std::string const& text, std::size_t width);

/// A text longer than `width` loses what is too much, and ends with "..".
std::string shortened(std::string const& text, std::size_t width);

/// Shortened or padded.
std::string fitted(std::string const& text, std::size_t width);

/// Headings of columns, aligned right, on two lines: of a name of two words the second one stands on the second line.
std::string headings(std::vector<std::string> const& names, std::size_t indentation, std::size_t width);

/// The fill attributes of the libraries in plots. A library has one colour everywhere; the first word of a name tells the
/// library, and another name of the same one has the colour fainter.
std::vector<std::string> fills(std::vector<std::string> const& names);

/// Writes PREFIX.txt and PREFIX.svg. Whether both could be written.
bool write_report(std::string const& prefix, std::string const& table, std::string const& plot);

/// As the text of an SVG element.
std::string escaped(std::string const& text);

/// How the file of a plot begins, up to the white ground.
std::string svg_begin(int width, int height, int font_size);

/// Lines of small text, the first one at `y`.
std::string svg_lines(std::vector<std::string> const& lines, int y);
