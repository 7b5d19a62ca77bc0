#include "RowContender.h"
#include "RowMatch.h"

#include <expat.h>

#include <cstdio>

namespace
{
RowMatch& match_of(void* data)
{
  return *static_cast<RowMatch*>(data);
}

void XMLCALL on_start(void* data, XML_Char const* name, XML_Char const** attributes)
{
  RowMatch& match = match_of(data);
  if (RowTask::Wanted const* const element = match.start(name))
    for (; *attributes != nullptr; attributes += 2)
      match.attribute(*element, attributes[0], attributes[1]);
}

void XMLCALL on_end(void* data, XML_Char const*)
{
  match_of(data).end();
}

void XMLCALL on_characters(void* data, XML_Char const* text, int length)
{
  match_of(data).characters(text, static_cast<std::size_t>(length));
}
}

bool rows_with_expat(RowTask const& task, RowDigest& digest)
{
  std::FILE* const stream = std::fopen(task.file.c_str(), "rb");
  if (stream == nullptr)
    return false;
  RowMatch match(task, digest);
  XML_Parser const parser = XML_ParserCreate(nullptr);
  XML_SetUserData(parser, &match);
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
