#pragma once

#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

// What is taken out of a document: of each record, some attributes and the text of some children.
struct Task
{
  std::vector<std::string> path; // the names from the root to the record
  std::vector<std::string> attributes;
  std::vector<std::string> children;

  std::string name() const
  {
    std::string text;
    for (std::string const& step : path)
      text += (text.empty() ? "" : "/") + step;
    for (std::string const& attribute : attributes)
      text += " @" + attribute;
    for (std::string const& child : children)
      text += " " + child;
    return text;
  }
};

// Takes the values of a task as they are found, and makes sure that nobody leaves one out or need not have looked.
class Digest
{
public:
  void add(std::string_view value)
  {
    ++values;
    bytes += value.size();
    if (!value.empty())
      hash = hash * 31 + static_cast<unsigned char>(value.front()) * 256u + static_cast<unsigned char>(value.back());
    if (whole)
      add_whole(value);
  }

  // The same values, whatever was done about entities and white space.
  bool agrees_with(Digest const& other) const { return values == other.values && normal == other.normal; }

  bool operator==(Digest const& other) const
  {
    return values == other.values && bytes == other.bytes && hash == other.hash;
  }
  bool operator!=(Digest const& other) const { return !(*this == other); }

  bool whole = false; // also look at every character: for the comparison of contenders, which is not timed
  std::uint64_t values = 0;
  std::uint64_t bytes = 0;
  std::uint64_t hash = 0;

private:
  void add_whole(std::string_view value);

  std::uint64_t normal = 0;
};

// A way to take fields out of a file.
struct Contender
{
  char const* name;
  // False where the contender cannot do it.
  bool (*extract)(std::string const& file, Task const& task, Digest& digest);
};

bool extract_with_reader(std::string const& file, Task const& task, Digest& digest);
bool extract_with_pugixml(std::string const& file, Task const& task, Digest& digest);
bool extract_with_pugixml_minimal(std::string const& file, Task const& task, Digest& digest);
bool extract_with_rapidxml(std::string const& file, Task const& task, Digest& digest);
bool extract_with_rapidxml_fastest(std::string const& file, Task const& task, Digest& digest);
bool extract_with_expat(std::string const& file, Task const& task, Digest& digest);
bool extract_with_libxml2_sax(std::string const& file, Task const& task, Digest& digest);
bool extract_with_libxml2_reader(std::string const& file, Task const& task, Digest& digest);

// The tasks that suit a document: its most frequent records, one task with attributes and one with children if it has
// such, most promising first.
std::vector<Task> find_tasks(std::string const& file);
