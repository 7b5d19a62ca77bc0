#pragma once

#include <apPath.h>

#include <cstdio>
#include <string>
#include <vector>

// The lines of a file that stands beside the tests.
inline std::vector<std::string> lines_of_file(char const* name)
{
  std::vector<std::string> lines;
  std::FILE* const stream = apPath((std::string(AXM_UTEST_FOLDER) + "/" + name).c_str()).file_open(apPath::read_mode());
  if (stream == nullptr)
    return lines;
  std::string line;
  for (int c = std::fgetc(stream); c != EOF; c = std::fgetc(stream))
    if (c == '\n')
    {
      lines.push_back(line);
      line.clear();
    }
    else if (c != '\r')
      line += static_cast<char>(c);
  std::fclose(stream);
  return lines;
}
