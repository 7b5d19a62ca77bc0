#include "axmContractUtest.h"

#include "axmUtestAccess.h"
#include "axmUtestFile.h"
#include "axmUtestGroup.h"
#include "axmUtestUtils.h"

#include <string>
#include <string_view>

using namespace axmUtestAccess;

namespace
{
using Factory = std::shared_ptr<axmDocumentFactory>;
using Document = std::shared_ptr<axmDocument>;

char const file[] = "source/utest/axmContractUtestSave";

char const rich[] =
  "<r A='&lt;&amp;&quot;&apos;&#9;&#10;\xC3\xA4'><a>one &amp; two</a> <b>\xD1\x84</b><!-- c & d --><e><f/>tail</e></r>";

apPath unique(apString const& name)
{
  return axmUtestUtils::uniquify_filename(APSTRING("./contract_") + name, APSTRING("xml"));
}

Document loaded(Factory const& factory, apByteArray const& data)
{
  axmParseError error;
  return factory->loadDocument(data, axmLoadOptions(), error);
}

Document loaded(Factory const& factory, apPath const& path)
{
  axmParseError error;
  return factory->loadDocument(path, axmLoadOptions(), error);
}

void check_rich(axmUtestGroup const& group, Document const& document)
{
  auto const root = root_of(document);
  group.check(attribute_of(root, APSTRING("A")), APSTRING("<&\"'\t\n\u00E4"), "root->getAttribute(\"A\")", __LINE__,
    "an attribute survives");
  group.check(number_of_children(root), 5, "root->getChildNodes()->length() == 5", __LINE__, "the children survive");
  group.check(
    text_of(child_of(root, 0)), APSTRING("one & two"), "children->at(0)->get_text()", __LINE__, "a text survives");
  group.check(text_of(child_of(root, 1)), APSTRING(" "), "children->at(1)->get_text()", __LINE__, "a space survives");
  group.check(
    text_of(child_of(root, 2)), APSTRING("\u0444"), "children->at(2)->get_text()", __LINE__, "other letters survive");
  group.check(value_of(child_of(root, 3)), APSTRING(" c & d "), "children->at(3)->getNodeValue()", __LINE__,
    "a comment survives");
  group.check(name_of(first_of(child_of(root, 4))), APSTRING("f"), "children->at(4)->getFirstChild()->getNodeName()",
    __LINE__, "what is further down survives");
  group.check(value_of(last_of(child_of(root, 4))), APSTRING("tail"), "children->at(4)->getLastChild()->getNodeValue()",
    __LINE__, "in its order");
}
}

void axmContractUtest::test_save_memory(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmContractUtest::test_save_memory");
  auto const document = load(*factory, rich);
  if (!group.prerequisite(document != nullptr, "document.get()", __LINE__, "Prerequisite: load document"))
    return;
  apByteArray output = bytes_of("what was there before");
  group.check(
    factory->saveDocument(document, output), "factory->saveDocument(document, output)", __LINE__, "save to memory");
  check_rich(group, loaded(factory, output));
  std::string_view const bytes(output.data(), output.size());
  group.check(bytes.find("what was there before") == std::string_view::npos, "output holds nothing else", __LINE__,
    "the output is replaced");
  group.check(bytes.find("\xD1\x84") != std::string_view::npos || bytes.find("&#") != std::string_view::npos,
    "output is UTF-8", __LINE__, "a save is UTF-8");
  check_rich(group, document);
  apByteArray again;
  factory->saveDocument(document, again);
  group.check(again == output, "again == output", __LINE__, "saving changes nothing");

  auto const root = root_of(document);
  remove(root, first_of(root));
  append(root, created(document, APSTRING("added")));
  apByteArray edited;
  group.check(
    factory->saveDocument(document, edited), "factory->saveDocument(document, edited)", __LINE__, "save after edits");
  auto const copy = root_of(loaded(factory, edited));
  group.check(name_of(last_of(copy)), APSTRING("added"), "copy->getLastChild()->getNodeName()", __LINE__,
    "what was added is saved");
  group.check(number_of_children(copy), 5, "copy->getChildNodes()->length() == 5", __LINE__, "what was removed is not");
}

void axmContractUtest::test_save_file(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmContractUtest::test_save_file");
  apPath const path = unique(APSTRING("save"));
  axmUtestFile const removed_at_the_end(path);
  auto const document = load(*factory, rich);
  if (!group.prerequisite(document != nullptr, "document.get()", __LINE__, "Prerequisite: load document"))
    return;
  axmUtestUtils::write_data(path, (std::string("<old>") + std::string(10000, 'x') + "</old>").c_str());
  group.check(factory->saveDocument(document, path), "factory->saveDocument(document, path)", __LINE__,
    "save in the place of a longer file");
  check_rich(group, loaded(factory, path));

  auto const broken = factory->createDocument(APSTRING("broken"));
  auto const root = root_of(broken);
  if (root != nullptr)
    root->set_text(APSTRING("\u0001"));
  // No document holds this character, so there is nothing to save that could be loaded.
  group.check(broken != nullptr && !factory->saveDocument(broken, path), "!factory->saveDocument(broken, path)",
    __LINE__, "what no file can hold is not saved");
  group.check(name_of(root_of(loaded(factory, path))), APSTRING("r"), "root->getNodeName()", __LINE__,
    "a save that fails leaves the old file");
  apByteArray output = bytes_of("before");
  group.check(broken != nullptr && !factory->saveDocument(broken, output), "!factory->saveDocument(broken, output)",
    __LINE__, "nor is it saved to memory");
  group.check(
    output == bytes_of("before"), "output == bytes_of(\"before\")", __LINE__, "a save that fails leaves the output");

  apPath const folder("./contract_no_such_folder");
  group.check(!factory->saveDocument(document, apPath("./contract_no_such_folder/file.xml")),
    "!factory->saveDocument(document, path)", __LINE__, "a file in a folder that is missing");
  group.check(!folder.exists(), "!folder.exists()", __LINE__, "no folder is made");
  group.check(!factory->saveDocument(document, apPath(".")), "!factory->saveDocument(document, \".\")", __LINE__,
    "a folder is no file");
  check_rich(group, document);
}
