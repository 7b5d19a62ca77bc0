#include "Subject.h"

#include <xercesc/dom/DOM.hpp>
#include <xercesc/framework/LocalFileFormatTarget.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/util/PlatformUtils.hpp>

#include <cstdlib>

namespace
{
namespace xc = xercesc;
using Text = std::basic_string<XMLCh>;

Text text_of(XMLCh const* text)
{
  return text == nullptr ? Text() : Text(text);
}

std::string narrow(Text const& text)
{
  return std::string(text.begin(), text.end());
}

class Xerces final : public Subject
{
public:
  Xerces()
  {
    xc::XMLPlatformUtils::Initialize();
    parser = std::make_unique<xc::XercesDOMParser>();
    parser->setValidationScheme(xc::XercesDOMParser::Val_Never);
    parser->setDoNamespaces(true);
    parser->setLoadExternalDTD(false);
  }

  bool load(std::string const& file) override
  {
    parser->parse(file.c_str());
    document = parser->getDocument();
    return document != nullptr && document->getDocumentElement() != nullptr;
  }

  std::size_t traverse() override
  {
    std::size_t strings = 0;
    xc::DOMNode* const root = document->getDocumentElement();
    for (xc::DOMNode* node = root; node != nullptr;)
    {
      strings += strings_of(*node);
      xc::DOMNode* next = node->getFirstChild();
      while (next == nullptr && node != root)
      {
        next = node->getNextSibling();
        if (next == nullptr)
          node = node->getParentNode();
      }
      node = next;
    }
    return strings;
  }

  double read_typed(int reads) override
  {
    xc::DOMElement* const root = document->getDocumentElement();
    root->setAttribute(u"i", u"123");
    root->setAttribute(u"d", u"1.5");
    root->setAttribute(u"b", u"true");
    root->setAttribute(u"s", u"some text");
    double sum = 0;
    for (int i = 0; i < reads; i += 4)
    {
      sum += static_cast<double>(std::strtol(narrow(text_of(root->getAttribute(u"i"))).c_str(), nullptr, 10));
      sum += std::strtod(narrow(text_of(root->getAttribute(u"d"))).c_str(), nullptr);
      sum += text_of(root->getAttribute(u"b")) == u"true" ? 1 : 0;
      sum += static_cast<double>(text_of(root->getAttribute(u"s")).size());
    }
    return sum;
  }

  // What it calls XPath are a few location paths.
  long select(std::string const&) override { return -1; }

  void churn(int rounds) override
  {
    xc::DOMElement* const root = document->getDocumentElement();
    for (int i = 0; i < rounds; ++i)
    {
      xc::DOMElement* const element = document->createElement(u"new");
      element->setAttribute(u"i", u"1");
      root->appendChild(element);
      root->removeChild(element)->release();
    }
  }

  bool save(std::string const& file) override
  {
    xc::DOMImplementation* const implementation = xc::DOMImplementationRegistry::getDOMImplementation(u"LS");
    auto* const serializer = static_cast<xc::DOMImplementationLS*>(implementation)->createLSSerializer();
    auto* const output = static_cast<xc::DOMImplementationLS*>(implementation)->createLSOutput();
    xc::LocalFileFormatTarget target(file.c_str());
    output->setByteStream(&target);
    bool const saved = serializer->write(document, output);
    output->release();
    serializer->release();
    return saved;
  }

private:
  static std::size_t strings_of(xc::DOMNode& node)
  {
    if (node.getNodeType() != xc::DOMNode::ELEMENT_NODE)
      return text_of(node.getNodeValue()).empty() ? 0 : 1;
    std::size_t strings = text_of(node.getNodeName()).empty() ? 0 : 1;
    xc::DOMNamedNodeMap* const attributes = node.getAttributes();
    for (XMLSize_t i = 0; i < attributes->getLength(); ++i)
    {
      Text const name = text_of(attributes->item(i)->getNodeName());
      Text const value = text_of(attributes->item(i)->getNodeValue());
      strings += name.empty() ? 0 : value.size() + 1 > 0 ? 2 : 0;
    }
    return strings;
  }

  std::unique_ptr<xc::XercesDOMParser> parser;
  xc::DOMDocument* document = nullptr;
};
}

std::unique_ptr<Subject> make_xerces()
{
  return std::make_unique<Xerces>();
}
