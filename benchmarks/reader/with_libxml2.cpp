#include "Bytes.h"
#include "Events.h"

#include <libxml/SAX2.h>
#include <libxml/parser.h>
#include <libxml/parserInternals.h>
#include <libxml/xmlreader.h>

#include <cstring>

namespace
{
char const* chars(xmlChar const* text)
{
  return reinterpret_cast<char const*>(text);
}

// Whether prefix and name are those of a name as it stands in the document.
bool is_named(std::string const& wanted, xmlChar const* prefix, xmlChar const* name)
{
  if (prefix == nullptr)
    return std::strcmp(wanted.c_str(), chars(name)) == 0;
  std::size_t const length = std::strlen(chars(prefix));
  return wanted.size() > length && wanted[length] == ':' && wanted.compare(0, length, chars(prefix)) == 0 &&
         std::strcmp(wanted.c_str() + length + 1, chars(name)) == 0;
}

Events& events_of(void* data)
{
  return *static_cast<Events*>(data);
}

void on_start(void* data, xmlChar const* name, xmlChar const* prefix, xmlChar const*, int, xmlChar const**, int count,
  int, xmlChar const** attributes)
{
  Events& events = events_of(data);
  Element const* const element =
    events.start([&](std::string const& wanted) { return is_named(wanted, prefix, name); });
  if (element == nullptr || element->attributes.empty())
    return;
  std::size_t next = 0;
  for (; count > 0; --count, attributes += 5)
  {
    std::size_t const found = position_of(element->attributes, next,
      [&](std::string const& wanted) { return is_named(wanted, attributes[1], attributes[0]); });
    if (found == element->attributes.size())
      continue;
    events.digest.add(element->field + static_cast<int>(found),
      {chars(attributes[3]), static_cast<std::size_t>(attributes[4] - attributes[3])});
    next = found + 1;
  }
}

void on_end(void* data, xmlChar const*, xmlChar const*, xmlChar const*)
{
  events_of(data).end();
}

void on_characters(void* data, xmlChar const* text, int length)
{
  events_of(data).characters(chars(text), static_cast<std::size_t>(length));
}

void read_attributes(xmlTextReaderPtr reader, Element const& element, Digest& digest)
{
  std::size_t next = 0;
  while (xmlTextReaderMoveToNextAttribute(reader) == 1)
  {
    char const* const name = chars(xmlTextReaderConstName(reader));
    std::size_t const found = position_of(
      element.attributes, next, [&](std::string const& wanted) { return std::strcmp(wanted.c_str(), name) == 0; });
    if (found == element.attributes.size())
      continue;
    digest.add(element.field + static_cast<int>(found), chars(xmlTextReaderConstValue(reader)));
    next = found + 1;
  }
}
}

bool extract_with_libxml2_sax(std::string const& file, Task const& task, Digest& digest)
{
  Bytes bytes(file);
  Events events(task, digest);
  xmlParserCtxtPtr const parser = xmlCreateMemoryParserCtxt(bytes.data(), static_cast<int>(bytes.size()));
  if (parser == nullptr)
    return false;
  xmlSAXHandler& handler = *parser->sax;
  handler = {};
  handler.initialized = XML_SAX2_MAGIC;
  handler.startElementNs = on_start;
  handler.endElementNs = on_end;
  handler.characters = on_characters;
  handler.cdataBlock = on_characters;
  handler.getEntity = xmlSAX2GetEntity;
  xmlCtxtUseOptions(parser, XML_PARSE_NOENT | XML_PARSE_HUGE);
  parser->userData = &events;
  bool const good = xmlParseDocument(parser) == 0;
  xmlFreeParserCtxt(parser);
  return good;
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
    {
      bool const is_empty = xmlTextReaderIsEmptyElement(reader) == 1;
      char const* const name = chars(xmlTextReaderConstName(reader));
      Element const* const element =
        events.start([&](std::string const& wanted) { return std::strcmp(wanted.c_str(), name) == 0; });
      if (element != nullptr && !element->attributes.empty())
        read_attributes(reader, *element, digest);
      if (is_empty)
        events.end();
      break;
    }
    case XML_READER_TYPE_END_ELEMENT:
      events.end();
      break;
    case XML_READER_TYPE_TEXT:
    case XML_READER_TYPE_CDATA:
    case XML_READER_TYPE_SIGNIFICANT_WHITESPACE:
    {
      char const* const text = chars(xmlTextReaderConstValue(reader));
      events.characters(text, std::strlen(text));
      break;
    }
    default:
      break;
    }
  xmlFreeTextReader(reader);
  return state == 0;
}
