#include "Contender.h"

#include <xercesc/framework/XMLGrammarPoolImpl.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/sax2/DefaultHandler.hpp>
#include <xercesc/sax2/SAX2XMLReader.hpp>
#include <xercesc/sax2/XMLReaderFactory.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLUni.hpp>

namespace
{
using namespace xercesc;

struct Errors final : DefaultHandler
{
  void error(SAXParseException const&) override { ++count; }
  void fatalError(SAXParseException const&) override { ++count; }

  int count = 0;
};

void start_library()
{
  static bool const is_ready = (XMLPlatformUtils::Initialize(), true);
  static_cast<void>(is_ready);
}

class Dom final : public Contender
{
public:
  explicit Dom(std::string const& schema)
  {
    start_library();
    parser = std::make_unique<XercesDOMParser>();
    parser->setDoNamespaces(true);
    parser->setDoSchema(true);
    parser->setValidationScheme(XercesDOMParser::Val_Always);
    parser->setIdentityConstraintChecking(true);
    parser->setLoadSchema(false);
    parser->loadGrammar(schema.c_str(), Grammar::SchemaGrammarType, true);
    parser->useCachedGrammarInParse(true);
    parser->setErrorHandler(&errors);
  }

  bool run(std::string const& document) override
  {
    errors.count = 0;
    parser->parse(document.c_str());
    parser->resetDocumentPool();
    return errors.count == 0;
  }

private:
  Errors errors;
  std::unique_ptr<XercesDOMParser> parser;
};

class Sax final : public Contender
{
public:
  explicit Sax(std::string const& schema)
  {
    start_library();
    reader.reset(XMLReaderFactory::createXMLReader());
    reader->setFeature(XMLUni::fgXercesDynamic, false);
    reader->setFeature(XMLUni::fgSAX2CoreValidation, true);
    reader->setFeature(XMLUni::fgXercesSchema, true);
    reader->setFeature(XMLUni::fgXercesIdentityConstraintChecking, true);
    reader->setFeature(XMLUni::fgXercesLoadSchema, false);
    reader->loadGrammar(schema.c_str(), Grammar::SchemaGrammarType, true);
    reader->setFeature(XMLUni::fgXercesUseCachedGrammarInParse, true);
    reader->setErrorHandler(&errors);
  }

  bool run(std::string const& document) override
  {
    errors.count = 0;
    reader->parse(document.c_str());
    return errors.count == 0;
  }

private:
  Errors errors;
  std::unique_ptr<SAX2XMLReader> reader;
};
}

std::unique_ptr<Contender> make_xerces_dom(std::string const& schema)
{
  return std::make_unique<Dom>(schema);
}

std::unique_ptr<Contender> make_xerces_sax(std::string const& schema)
{
  return std::make_unique<Sax>(schema);
}
