// select_nodes.cpp: shows what an XPath expression selects in an XML file: select_nodes books.xml "//book[year > 1890]/title"

#include <axm.h>
#include <axsRegister.h>
#include <axsXPath.h>

#include <iostream>

int main(int argc, char** argv)
{
  if (argc != 3)
  {
    std::cerr << "usage: select_nodes FILE XPATH\n";
    return 2;
  }

  axs_register();
  auto const document = axm::load_file(argv[1]);
  if (!document)
  {
    std::cerr << document.error() << '\n';
    return 1;
  }

  // Every engine selects nodes; values, and what is wrong with an expression, are asked of this engine.
  axsXPath::Value value;
  axsXPathError error;
  if (!axsXPath::evaluate(*(*document)->getDocumentElement(), axm::wide(argv[2]), value, error))
  {
    std::cerr << "character " << error.position << ": " << error.message << '\n';
    return 1;
  }
  for (auto const& node : value.nodes)
    std::cout << axm::utf8(node->getNodeName()) << ": " << axm::text(node) << '\n';
  if (value.type != axsXPathType::node_set)
    std::cout << axm::utf8(value.text) << '\n';
  return 0;
}
