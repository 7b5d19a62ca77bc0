#include "Complaint.h"
#include "EditVerb.h"
#include "VerbOptions.h"

#include <memory>
#include <string>

namespace
{
char const description[] = "Rename the elements and attributes that an XPath expression selects, and nothing else.";

char const footer[] =
  R"(Examples:
  axm rename books.xml //book volume
  axm rename books.xml //book/@id number
  axm rename feed.xml //a:entry a:item --ns a=http://www.w3.org/2005/Atom

A prefix of the new name has to be declared in the document where the name stands and, if
--ns has it, for the same namespace. Every other byte of the document stays as it is.

Where documents are saved, and exit codes: as of axm set.)";

int rename_nodes(EditVerb& common)
{
  std::string const name = common.take_last();
  std::string const xpath = common.take_last();
  if (xpath.empty())
    return complain("rename", "XPATH and NAME are required", exit_usage);
  return common.run(xpath, [&](axsEditor& editor) { return editor.rename(xpath, name); });
}
}

void add_rename(CLI::App& app, int& exit_code)
{
  VerbOptions verb(app, "rename", description, footer);
  auto const common = std::make_shared<EditVerb>();
  common->add_to(verb, {{"XPATH", "What to rename"}, {"NAME", "The new name"}});
  verb.run([common, &exit_code] { exit_code = rename_nodes(*common); });
}
