#pragma once

#include "Digest.h"
#include "Task.h"

#include <string>

// A way to take the fields of a task out of a file. Each goes the way that its library is fastest on; none may know more of
// a document than what the task says.
struct Contender
{
  char const* name;
  bool decodes; // whether entities come as what they stand for
  bool (*extract)(std::string const& file, Task const& task, Digest& digest); // false if the library reports an error
};

bool extract_with_reader(std::string const& file, Task const& task, Digest& digest);
bool extract_with_pugixml(std::string const& file, Task const& task, Digest& digest);
bool extract_with_pugixml_minimal(std::string const& file, Task const& task, Digest& digest);
bool extract_with_rapidxml(std::string const& file, Task const& task, Digest& digest);
bool extract_with_rapidxml_fastest(std::string const& file, Task const& task, Digest& digest);
bool extract_with_expat(std::string const& file, Task const& task, Digest& digest);
bool extract_with_libxml2_sax(std::string const& file, Task const& task, Digest& digest);
bool extract_with_libxml2_reader(std::string const& file, Task const& task, Digest& digest);
