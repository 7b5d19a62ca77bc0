#include "Xml2Judge.h"

#include "EventPieces.h"

#include <libxml/parser.h>
#include <libxml/tree.h>

#include <memory>

namespace
{
struct Free
{
  void operator()(xmlParserCtxtPtr context) const noexcept { xmlFreeParserCtxt(context); }
  void operator()(xmlDocPtr document) const noexcept { xmlFreeDoc(document); }
  void operator()(xmlChar* text) const noexcept { xmlFree(text); }
};

void say_nothing(void*, char const*, ...) {}

// Keeps the last error, which a warning after it would hide.
void note(void* context, xmlError* error)
{
  if (error->level >= XML_ERR_ERROR && error->message != nullptr)
    *static_cast<std::string*>(static_cast<xmlParserCtxtPtr>(context)->_private) = error->message;
}

std::string text_of(xmlChar const* text)
{
  return text == nullptr ? std::string() : std::string(reinterpret_cast<char const*>(text));
}

std::string name_of(xmlNs const* name_space, xmlChar const* name)
{
  bool const has_prefix = name_space != nullptr && name_space->prefix != nullptr;
  return (has_prefix ? text_of(name_space->prefix) + ':' : std::string()) + text_of(name);
}

// Goes over the tree and tells of it as it was written.
class Walk
{
public:
  // Whether all of it could be told of.
  bool over(xmlDoc const& document)
  {
    xmlNode const* node = document.children;
    while (node != nullptr)
    {
      if (!begin(*node))
        return false;
      if (node->type == XML_ELEMENT_NODE && node->children != nullptr)
      {
        node = node->children;
        continue;
      }
      while (node != nullptr && node->next == nullptr)
      {
        end(*node);
        node = node->parent->type == XML_ELEMENT_NODE ? node->parent : nullptr;
      }
      if (node == nullptr)
        break;
      end(*node);
      node = node->next;
    }
    return true;
  }

  std::string const& all() const noexcept { return events.all(); }

private:
  bool begin(xmlNode const& node)
  {
    switch (node.type)
    {
    case XML_TEXT_NODE:
      events.text(text_of(node.content));
      return true;
    case XML_ELEMENT_NODE:
      start(node);
      return true;
    case XML_CDATA_SECTION_NODE:
      events.start_cdata();
      events.text(text_of(node.content));
      events.end_cdata();
      return true;
    case XML_COMMENT_NODE:
      events.comment(text_of(node.content));
      return true;
    case XML_PI_NODE:
      events.instruction(text_of(node.name), text_of(node.content));
      return true;
    default:
      // What is left of a reference to an entity was not expanded.
      return node.type == XML_DTD_NODE;
    }
  }

  void start(xmlNode const& element)
  {
    std::vector<EventText::Attribute> attributes;
    for (xmlNs const* bound = element.nsDef; bound != nullptr; bound = bound->next)
      attributes.emplace_back(
        bound->prefix == nullptr ? "xmlns" : "xmlns:" + text_of(bound->prefix), text_of(bound->href));
    for (xmlAttr const* at = element.properties; at != nullptr; at = at->next)
    {
      std::unique_ptr<xmlChar, Free> const value(xmlNodeGetContent(reinterpret_cast<xmlNode const*>(at)));
      attributes.emplace_back(name_of(at->ns, at->name), text_of(value.get()));
    }
    events.start(name_of(element.ns, element.name), std::move(attributes));
  }

  void end(xmlNode const& node)
  {
    if (node.type == XML_ELEMENT_NODE)
      events.end();
  }

  EventPieces events;
};
}

bool Xml2Judge::read(std::string_view document, std::string& events)
{
  xmlSetExternalEntityLoader([](char const*, char const*, xmlParserCtxtPtr) -> xmlParserInputPtr { return nullptr; });
  xmlSetGenericErrorFunc(nullptr, say_nothing);
  std::unique_ptr<xmlParserCtxt, Free> const context(xmlNewParserCtxt());
  std::string said;
  context->_private = &said;
  context->sax->serror = note;
  std::unique_ptr<xmlDoc, Free> const read(xmlCtxtReadMemory(context.get(), document.data(),
    static_cast<int>(document.size()), "document", nullptr,
    XML_PARSE_NOENT | XML_PARSE_DTDATTR | XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_HUGE));
  Walk walk;
  if (read == nullptr || context->wellFormed == 0 || context->nsWellFormed == 0 || !walk.over(*read))
  {
    events = said.empty() ? "it is refused" : said;
    return false;
  }
  events = walk.all();
  return true;
}
