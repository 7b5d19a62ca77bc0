#include "Subject.h"

#include <libxml/parser.h>
#include <libxml/tree.h>
#include <libxml/xpath.h>

#include <cstdlib>

namespace
{
xmlChar const* as_xml(char const* text)
{
  return reinterpret_cast<xmlChar const*>(text);
}

std::string take(xmlChar* text)
{
  std::string const taken = text == nullptr ? "" : reinterpret_cast<char const*>(text);
  xmlFree(text);
  return taken;
}

class Libxml2 final : public Subject
{
public:
  ~Libxml2() override { xmlFreeDoc(document); }

  bool load(std::string const& file) override
  {
    document = xmlReadFile(file.c_str(), nullptr,
      XML_PARSE_HUGE | XML_PARSE_NOBLANKS | XML_PARSE_NOENT | XML_PARSE_DTDATTR | XML_PARSE_NONET | XML_PARSE_NOERROR |
        XML_PARSE_NOWARNING);
    return document != nullptr;
  }

  std::size_t traverse() override
  {
    std::size_t length = 0;
    for_all([&](xmlNode& node) { length += length_of(node); });
    return length;
  }

  Digest::Sum digest() override
  {
    Digest digest;
    for_all([&](xmlNode& node) { add(node, digest); });
    return digest.sum();
  }

  double read_typed(int reads) override
  {
    xmlNode* const root = xmlDocGetRootElement(document);
    xmlSetProp(root, as_xml("i"), as_xml("123"));
    xmlSetProp(root, as_xml("d"), as_xml("1.5"));
    xmlSetProp(root, as_xml("b"), as_xml("true"));
    xmlSetProp(root, as_xml("s"), as_xml("some text"));
    double sum = 0;
    for (int i = 0; i < reads; i += 4)
    {
      sum += static_cast<double>(std::strtol(take(xmlGetProp(root, as_xml("i"))).c_str(), nullptr, 10));
      sum += std::strtod(take(xmlGetProp(root, as_xml("d"))).c_str(), nullptr);
      sum += take(xmlGetProp(root, as_xml("b"))) == "true" ? 1 : 0;
      sum += static_cast<double>(take(xmlGetProp(root, as_xml("s"))).size());
    }
    return sum;
  }

  long select(std::string const& xpath) override
  {
    xmlXPathContext* const context = xmlXPathNewContext(document);
    context->node = xmlDocGetRootElement(document);
    xmlXPathObject* const found = xmlXPathEvalExpression(as_xml(xpath.c_str()), context);
    long const count = found == nullptr || found->nodesetval == nullptr ? 0 : found->nodesetval->nodeNr;
    xmlXPathFreeObject(found);
    xmlXPathFreeContext(context);
    return count;
  }

  Digest::Sum digest_selection(std::string const& xpath) override
  {
    Digest digest;
    xmlXPathContext* const context = xmlXPathNewContext(document);
    context->node = xmlDocGetRootElement(document);
    xmlXPathObject* const found = xmlXPathEvalExpression(as_xml(xpath.c_str()), context);
    for (int i = 0; i < found->nodesetval->nodeNr; ++i)
    {
      xmlNode const& node = *found->nodesetval->nodeTab[i];
      digest.element(name_of(node.name, node.ns));
      digest.value(take(xmlNodeGetContent(found->nodesetval->nodeTab[i])));
    }
    xmlXPathFreeObject(found);
    xmlXPathFreeContext(context);
    return digest.sum();
  }

  void churn(int rounds) override
  {
    xmlNode* const root = xmlDocGetRootElement(document);
    for (int i = 0; i < rounds; ++i)
    {
      xmlNode* const element = xmlNewDocNode(document, nullptr, as_xml("new"), nullptr);
      xmlSetProp(element, as_xml("i"), as_xml("1"));
      xmlAddChild(root, element);
      xmlUnlinkNode(element);
      xmlFreeNode(element);
    }
  }

  bool save(std::string const& file) override { return xmlSaveFileEnc(file.c_str(), document, "UTF-8") >= 0; }

private:
  template <class Visit>
  void for_all(Visit const& visit)
  {
    xmlNode* const root = xmlDocGetRootElement(document);
    for (xmlNode* node = root; node != nullptr;)
    {
      visit(*node);
      xmlNode* next = node->type == XML_ELEMENT_NODE ? node->children : nullptr;
      while (next == nullptr && node != root)
      {
        next = node->next;
        if (next == nullptr)
          node = node->parent;
      }
      node = next;
    }
  }

  std::size_t length_of(xmlNode& node)
  {
    if (node.type != XML_ELEMENT_NODE)
      return take(xmlNodeGetContent(&node)).size();
    std::size_t length = name_of(node.name, node.ns).size();
    for (xmlAttr* attribute = node.properties; attribute != nullptr; attribute = attribute->next)
      length += name_of(attribute->name, attribute->ns).size() + value_of(*attribute).size();
    return length;
  }

  void add(xmlNode& node, Digest& digest)
  {
    if (node.type == XML_TEXT_NODE || node.type == XML_CDATA_SECTION_NODE)
      digest.text(take(xmlNodeGetContent(&node)));
    else if (node.type != XML_ELEMENT_NODE)
      digest.comment(take(xmlNodeGetContent(&node)));
    else
    {
      digest.element(name_of(node.name, node.ns));
      for (xmlAttr* attribute = node.properties; attribute != nullptr; attribute = attribute->next)
        digest.attribute(name_of(attribute->name, attribute->ns), value_of(*attribute));
    }
  }

  static std::string name_of(xmlChar const* local, xmlNs const* name_space)
  {
    std::string const name = reinterpret_cast<char const*>(local);
    return name_space == nullptr || name_space->prefix == nullptr
             ? name
             : reinterpret_cast<char const*>(name_space->prefix) + (":" + name);
  }

  std::string value_of(xmlAttr& attribute) { return take(xmlNodeListGetString(document, attribute.children, 1)); }

  xmlDoc* document = nullptr;
};
}

std::unique_ptr<Subject> make_libxml2()
{
  return std::make_unique<Libxml2>();
}
