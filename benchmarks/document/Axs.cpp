#include "Subject.h"

#include <axmDocumentFactory.h>
#include <axmNamedNodeMap.h>
#include <axmNodeList.h>
#include <axsRegister.h>

namespace
{
class Axs final : public Subject
{
public:
  Axs()
  {
    axs_register();
    utServiceName resolved;
    factory = utService::locate_service<axmDocumentFactory>(utServiceName(ut_lit("XMLService")), resolved);
  }

  bool load(std::string const& file) override
  {
    axmParseError error;
    document = factory->loadDocument(apPath(file.c_str()), axmLoadOptions(axmValidateNone), error);
    return document != nullptr;
  }

  std::size_t traverse() override
  {
    std::size_t strings = 0;
    std::shared_ptr<axmNode> node = document->getDocumentElement();
    std::shared_ptr<axmNode> const root = node;
    while (node != nullptr)
    {
      strings += strings_of(*node);
      std::shared_ptr<axmNode> next = node->getFirstChild();
      while (next == nullptr && !(*node == *root))
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
    auto const root = document->getDocumentElement();
    root->setAttribute(name_i, APSTRING("123"));
    root->setAttribute(name_d, APSTRING("1.5"));
    root->setAttribute(name_b, APSTRING("true"));
    root->setAttribute(name_s, APSTRING("some text"));
    double sum = 0;
    for (int i = 0; i < reads; i += 4)
    {
      int number = 0;
      double real = 0;
      bool flag = false;
      apString text;
      root->get_attribute(name_i, number);
      root->get_attribute(name_d, real);
      root->get_attribute(name_b, flag);
      root->get_attribute(name_s, text);
      sum += number + real + (flag ? 1 : 0) + text.length();
    }
    return sum;
  }

  long select(std::string const& xpath) override
  {
    return document->getDocumentElement()->selectNodes(apString(xpath.c_str()))->length();
  }

  void churn(int rounds) override
  {
    auto const root = document->getDocumentElement();
    apString const name = APSTRING("new");
    apString const value = APSTRING("1");
    for (int i = 0; i < rounds; ++i)
    {
      auto const element = document->createElement(name);
      element->setAttribute(name_i, value);
      root->appendChild(element);
      root->removeChild(element);
    }
  }

  bool save(std::string const& file) override { return factory->saveDocument(document, apPath(file.c_str())); }

private:
  static std::size_t strings_of(axmNode& node)
  {
    apString const node_name = node.getNodeName();
    if (node_name.c_str()[0] == L'#')
      return node.getNodeValue().empty() ? 0 : 1;
    std::size_t strings = 1;
    if (!node.hasAttributes())
      return strings;
    auto const attributes = node.getAttributes();
    for (int i = 0; auto const attribute = attributes->item(i); ++i)
    {
      apString const name = attribute->getNodeName();
      apString const value = attribute->getNodeValue();
      strings += name.empty() ? 0 : value.length() >= 0 ? 2 : 0;
    }
    return strings;
  }

  apString const name_i = APSTRING("i");
  apString const name_d = APSTRING("d");
  apString const name_b = APSTRING("b");
  apString const name_s = APSTRING("s");
  std::shared_ptr<axmDocumentFactory> factory;
  std::shared_ptr<axmDocument> document;
};
}

std::unique_ptr<Subject> make_axs()
{
  return std::make_unique<Axs>();
}
