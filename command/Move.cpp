#include "Complaint.h"
#include "EditVerb.h"
#include "VerbOptions.h"

#include <memory>
#include <string>

namespace
{
char const description[] = "Move what an XPath expression selects to another place of its document, as it is written.";

char const footer[] =
  R"(Examples:
  axm move books.xml "//book[@id='b1']" --before "//book[1]"
  axm move books.xml "//book[@old]" --into /library/archive

Elements, comments and processing instructions can be moved, several in their order, to one
place. Lines go with them as in axm delete and axm insert. What would be in another namespace
there is not moved. Every other byte of the document stays as it is.

Where documents are saved, and exit codes: as of axm set.)";

int move_nodes(EditVerb& common)
{
  std::string const xpath = common.take_last();
  EditVerb::Target const target = common.target();
  if (xpath.empty())
    return complain("move", "XPATH is required", exit_usage);
  if (target.xpath.empty())
    return complain("move", "one of --before, --after, --into and --into-first is required", exit_usage);
  return common.run(xpath, [&](axsEditor& editor) { return editor.move(xpath, target.place, target.xpath); });
}
}

void add_move(CLI::App& app, int& exit_code)
{
  VerbOptions verb(app, "move", description, footer);
  auto const common = std::make_shared<EditVerb>();
  common->add_to(verb, {{"XPATH", "What to move"}});
  common->add_targets(verb);
  verb.run([common, &exit_code] { exit_code = move_nodes(*common); });
}
