#include "Complaint.h"
#include "EditVerb.h"
#include "VerbOptions.h"

#include <memory>
#include <string>

namespace
{
char const description[] = "Insert a piece of XML beside or into what an XPath expression selects, and nothing else.";

char const footer[] =
  R"(Examples:
  axm insert books.xml "<book id='b9'/>" --into /library
  axm insert books.xml "<!-- checked -->" --before "//book[1]"
  axm insert books.xml "<p:note>late</p:note>" --after //book --ns p=urn:notes

The fragment is what may stand in an element. Its prefixes have to be declared in it or in the
document where it is put and, if --ns has them, for the same namespace. Beside what stands alone
on its lines it gets a line of its own, with the same indentation. Every other byte of the
document stays as it is.

Where documents are saved, and exit codes: as of axm set.)";

int insert(EditVerb& common)
{
  std::string const fragment = common.take_last();
  EditVerb::Target const target = common.target();
  if (fragment.empty())
    return complain("insert", "FRAGMENT is required", exit_usage);
  if (target.xpath.empty())
    return complain("insert", "one of --before, --after, --into and --into-first is required", exit_usage);
  return common.run(
    target.xpath, [&](axsEditor& editor) { return editor.insert(target.xpath, target.place, fragment); });
}
}

void add_insert(CLI::App& app, int& exit_code)
{
  VerbOptions verb(app, "insert", description, footer);
  auto const common = std::make_shared<EditVerb>();
  common->add_to(verb, {{"FRAGMENT", "What to insert"}});
  common->add_targets(verb);
  verb.run([common, &exit_code] { exit_code = insert(*common); });
}
