#include "ExpatJudge.h"

#include "EventPieces.h"

#include <expat.h>

#include <memory>

namespace
{
// What parts the pieces of names in events; XML has no such character.
constexpr char separator = '\x01';

// The name as it was written, from "uri<separator>local<separator>prefix", of which only the local part is always there.
std::string name_of(std::string_view expanded)
{
  std::size_t const local = expanded.find(separator);
  if (local == std::string_view::npos)
    return std::string(expanded);
  std::size_t const prefix = expanded.find(separator, local + 1);
  if (prefix == std::string_view::npos)
    return std::string(expanded.substr(local + 1));
  return std::string(expanded.substr(prefix + 1)) + ':' + std::string(expanded.substr(local + 1, prefix - local - 1));
}

// Takes down what expat tells: what is bound comes before the element that binds it.
class Taker
{
public:
  void bind(XML_Char const* prefix, XML_Char const* uri)
  {
    bound.emplace_back(prefix == nullptr ? "xmlns" : std::string("xmlns:") + prefix, uri == nullptr ? "" : uri);
  }
  void start(XML_Char const* name, XML_Char const** given)
  {
    std::vector<EventText::Attribute> attributes;
    attributes.swap(bound);
    for (; *given != nullptr; given += 2)
      attributes.emplace_back(name_of(given[0]), given[1]);
    events.start(name_of(name), std::move(attributes));
  }

  EventPieces events;

private:
  std::vector<EventText::Attribute> bound;
};

Taker& taker_of(void* data)
{
  return *static_cast<Taker*>(data);
}

EventPieces& events_of(void* data)
{
  return taker_of(data).events;
}

void listen(XML_ParserStruct& parser, Taker& taker)
{
  XML_SetUserData(&parser, &taker);
  XML_SetReturnNSTriplet(&parser, 1);
  XML_SetNamespaceDeclHandler(
    &parser, [](void* data, XML_Char const* prefix, XML_Char const* uri) { taker_of(data).bind(prefix, uri); },
    nullptr);
  XML_SetElementHandler(
    &parser,
    [](void* data, XML_Char const* name, XML_Char const** attributes) { taker_of(data).start(name, attributes); },
    [](void* data, XML_Char const*) { events_of(data).end(); });
  XML_SetCharacterDataHandler(&parser, [](void* data, XML_Char const* text, int length)
    { events_of(data).text(std::string_view(text, static_cast<std::size_t>(length))); });
  XML_SetCdataSectionHandler(
    &parser, [](void* data) { events_of(data).start_cdata(); }, [](void* data) { events_of(data).end_cdata(); });
  XML_SetCommentHandler(&parser, [](void* data, XML_Char const* text) { events_of(data).comment(text); });
  XML_SetProcessingInstructionHandler(&parser,
    [](void* data, XML_Char const* target, XML_Char const* text) { events_of(data).instruction(target, text); });
  XML_SetDoctypeDeclHandler(
    &parser,
    [](void* data, XML_Char const*, XML_Char const*, XML_Char const*, int) { events_of(data).start_doctype(); },
    [](void* data) { events_of(data).end_doctype(); });
}
}

bool ExpatJudge::read(std::string_view document, std::string& events)
{
  std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> const parser(
    XML_ParserCreateNS(nullptr, separator), XML_ParserFree);
  Taker taker;
  listen(*parser, taker);
  if (XML_Parse(parser.get(), document.data(), static_cast<int>(document.size()), 1) != XML_STATUS_OK)
  {
    events = XML_ErrorString(XML_GetErrorCode(parser.get()));
    return false;
  }
  events = taker.events.all();
  return true;
}
