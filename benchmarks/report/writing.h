#pragma once

#include <cstddef>
#include <string>

/// What the reports of the benchmarks write their tables and plots with.
std::string number(double value, int digits);

/// With spaces after the text, or before it, up to `width`; a longer text as it is.
std::string padded(std::string const& text, std::size_t width);
std::string aligned_right(std::string const& text, std::size_t width);

/// As the text of an SVG element.
std::string escaped(std::string const& text);

/// How the file of a plot begins, up to the white ground.
std::string svg_begin(int width, int height, int font_size);
