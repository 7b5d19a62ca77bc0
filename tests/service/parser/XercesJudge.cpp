#include "XercesJudge.h"

#include "EventPieces.h"

#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/framework/MemoryManager.hpp>
#include <xercesc/sax/EntityResolver.hpp>
#include <xercesc/sax2/Attributes.hpp>
#include <xercesc/sax2/DefaultHandler.hpp>
#include <xercesc/sax2/SAX2XMLReader.hpp>
#include <xercesc/sax2/XMLReaderFactory.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/TransService.hpp>
#include <xercesc/util/XMLUni.hpp>

#include <memory>
#include <unordered_set>

namespace
{
namespace xc = xercesc;

std::string text_of(XMLCh const* text, XMLSize_t length)
{
  if (length == 0)
    return {};
  xc::TranscodeToStr const utf8(text, length, "UTF-8");
  return std::string(reinterpret_cast<char const*>(utf8.str()), utf8.length());
}

std::string text_of(XMLCh const* text)
{
  return text == nullptr ? std::string() : text_of(text, xc::XMLString::stringLen(text));
}

// Everything outside of the document is empty: only after an external subset it tells where the document type ends.
class EmptyEntities final : public xc::EntityResolver
{
public:
  xc::InputSource* resolveEntity(XMLCh const*, XMLCh const*) override
  {
    return new xc::MemBufInputSource(nullptr, 0, "empty", false);
  }
};

// Takes down what Xerces-C tells.
class Taker final : public xc::DefaultHandler
{
public:
  void startElement(XMLCh const*, XMLCh const*, XMLCh const* name, xc::Attributes const& given) override
  {
    std::vector<EventText::Attribute> attributes;
    for (XMLSize_t i = 0; i < given.getLength(); ++i)
      attributes.emplace_back(text_of(given.getQName(i)), text_of(given.getValue(i)));
    events.start(text_of(name), std::move(attributes));
  }
  void endElement(XMLCh const*, XMLCh const*, XMLCh const*) override { events.end(); }
  void characters(XMLCh const* text, XMLSize_t length) override { events.text(text_of(text, length)); }
  void ignorableWhitespace(XMLCh const* text, XMLSize_t length) override { characters(text, length); }
  void startCDATA() override { events.start_cdata(); }
  void endCDATA() override { events.end_cdata(); }
  void startDTD(XMLCh const*, XMLCh const*, XMLCh const*) override { events.start_doctype(); }
  void endDTD() override { events.end_doctype(); }
  void comment(XMLCh const* text, XMLSize_t length) override { events.comment(text_of(text, length)); }
  void processingInstruction(XMLCh const* target, XMLCh const* data) override
  {
    events.instruction(text_of(target), text_of(data));
  }

  void error(xc::SAXParseException const& error) override { fatalError(error); }
  void fatalError(xc::SAXParseException const& error) override
  {
    if (refusal.empty())
      refusal = text_of(error.getMessage());
  }

  std::string const& all() const noexcept { return events.all(); }
  std::string const& why_refused() const noexcept { return refusal; }

private:
  EventPieces events;
  std::string refusal;
};

// Gives back what Xerces-C forgets of a document that is wrong.
class Memory final : public xc::MemoryManager
{
public:
  ~Memory() override
  {
    for (void* const block : blocks)
      ::operator delete(block);
  }
  xc::MemoryManager* getExceptionMemoryManager() override { return xc::XMLPlatformUtils::fgMemoryManager; }
  void* allocate(XMLSize_t size) override { return *blocks.insert(::operator new(size)).first; }
  void deallocate(void* block) override
  {
    blocks.erase(block);
    ::operator delete(block);
  }

private:
  std::unordered_set<void*> blocks;
};

// The library stands from the first document to the end of the program.
struct Library
{
  Library() { xc::XMLPlatformUtils::Initialize(); }
  ~Library() { xc::XMLPlatformUtils::Terminate(); }
};

std::unique_ptr<xc::SAX2XMLReader> make_reader(Memory& memory)
{
  std::unique_ptr<xc::SAX2XMLReader> reader(xc::XMLReaderFactory::createXMLReader(&memory));
  reader->setFeature(xc::XMLUni::fgSAX2CoreNameSpaces, true);
  reader->setFeature(xc::XMLUni::fgSAX2CoreNameSpacePrefixes, true);
  reader->setFeature(xc::XMLUni::fgSAX2CoreValidation, false);
  reader->setFeature(xc::XMLUni::fgXercesSchema, false);
  return reader;
}
}

bool XercesJudge::read(std::string_view document, std::string& events)
{
  static Library const library;
  Taker taker;
  Memory memory;
  std::unique_ptr<xc::SAX2XMLReader> const reader = make_reader(memory);
  reader->setContentHandler(&taker);
  reader->setLexicalHandler(&taker);
  reader->setErrorHandler(&taker);
  EmptyEntities empty;
  reader->setEntityResolver(&empty);
  xc::MemBufInputSource const source(
    reinterpret_cast<XMLByte const*>(document.data()), document.size(), "document", false);
  try
  {
    reader->parse(source);
  }
  catch (xc::XMLException const& error)
  {
    events = "it ends: " + text_of(error.getMessage());
    return false;
  }
  catch (xc::SAXException const& error)
  {
    events = "it ends: " + text_of(error.getMessage());
    return false;
  }
  events = taker.why_refused().empty() ? taker.all() : taker.why_refused();
  return taker.why_refused().empty();
}
