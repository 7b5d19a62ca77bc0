#include "Digest.h"

#include <algorithm>
#include <iterator>

void Digest::element(std::string_view name)
{
  close();
  add('e', name);
}

void Digest::attribute(std::string name, std::string value)
{
  if (name != "xmlns" && name.compare(0, 6, "xmlns:") != 0)
    attributes.emplace_back(std::move(name), std::move(value));
}

void Digest::text(std::string_view data)
{
  if (data.find_first_not_of(" \t\r\n") != std::string_view::npos)
    pending += data;
}

void Digest::comment(std::string_view data)
{
  close();
  add('c', data);
}

void Digest::value(std::string_view text)
{
  close();
  std::string dense;
  std::copy_if(text.begin(), text.end(), std::back_inserter(dense),
    [](char c) { return c != ' ' && c != '\t' && c != '\r' && c != '\n'; });
  add('v', dense);
}

Digest::Sum Digest::sum()
{
  close();
  return {hash, strings};
}

void Digest::close()
{
  std::sort(attributes.begin(), attributes.end());
  for (auto const& [name, value] : attributes)
  {
    add('a', name);
    add('v', value);
  }
  attributes.clear();
  if (!pending.empty())
    add('t', pending);
  pending.clear();
}

void Digest::add(char kind, std::string_view text)
{
  ++strings;
  mix({&kind, 1});
  mix(text);
  mix({"\0", 1});
}

// FNV-1a
void Digest::mix(std::string_view bytes)
{
  for (char const byte : bytes)
    hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001B3;
}
