// Shows what an XPath expression selects in an XML file: select_nodes books.xml "//book[year > 1890]/title"

#include <axmDocumentFactory.h>
#include <axmNodeList.h>
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
  utServiceName resolved;
  auto const factory = utService::locate_service<axmDocumentFactory>(utServiceName(ut_lit("XMLService")), resolved);
  axmParseError parse_error;
  auto const document = factory->loadDocument(apPath(argv[1]), axmLoadOptions(axmValidateNone), parse_error);
  if (document == nullptr)
  {
    std::cerr << parse_error.message().to_utf8() << '\n';
    return 1;
  }

  // Every engine selects nodes; what was wrong with an expression, or what gives no nodes, is asked of this engine.
  auto const nodes = document->getDocumentElement()->selectNodes(apString(argv[2]));
  while (auto const node = nodes->next_node())
    std::cout << node->getNodeName().to_utf8() << ": " << node->get_text().to_utf8() << '\n';
  if (!nodes->isEmpty())
    return 0;

  axsXPath::Value value;
  axsXPathError error;
  if (!axsXPath::evaluate(*document->getDocumentElement(), apString(argv[2]), value, error))
  {
    std::cerr << "character " << error.position << ": " << error.message << '\n';
    return 1;
  }
  if (value.type != axsXPathType::node_set)
    std::cout << value.text.to_utf8() << '\n';
  return 0;
}
