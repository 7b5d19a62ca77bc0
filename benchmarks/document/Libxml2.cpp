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
    document = xmlReadFile(file.c_str(), nullptr, XML_PARSE_HUGE | XML_PARSE_NOBLANKS);
    return document != nullptr;
  }

  std::size_t traverse() override
  {
    std::size_t strings = 0;
    xmlNode* const root = xmlDocGetRootElement(document);
    for (xmlNode* node = root; node != nullptr;)
    {
      strings += strings_of(*node);
      xmlNode* next = node->type == XML_ELEMENT_NODE ? node->children : nullptr;
      while (next == nullptr && node != root)
      {
        next = node->next;
        if (next == nullptr)
          node = node->parent;
      }
      node = next;
    }
    return strings;
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
  std::size_t strings_of(xmlNode& node)
  {
    if (node.type != XML_ELEMENT_NODE)
      return take(xmlNodeGetContent(&node)).empty() ? 0 : 1;
    std::size_t strings = std::string(reinterpret_cast<char const*>(node.name)).empty() ? 0 : 1;
    for (xmlAttr* attribute = node.properties; attribute != nullptr; attribute = attribute->next)
    {
      std::string const name = reinterpret_cast<char const*>(attribute->name);
      std::string const value = take(xmlNodeListGetString(document, attribute->children, 1));
      strings += name.empty() ? 0 : value.size() + 1 > 0 ? 2 : 0;
    }
    return strings;
  }

  xmlDoc* document = nullptr;
};
}

std::unique_ptr<Subject> make_libxml2()
{
  return std::make_unique<Libxml2>();
}
