#include "Subject.h"

#include <pugixml.hpp>

namespace
{
class Pugixml final : public Subject
{
public:
  bool load(std::string const& file) override
  {
    return document.load_file(file.c_str(), pugi::parse_default | pugi::parse_comments | pugi::parse_pi);
  }

  std::size_t traverse() override
  {
    std::size_t length = 0;
    for_all([&](pugi::xml_node const& node) { length += length_of(node); });
    return length;
  }

  Digest::Sum digest() override
  {
    Digest digest;
    for_all([&](pugi::xml_node const& node) { add(node, digest); });
    return digest.sum();
  }

  double read_typed(int reads) override
  {
    pugi::xml_node root = document.document_element();
    root.append_attribute("i") = "123";
    root.append_attribute("d") = "1.5";
    root.append_attribute("b") = "true";
    root.append_attribute("s") = "some text";
    double sum = 0;
    for (int i = 0; i < reads; i += 4)
      sum += root.attribute("i").as_int() + root.attribute("d").as_double() + (root.attribute("b").as_bool() ? 1 : 0) +
             static_cast<double>(std::string(root.attribute("s").as_string()).size());
    return sum;
  }

  long select(std::string const& xpath) override
  {
    return static_cast<long>(document.document_element().select_nodes(xpath.c_str()).size());
  }

  Digest::Sum digest_selection(std::string const& xpath) override
  {
    Digest digest;
    pugi::xpath_query const text("string()");
    for (pugi::xpath_node const& found : document.document_element().select_nodes(xpath.c_str()))
    {
      digest.element(found.node().name());
      digest.value(text.evaluate_string(found));
    }
    return digest.sum();
  }

  void churn(int rounds) override
  {
    pugi::xml_node root = document.document_element();
    for (int i = 0; i < rounds; ++i)
    {
      pugi::xml_node element = root.append_child("new");
      element.append_attribute("i") = "1";
      root.remove_child(element);
    }
  }

  bool save(std::string const& file) override { return document.save_file(file.c_str(), "", pugi::format_raw); }

private:
  template <class Visit>
  void for_all(Visit const& visit)
  {
    pugi::xml_node const root = document.document_element();
    for (pugi::xml_node node = root; node;)
    {
      visit(node);
      pugi::xml_node next = node.first_child();
      while (!next && node != root)
      {
        next = node.next_sibling();
        if (!next)
          node = node.parent();
      }
      node = next;
    }
  }

  static std::size_t length_of(pugi::xml_node const& node)
  {
    if (node.type() != pugi::node_element)
      return std::string(node.value()).size();
    std::size_t length = std::string(node.name()).size();
    for (pugi::xml_attribute const attribute : node.attributes())
      length += std::string(attribute.name()).size() + std::string(attribute.value()).size();
    return length;
  }

  static void add(pugi::xml_node const& node, Digest& digest)
  {
    if (node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata)
      digest.text(node.value());
    else if (node.type() != pugi::node_element)
      digest.comment(node.value());
    else
    {
      digest.element(node.name());
      for (pugi::xml_attribute const attribute : node.attributes())
        digest.attribute(attribute.name(), attribute.value());
    }
  }

  pugi::xml_document document;
};
}

std::unique_ptr<Subject> make_pugixml()
{
  return std::make_unique<Pugixml>();
}
