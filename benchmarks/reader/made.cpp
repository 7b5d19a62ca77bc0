#include "made.h"

#include <fstream>
#include <stdexcept>

namespace
{
std::string record(std::size_t i)
{
  std::string const n = std::to_string(i);
  return "<item id=\"" + n + "\" kind=\"k" + std::to_string(i % 7) + "\"><name>Name of item " + n + "</name><value>" +
         std::to_string(i * 37 % 1000) + ".25</value></item>\n";
}
}

std::string write_document(TemporaryFolder const& folder, std::string const& name, std::string const& root)
{
  std::string const file = folder.file(name);
  std::ofstream stream(file, std::ios::binary);
  stream << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" << root << '\n';
  stream.close();
  if (!stream)
    throw std::runtime_error("cannot write " + file);
  return file;
}

std::string repeated(std::string const& part, std::size_t times)
{
  std::string text;
  text.reserve(part.size() * times);
  for (std::size_t i = 0; i < times; ++i)
    text += part;
  return text;
}

std::string records(std::size_t bytes)
{
  std::string text = "<r>\n";
  for (std::size_t i = 0; text.size() < bytes; ++i)
    text += record(i);
  return text + "</r>";
}

std::string nested_records(std::size_t bytes, std::size_t depth)
{
  std::string text = "<r>\n";
  for (std::size_t i = 0; text.size() < bytes;)
  {
    text += repeated("<d>", depth - 2);
    for (std::size_t k = 0; k < 100; ++k)
      text += record(i++);
    text += repeated("</d>", depth - 2);
  }
  return text + "</r>";
}

std::vector<std::string> write_documents(TemporaryFolder const& folder)
{
  std::string dense = "<r>\n";
  std::string wide = "<r>\n";
  std::string texts = "<r>\n";
  for (std::size_t i = 0; i < 200000; ++i)
    dense += "<line number=\"" + std::to_string(i % 3000) + "\" hits=\"" + std::to_string(i % 2) + "\"/>\n";
  for (std::size_t i = 0; i < 40000; ++i)
  {
    wide += "\t<node id=\"" + std::to_string(1000000 + i);
    for (char name = 'a'; name < 'h'; ++name)
      wide += std::string("\" ") + name + "=\"" + std::to_string(i * 7919 % 100003) + "." + std::to_string(i % 97);
    wide += "\"/>\n";
  }
  for (std::size_t i = 0; i < 10000; ++i)
    texts += "<p n=\"" + std::to_string(i) + "\"><body>" + repeated("some words of a longer text, ", 20 + i % 30) +
             "end</body></p>\n";
  return {write_document(folder, "made_records.xml", records(10000000)),
    write_document(folder, "made_nested.xml", nested_records(10000000, 16)),
    write_document(folder, "made_dense_attributes.xml", dense + "</r>"),
    write_document(folder, "made_wide_attributes.xml", wide + "</r>"),
    write_document(folder, "made_texts.xml", texts + "</r>")};
}
