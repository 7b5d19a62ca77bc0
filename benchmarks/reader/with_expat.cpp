#include "Events.h"

#include <expat.h>

#include <cstdio>
#include <cstring>

namespace
{
Events& events_of(void* data)
{
  return *static_cast<Events*>(data);
}

void XMLCALL on_start(void* data, XML_Char const* name, XML_Char const** attributes)
{
  Events& events = events_of(data);
  Element const* const element =
    events.start([&](std::string const& wanted) { return std::strcmp(wanted.c_str(), name) == 0; });
  if (element == nullptr || element->attributes.empty())
    return;
  std::size_t next = 0;
  for (; *attributes != nullptr; attributes += 2)
  {
    std::size_t const found = position_of(element->attributes, next,
      [&](std::string const& wanted) { return std::strcmp(wanted.c_str(), attributes[0]) == 0; });
    if (found == element->attributes.size())
      continue;
    events.digest.add(element->field + static_cast<int>(found), attributes[1]);
    next = found + 1;
  }
}

void XMLCALL on_end(void* data, XML_Char const*)
{
  events_of(data).end();
}

void XMLCALL on_characters(void* data, XML_Char const* text, int length)
{
  events_of(data).characters(text, static_cast<std::size_t>(length));
}
}

bool extract_with_expat(std::string const& file, Task const& task, Digest& digest)
{
  std::FILE* const stream = std::fopen(file.c_str(), "rb");
  if (stream == nullptr)
    return false;
  Events events(task, digest);
  XML_Parser const parser = XML_ParserCreate(nullptr);
  XML_SetUserData(parser, &events);
  XML_SetElementHandler(parser, on_start, on_end);
  XML_SetCharacterDataHandler(parser, on_characters);
  int const block = 64 * 1024;
  bool good = true;
  for (bool last = false; good && !last;)
  {
    void* const buffer = XML_GetBuffer(parser, block);
    std::size_t const got = buffer == nullptr ? 0 : std::fread(buffer, 1, block, stream);
    last = got < static_cast<std::size_t>(block);
    good = buffer != nullptr && XML_ParseBuffer(parser, static_cast<int>(got), last) == XML_STATUS_OK;
  }
  XML_ParserFree(parser);
  std::fclose(stream);
  return good;
}
