#include "Complaint.h"
#include "EditVerb.h"
#include "VerbOptions.h"

#include <memory>
#include <string>

namespace
{
char const description[] = "Delete what an XPath expression selects, and nothing else.";

char const footer[] =
  R"(Examples:
  axm delete books.xml "//book[@id='b1']"
  axm delete *.xml //@lang
  axm delete books.xml '//comment()' --output -

Elements, attributes, texts, comments and processing instructions can be deleted. What stands
alone on its lines, but for blanks, takes them with it, so that no empty line stays, except
where xml:space="preserve" holds. Every other byte of the document stays as it is.

Where documents are saved, and exit codes: as of axm set.)";

int delete_nodes(EditVerb& common)
{
  std::string const xpath = common.take_last();
  if (xpath.empty())
    return complain("delete", "XPATH is required", exit_usage);
  return common.run(xpath, [&](axsEditor& editor) { return editor.remove(xpath); });
}
}

void add_delete(CLI::App& app, int& exit_code)
{
  VerbOptions verb(app, "delete", description, footer);
  auto const common = std::make_shared<EditVerb>();
  common->add_to(verb, {{"XPATH", "What to delete"}});
  verb.run([common, &exit_code] { exit_code = delete_nodes(*common); });
}
