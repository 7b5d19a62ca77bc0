#include "Subject.h"

#include <xercesc/dom/DOM.hpp>
#include <xercesc/framework/LocalFileFormatTarget.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/TransService.hpp>

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

std::string utf8(XMLCh const* text)
{
  xc::TranscodeToStr const bytes(text, "UTF-8");
  return std::string(reinterpret_cast<char const*>(bytes.str()), bytes.length());
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
    parser->setCreateEntityReferenceNodes(false);
  }

  bool load(std::string const& file) override
  {
    parser->parse(file.c_str());
    document = parser->getDocument();
    return document != nullptr && document->getDocumentElement() != nullptr;
  }

  std::size_t traverse() override
  {
    std::size_t length = 0;
    for_all([&](xc::DOMNode& node) { length += length_of(node); });
    return length;
  }

  Digest::Sum digest() override
  {
    Digest digest;
    for_all([&](xc::DOMNode& node) { add(node, digest); });
    return digest.sum();
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
  Digest::Sum digest_selection(std::string const&) override { return {}; }

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
  template <class Visit>
  void for_all(Visit const& visit)
  {
    xc::DOMNode* const root = document->getDocumentElement();
    for (xc::DOMNode* node = root; node != nullptr;)
    {
      visit(*node);
      xc::DOMNode* next = node->getFirstChild();
      while (next == nullptr && node != root)
      {
        next = node->getNextSibling();
        if (next == nullptr)
          node = node->getParentNode();
      }
      node = next;
    }
  }

  static std::size_t length_of(xc::DOMNode& node)
  {
    if (node.getNodeType() != xc::DOMNode::ELEMENT_NODE)
      return text_of(node.getNodeValue()).size();
    std::size_t length = text_of(node.getNodeName()).size();
    xc::DOMNamedNodeMap* const attributes = node.getAttributes();
    for (XMLSize_t i = 0; i < attributes->getLength(); ++i)
      length +=
        text_of(attributes->item(i)->getNodeName()).size() + text_of(attributes->item(i)->getNodeValue()).size();
    return length;
  }

  static void add(xc::DOMNode& node, Digest& digest)
  {
    if (node.getNodeType() == xc::DOMNode::TEXT_NODE || node.getNodeType() == xc::DOMNode::CDATA_SECTION_NODE)
      digest.text(utf8(node.getNodeValue()));
    else if (node.getNodeType() != xc::DOMNode::ELEMENT_NODE)
      digest.comment(utf8(node.getNodeValue()));
    else
    {
      digest.element(utf8(node.getNodeName()));
      xc::DOMNamedNodeMap* const attributes = node.getAttributes();
      for (XMLSize_t i = 0; i < attributes->getLength(); ++i)
        digest.attribute(utf8(attributes->item(i)->getNodeName()), utf8(attributes->item(i)->getNodeValue()));
    }
  }

  std::unique_ptr<xc::XercesDOMParser> parser;
  xc::DOMDocument* document = nullptr;
};
}

std::unique_ptr<Subject> make_xerces()
{
  return std::make_unique<Xerces>();
}
