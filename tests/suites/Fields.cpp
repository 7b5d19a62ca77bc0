#include "Fields.h"

std::vector<std::string> split_fields(std::string const& line)
{
  std::size_t end = line.size();
  if (end > 0 && line[end - 1] == '\r')
    --end;
  std::vector<std::string> fields;
  std::size_t begin = 0;
  while (true)
  {
    std::size_t const tab = line.find('\t', begin);
    if (tab == std::string::npos || tab >= end)
      break;
    fields.push_back(line.substr(begin, tab - begin));
    begin = tab + 1;
  }
  fields.push_back(line.substr(begin, end - begin));
  return fields;
}
