#include "BuiltInEngine.h"
#include "Complaint.h"
#include "Loading.h"
#include "OutputFile.h"

#include <axmElement.h>
#include <axmNodeList.h>

#include <CLI/CLI.hpp>

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

The expression is XPath 1.0, seen from the root element. Of one that is no path, as in
count(//book), the value is written. Prefixes in it are those that the root element binds.
White space between elements is not part of the document as it is loaded.

The exit code is 1 if the document cannot be read or nothing is selected, 2 for wrong usage,
such as an expression that is none.)";

struct Request
{
  std::string file;
  std::string xpath;
  std::string attribute;
  bool as_text = false;
  bool as_xml = false;
};

void write_line(OutputFile& output, apString const& text)
{
  utString const utf8 = text.to_utf8();
  output.write({utf8.c_str(), static_cast<std::size_t>(utf8.length())});
  output.write("\n");
}

bool write_node(axmNode const& node, Request const& request, OutputFile& output)
{
  apString text;
  if (request.attribute.empty())
    text = request.as_xml ? node.get_xml() : node.get_text();
  else if (!node.get_attribute(apString(request.attribute.c_str()), text))
    return false;
  write_line(output, text);
  return true;
}

// For an expression that selects no nodes.
int write_value(axmElement& root, Request const& request, OutputFile& output)
{
  XPathAnswer const answer = built_in_answer(root, request.xpath);
  if (!answer.fault.empty())
    return complain(request.xpath, answer.fault, exit_usage);
  if (!answer.value)
    return complain(request.xpath, "selects nothing", exit_bad_input);
  if (request.as_xml || !request.attribute.empty())
    return complain(request.xpath, "gives a value and no nodes", exit_usage);
  output.write(*answer.value + "\n");
  return exit_good;
}

int write_nodes(axmNodeList& nodes, Request const& request, OutputFile& output)
{
  bool written = false;
  while (std::shared_ptr<axmElement> const node = nodes.next_node())
    written = write_node(*node, request, output) || written;
  return written ? exit_good
                 : complain(request.xpath, "no selected node has the attribute " + request.attribute, exit_bad_input);
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

  OutputFile output{std::string()};
  std::shared_ptr<axmElement> const root = document->getDocumentElement();
  std::shared_ptr<axmNodeList> const found = root->selectNodes(apString(request.xpath.c_str()));
  int const result = found->isEmpty() ? write_value(*root, request, output) : write_nodes(*found, request, output);
  return output.finish() ? result : complain("standard output", "cannot be written", exit_bad_input);
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
