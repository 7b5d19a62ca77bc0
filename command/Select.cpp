#include "Loading.h"
#include "Verb.h"

#include <axmElement.h>
#include <axmNodeList.h>

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>
#include <string>

namespace
{
char const description[] = "Write what an XPath expression selects from a document, a line for each node.";

char const footer[] =
  R"(Examples:
  axm select books.xml //book/title
  axm select books.xml //book --attribute id
  axm select books.xml "//book[@id='b1']" --xml

The expression is XPath 1.0, seen from the root element; it must select nodes. Prefixes in
it are those that the root element binds. White space between elements is not part of the
document as it is loaded.

The exit code is 1 if the document cannot be read or nothing is selected, 2 for wrong usage.)";

struct Request
{
  std::string file;
  std::string xpath;
  std::string attribute;
  bool as_text = false;
  bool as_xml = false;
};

bool write_node(axmNode const& node, Request const& request)
{
  apString text;
  if (!request.attribute.empty())
  {
    if (!node.get_attribute(apString(request.attribute.c_str()), text))
      return false;
  }
  else
    text = request.as_xml ? node.get_xml() : node.get_text();
  std::cout << text.to_utf8() << '\n';
  return true;
}

int select(Request const& request)
{
  std::shared_ptr<axmDocumentFactory> const factory = engine_or_complain();
  if (factory == nullptr)
    return exit_bad_input;
  std::shared_ptr<axmDocument> const document =
    load_or_complain(*factory, request.file, axmLoadOptions(axmValidateNone));
  if (document == nullptr)
    return exit_bad_input;

  auto const found = document->getDocumentElement()->selectNodes(apString(request.xpath.c_str()));
  bool written = false;
  while (std::shared_ptr<axmElement> const node = found->next_node())
    written = write_node(*node, request) || written;
  return written ? exit_good : exit_bad_input;
}
}

void add_select(CLI::App& app, int& exit_code)
{
  CLI::App* const verb = app.add_subcommand("select", description);
  auto const request = std::make_shared<Request>();
  verb->add_option("FILE", request->file, "The document")->required();
  verb->add_option("XPATH", request->xpath, "What to select")->required();
  CLI::Option* const text = verb->add_flag("--text", request->as_text, "Write the text of each node (the default)");
  CLI::Option* const xml = verb->add_flag("--xml", request->as_xml, "Write each node as XML");
  CLI::Option* const attribute =
    verb->add_option("--attribute", request->attribute, "Write the attribute NAME of each node that has it");
  text->excludes(xml)->excludes(attribute);
  xml->excludes(attribute);
  verb->footer(footer);
  verb->callback([request, &exit_code] { exit_code = select(*request); });
}
