#include "writing.h"

#include <cstdio>
#include <fstream>
#include <map>

namespace
{
std::string spaces(std::string const& text, std::size_t width)
{
  return text.size() < width ? std::string(width - text.size(), ' ') : std::string();
}

std::string first_word(std::string const& name)
{
  return name.substr(0, name.find(' '));
}

std::string colour(std::string const& library)
{
  static std::map<std::string, std::string> const colours = {{"pugixml", "#4477aa"}, {"rapidxml", "#66ccee"},
    {"expat", "#228833"}, {"libxml2", "#ccbb44"}, {"Xerces-C", "#ee6677"}};
  auto const found = colours.find(library);
  return found == colours.end() ? "#aa3377" : found->second;
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

std::string shortened(std::string const& text, std::size_t width)
{
  return text.size() <= width ? text : text.substr(0, width - 2) + "..";
}

std::string fitted(std::string const& text, std::size_t width)
{
  return padded(shortened(text, width), width);
}

std::string headings(std::vector<std::string> const& names, std::size_t indentation, std::size_t width)
{
  std::string first(indentation, ' ');
  std::string second = first;
  for (std::string const& name : names)
  {
    std::string const word = first_word(name);
    first += aligned_right(word, width);
    second += aligned_right(word.size() < name.size() ? name.substr(word.size() + 1) : "", width);
  }
  return first + '\n' + second;
}

std::vector<std::string> fills(std::vector<std::string> const& names)
{
  std::map<std::string, int> seen;
  std::vector<std::string> result;
  for (std::string const& name : names)
  {
    std::string const library = first_word(name);
    double const opacity = 1 / (1 + 0.8 * seen[colour(library)]++);
    result.push_back("fill=\"" + colour(library) + "\" fill-opacity=\"" + number(opacity, 2) + '"');
  }
  return result;
}

bool write_report(std::string const& prefix, std::string const& table, std::string const& plot)
{
  std::ofstream text(prefix + ".txt", std::ios::binary);
  text << table;
  text.close();
  std::ofstream picture(prefix + ".svg", std::ios::binary);
  picture << plot;
  picture.close();
  return text.good() && picture.good();
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

std::string svg_lines(std::vector<std::string> const& lines, int y)
{
  std::string text;
  for (std::string const& line : lines)
  {
    text +=
      "<text x=\"10\" y=\"" + std::to_string(y) + "\" font-size=\"10\" fill=\"#555555\">" + escaped(line) + "</text>\n";
    y += 13;
  }
  return text;
}
