#include "writing.h"

#include <cstdio>

namespace
{
std::string spaces(std::string const& text, std::size_t width)
{
  return text.size() < width ? std::string(width - text.size(), ' ') : std::string();
}
}

std::string number(double value, int digits)
{
  char text[64];
  std::snprintf(text, sizeof text, "%.*f", digits, value);
  return text;
}

std::string padded(std::string const& text, std::size_t width)
{
  return text + spaces(text, width);
}

std::string aligned_right(std::string const& text, std::size_t width)
{
  return spaces(text, width) + text;
}

std::string escaped(std::string const& text)
{
  std::string result;
  for (char const c : text)
    result += c == '<' ? "&lt;" : c == '&' ? "&amp;" : std::string(1, c);
  return result;
}

std::string svg_begin(int width, int height, int font_size)
{
  return "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + std::to_string(width) + "\" height=\"" +
         std::to_string(height) + "\" font-family=\"sans-serif\" font-size=\"" + std::to_string(font_size) +
         "\">\n<rect width=\"100%\" height=\"100%\" fill=\"white\"/>\n";
}
