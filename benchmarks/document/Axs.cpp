#include "Subject.h"

#include <axmDocumentFactory.h>
#include <axmNamedNodeMap.h>
#include <axmNodeList.h>
#include <axmTextNode.h>
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
    std::size_t length = 0;
    for_all([&](axmNode& node) { length += length_of(node); });
    return length;
  }

  Digest::Sum digest() override
  {
    Digest digest;
    for_all([&](axmNode& node) { add(node, digest); });
    return digest.sum();
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

  Digest::Sum digest_selection(std::string const& xpath) override
  {
    Digest digest;
    auto const found = document->getDocumentElement()->selectNodes(apString(xpath.c_str()));
    while (auto const element = found->next_node())
    {
      digest.element(utf8(element->getNodeName()));
      digest.value(utf8(element->get_text()));
    }
    return digest.sum();
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
  template <class Visit>
  void for_all(Visit const& visit)
  {
    std::shared_ptr<axmNode> node = document->getDocumentElement();
    std::shared_ptr<axmNode> const root = node;
    while (node != nullptr)
    {
      visit(*node);
      std::shared_ptr<axmNode> next = node->getFirstChild();
      while (next == nullptr && !(*node == *root))
      {
        next = node->getNextSibling();
        if (next == nullptr)
          node = node->getParentNode();
      }
      node = std::move(next);
    }
  }

  static std::size_t length_of(axmNode& node)
  {
    apString const name = node.getNodeName();
    if (name.c_str()[0] == L'#')
      return length(node.getNodeValue());
    std::size_t sum = length(name);
    if (!node.hasAttributes())
      return sum;
    auto const attributes = node.getAttributes();
    for (int i = 0; auto const attribute = attributes->item(i); ++i)
      sum += length(attribute->getNodeName()) + length(attribute->getNodeValue());
    return sum;
  }

  static void add(axmNode& node, Digest& digest)
  {
    std::string const name = utf8(node.getNodeName());
    if (dynamic_cast<axmTextNode*>(&node) != nullptr)
      digest.text(utf8(node.getNodeValue()));
    else if (dynamic_cast<axmElement*>(&node) == nullptr)
      digest.comment(utf8(node.getNodeValue()));
    else
    {
      digest.element(name);
      auto const attributes = node.getAttributes();
      for (int i = 0; auto const attribute = attributes->item(i); ++i)
        digest.attribute(utf8(attribute->getNodeName()), utf8(attribute->getNodeValue()));
    }
  }

  static std::size_t length(apString const& text) { return static_cast<std::size_t>(text.length()); }

  static std::string utf8(apString const& text) { return std::string(text.to_utf8().view()); }

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
