#include "documents.h"

#include <utUtf8.h>

#include <fstream>
#include <iterator>
#include <random>

namespace
{
template <class Part>
void make_document(std::string const& file, std::size_t bytes, Part const& part)
{
  std::ofstream out(file, std::ios::binary);
  out << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<root>\n";
  std::size_t size = 0;
  for (int i = 0; size < bytes; ++i)
  {
    std::string const text = part(i);
    out << text;
    size += text.size();
  }
  out << "</root>\n";
}

std::string record(int i)
{
  std::string const n = std::to_string(i);
  return "  <record id=\"" + n + "\">\n    <name>Name of " + n + "</name>\n    <amount>" +
         std::to_string(static_cast<long>(i) * 37 % 9999) +
         ".50</amount>\n    <date>2024-05-17</date>\n    <comment>A short remark &amp; more</comment>\n  </record>\n";
}

std::string item(int i)
{
  std::string const n = std::to_string(i);
  return "  <item id=\"" + n + "\" name=\"name" + n + "\" lat=\"42.5" + n + "\" lon=\"1.5" + n +
         "\" visible=\"true\" version=\"3\" user=\"someone\" changed=\"2024-05-17T12:00:00Z\"/>\n";
}

std::string paragraph(int i)
{
  std::string const words = "The quick brown fox jumps over the lazy dog and runs away into the deep dark wood. ";
  return "  <p>" + words + words + "<em>" + std::to_string(i) + "</em> " + words + words + words + "</p>\n";
}

// A script as far as a sentence of it goes.
struct Script
{
  char32_t first;
  unsigned letters;
  unsigned longest; // word
  char const* between;
  char const* end;
};

std::string sentence(Script const& script, std::mt19937& draw)
{
  std::string text;
  for (int word = 0; word < 20; ++word)
  {
    text += word == 0 ? "" : script.between;
    for (unsigned left = 2 + static_cast<unsigned>(draw()) % (script.longest - 1); left > 0; --left)
      utUtf8::append(script.first + static_cast<char32_t>(draw()) % script.letters, text);
  }
  return text + script.end;
}

void make_sentences(std::string const& file, std::size_t bytes, Script const& script)
{
  std::mt19937 draw(1);
  make_document(
    file, bytes, [&](int i) { return "  <p id=\"" + std::to_string(i) + "\">" + sentence(script, draw) + "</p>\n"; });
}

std::string beginning(std::string const& file)
{
  std::ifstream stream(file, std::ios::binary);
  std::string text(64 * 1024, '\0');
  stream.read(text.data(), static_cast<std::streamsize>(text.size()));
  text.resize(static_cast<std::size_t>(stream.gcount()));
  return text;
}
}

void make_records(std::string const& file, std::size_t bytes)
{
  make_document(file, bytes, record);
}

void make_attributes(std::string const& file, std::size_t bytes)
{
  make_document(file, bytes, item);
}

void make_text(std::string const& file, std::size_t bytes)
{
  make_document(file, bytes, paragraph);
}

void make_russian(std::string const& file, std::size_t bytes)
{
  make_sentences(file, bytes, {0x430, 32, 10, " ", "."});
}

void make_chinese(std::string const& file, std::size_t bytes)
{
  make_sentences(file, bytes, {0x4E00, 0x5000, 9, "\xEF\xBC\x8C", "\xE3\x80\x82"});
}

std::string first_name(std::string const& file)
{
  std::string const text = beginning(file);
  int elements = 0;
  for (std::size_t at = text.find('<'); at != std::string::npos; at = text.find('<', at + 1))
    if (text.compare(at, 4, "<!--") == 0)
      at = text.find("-->", at);
    else if (text.find_first_of("?!/", at + 1) != at + 1 && ++elements == 2)
      return text.substr(at + 1, text.find_first_of(" \t\r\n/>", at + 1) - at - 1);
  return "*";
}

Traits traits_of(std::string const& file)
{
  std::string const text = beginning(file);
  return {text.find("<!ENTITY") != std::string::npos || text.find("<!ATTLIST") != std::string::npos,
    text.find("xmlns=") != std::string::npos};
}
