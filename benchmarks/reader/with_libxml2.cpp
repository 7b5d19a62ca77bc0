#include "Bytes.h"
#include "Events.h"

#include <libxml/SAX2.h>
#include <libxml/parser.h>
#include <libxml/xmlreader.h>

namespace
{
std::string_view view(xmlChar const* text)
{
  return reinterpret_cast<char const*>(text);
}

// The name as it stands in the document.
std::string qualified(xmlChar const* prefix, xmlChar const* name)
{
  return prefix == nullptr ? std::string(view(name)) : std::string(view(prefix)) + ":" + std::string(view(name));
}

Events& events_of(void* data)
{
  return *static_cast<Events*>(data);
}

void on_start(void* data, xmlChar const* name, xmlChar const* prefix, xmlChar const*, int, xmlChar const**, int count,
  int, xmlChar const** attributes)
{
  Events& events = events_of(data);
  bool const wanted_here = prefix == nullptr ? events.start(view(name)) : events.start(qualified(prefix, name));
  if (!wanted_here)
    return;
  for (std::string const& wanted : events.task.attributes)
    for (int i = 0; i < count; ++i)
    {
      xmlChar const** const attribute = attributes + 5 * i;
      bool const same =
        attribute[1] == nullptr ? wanted == view(attribute[0]) : wanted == qualified(attribute[1], attribute[0]);
      if (same)
        events.digest.add(
          {reinterpret_cast<char const*>(attribute[3]), static_cast<std::size_t>(attribute[4] - attribute[3])});
    }
}

void on_end(void* data, xmlChar const*, xmlChar const*, xmlChar const*)
{
  events_of(data).end();
}

void on_characters(void* data, xmlChar const* text, int length)
{
  events_of(data).characters({reinterpret_cast<char const*>(text), static_cast<std::size_t>(length)});
}
}

bool extract_with_libxml2_sax(std::string const& file, Task const& task, Digest& digest)
{
  Bytes bytes(file);
  Events events(task, digest);
  xmlSAXHandler handler = {};
  handler.initialized = XML_SAX2_MAGIC;
  handler.startElementNs = on_start;
  handler.endElementNs = on_end;
  handler.characters = on_characters;
  handler.cdataBlock = on_characters;
  handler.getEntity = xmlSAX2GetEntity;
  return xmlSAXUserParseMemory(&handler, &events, bytes.data(), static_cast<int>(bytes.size())) == 0;
}

bool extract_with_libxml2_reader(std::string const& file, Task const& task, Digest& digest)
{
  xmlTextReaderPtr const reader = xmlReaderForFile(file.c_str(), nullptr, XML_PARSE_NOENT | XML_PARSE_HUGE);
  if (reader == nullptr)
    return false;
  Events events(task, digest);
  int state = xmlTextReaderRead(reader);
  for (; state == 1; state = xmlTextReaderRead(reader))
    switch (xmlTextReaderNodeType(reader))
    {
    case XML_READER_TYPE_ELEMENT:
      if (events.start(view(xmlTextReaderConstName(reader))))
        for (std::string const& wanted : task.attributes)
        {
          xmlChar* const value = xmlTextReaderGetAttribute(reader, reinterpret_cast<xmlChar const*>(wanted.c_str()));
          if (value != nullptr)
            digest.add(view(value));
          xmlFree(value);
        }
      if (xmlTextReaderIsEmptyElement(reader) == 1)
        events.end();
      break;
    case XML_READER_TYPE_END_ELEMENT:
      events.end();
      break;
    case XML_READER_TYPE_TEXT:
    case XML_READER_TYPE_CDATA:
    case XML_READER_TYPE_SIGNIFICANT_WHITESPACE:
      events.characters(view(xmlTextReaderConstValue(reader)));
      break;
    default:
      break;
    }
  xmlFreeTextReader(reader);
  return state == 0;
}
