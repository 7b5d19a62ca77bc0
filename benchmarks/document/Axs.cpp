#include "Subject.h"

#include <axmDocumentFactory.h>
#include <axmNamedNodeMap.h>
#include <axmNodeList.h>
#include <axmTextNode.h>
#include <axsRegister.h>

#include <utility>
#include <vector>

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
    for_all([&](axmNode& node) { return add(node, length); });
    return length;
  }

  Digest::Sum digest() override
  {
    Digest digest;
    for_all([&](axmNode& node) { return add(node, digest); });
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
  // Every node from the root down, in the order of the document; `visit` says whether it may have children.
  template <class Visit>
  void for_all(Visit const& visit)
  {
    // The way down is kept and not asked for again, as a pointer that is at hand costs nothing; and what is known to have
    // no children is not asked for them.
    std::vector<std::shared_ptr<axmNode>> way;
    std::shared_ptr<axmNode> node = document->getDocumentElement();
    visit(*node);
    way.push_back(node);
    node = node->getFirstChild();
    while (node != nullptr)
    {
      std::shared_ptr<axmNode> next;
      if (visit(*node))
        next = node->getFirstChild();
      if (next != nullptr)
        way.push_back(std::move(node));
      else
        next = node->getNextSibling();
      for (; next == nullptr && way.size() > 1; next = node->getNextSibling())
      {
        node = std::move(way.back());
        way.pop_back();
      }
      node = std::move(next);
    }
  }

  // Whether the node may have children.
  static bool add(axmNode& node, std::size_t& sum)
  {
    apString const name = node.getNodeName();
    if (name.c_str()[0] == L'#')
    {
      sum += length(node.getNodeValue());
      return false;
    }
    sum += length(name);
    if (node.hasAttributes())
    {
      auto const attributes = node.getAttributes();
      for (int i = 0; auto const attribute = attributes->item(i); ++i)
        sum += length(attribute->getNodeName()) + length(attribute->getNodeValue());
    }
    return true;
  }

  static bool add(axmNode& node, Digest& digest)
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
      return true;
    }
    return false;
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
