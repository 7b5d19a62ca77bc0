#include "Subject.h"

#include <pugixml.hpp>

namespace
{
class Pugixml final : public Subject
{
public:
  bool load(std::string const& file) override { return document.load_file(file.c_str()); }

  std::size_t traverse() override
  {
    std::size_t strings = 0;
    pugi::xml_node const root = document.document_element();
    for (pugi::xml_node node = root; node;)
    {
      strings += strings_of(node);
      pugi::xml_node next = node.first_child();
      while (!next && node != root)
      {
        next = node.next_sibling();
        if (!next)
          node = node.parent();
      }
      node = next;
    }
    return strings;
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
  static std::size_t strings_of(pugi::xml_node const& node)
  {
    if (node.type() != pugi::node_element)
      return std::string(node.value()).empty() ? 0 : 1;
    std::size_t strings = std::string(node.name()).empty() ? 0 : 1;
    for (pugi::xml_attribute const attribute : node.attributes())
    {
      std::string const name = attribute.name();
      std::string const value = attribute.value();
      strings += name.empty() ? 0 : value.size() + 1 > 0 ? 2 : 0;
    }
    return strings;
  }

  pugi::xml_document document;
};
}

std::unique_ptr<Subject> make_pugixml()
{
  return std::make_unique<Pugixml>();
}
