#pragma once

#include <map>
#include <string>
#include <vector>

/// What the verb table is asked for.
struct TableRequest
{
  std::vector<std::string> files;
  std::string path;
  std::vector<std::string> columns;
  std::string format = "csv";
  std::string repeat = "first"; // or "join=SEP", "rows"
  std::map<std::string, std::string> namespaces;
  std::string missing; // what stands for a value that a record does not have
  std::string output;
  bool header = false;
  std::string index; // the file that axm split wrote
  int part = -1;     // one of its parts
};
