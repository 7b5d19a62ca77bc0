#include "axmLoadUtest.h"

#include "axmCommentNode.h"
#include "axmSaveObstacles.h"
#include "axmTextNode.h"
#include "axmUtestAccess.h"
#include "axmUtestFile.h"
#include "axmUtestGroup.h"
#include "axmUtestUtils.h"
#include "axmXmlTables.h"
#include "model/axmModelRandom.h"
#include "model/axmModelText.h"

#include <utUnitTest.h>

#include <algorithm>
#include <cctype>
#include <climits>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

using namespace axmUtestAccess;

namespace
{
using Factory = std::shared_ptr<axmDocumentFactory>;
using Document = std::shared_ptr<axmDocument>;

char const file[] = "source/utest/axmLoadUtest";

apPath unique(apString const& name, apString const& extension)
{
  return axmUtestUtils::uniquify_filename(APSTRING("./load_") + name, extension);
}

apByteArray bytes_in(std::string const& text)
{
  return apByteArray(text.data(), text.size());
}

// What came of a load: the document, and an error if and only if there is none.
struct Load
{
  Document document;
  axmParseError error;
  bool is_consistent;
};

// Lines and columns are counted from 1, or not known.
bool is_counted(int number)
{
  return number == -1 || number >= 1;
}

// Whether a document comes with an error that is as it was made, and none with one that says something.
bool is_consistent(Document const& document, axmParseError const& error)
{
  if (document == nullptr)
    return !error.invalid() && !error.message().empty() && is_counted(error.line_number()) &&
           is_counted(error.column_number());
  return error.invalid() && error.message().empty() && error.url().empty() && error.line_number() == -1 &&
         error.column_number() == -1;
}

Load load_of(Factory const& factory, std::string const& text, axmLoadOptions const& options = axmLoadOptions())
{
  Load result = {nullptr, axmParseError(), false};
  result.document = factory->loadDocument(bytes_in(text), options, result.error);
  result.is_consistent = is_consistent(result.document, result.error);
  return result;
}

// Any bytes, zero too.
void write(apPath const& path, std::string const& bytes)
{
  std::FILE* const stream = path.file_open(apPath::write_mode());
  if (stream == nullptr)
    return;
  std::fwrite(bytes.data(), 1, bytes.size(), stream);
  std::fclose(stream);
}

Load load_of_file(Factory const& factory, std::string const& text, axmLoadOptions const& options = axmLoadOptions())
{
  apPath const path = unique(APSTRING("file"), APSTRING("xml"));
  axmUtestFile const removed_at_the_end(path);
  write(path, text);
  Load result = {nullptr, axmParseError(), false};
  result.document = factory->loadDocument(path, options, result.error);
  result.is_consistent = is_consistent(result.document, result.error);
  return result;
}

bool loads(Load const& load)
{
  return load.is_consistent && load.document != nullptr;
}

bool fails(Load const& load)
{
  return load.is_consistent && load.document == nullptr;
}

axmLoadOptions with_limit(int limit)
{
  axmLoadOptions options;
  options.set_entity_expansion_limit(limit);
  return options;
}

std::string many(int count, std::string const& text)
{
  std::string result;
  for (int number = 0; number < count; ++number)
    result += text;
  return result;
}

// Nodes as a text: elements in brackets with what is in them, texts beside each other as one.
apString shape(Node const& top)
{
  apString result;
  int steps = 0;
  Node node = top;
  while (node != nullptr && ++steps < 1000)
  {
    if (std::dynamic_pointer_cast<axmTextNode>(node) != nullptr)
      result += node->getNodeValue();
    else if (std::dynamic_pointer_cast<axmCommentNode>(node) != nullptr)
      result += APSTRING("{") + node->getNodeValue() + APSTRING("}");
    else
      result += APSTRING("<") + node->getNodeName() + APSTRING(">");
    if (node->getFirstChild() != nullptr)
    {
      node = node->getFirstChild();
      continue;
    }
    while (node != nullptr && !(*node == *top) && node->getNextSibling() == nullptr)
      node = node->getParentNode();
    node = node == nullptr || *node == *top ? nullptr : node->getNextSibling();
  }
  return result;
}
}

axmLoadUtest::axmLoadUtest(utUnitTest* given_tester) : tester(given_tester) {}
axmLoadUtest::~axmLoadUtest() = default;

void axmLoadUtest::run_tests(Factory const& factory) const
{
  using Utest = axmLoadUtest;
  axmUtestEntry<Utest, Factory const&> const groups[] = {
    {&Utest::test_entity_limits, "axmLoadUtest::test_entity_limits"},
    {&Utest::test_external_things, "axmLoadUtest::test_external_things"},
    {&Utest::test_external_files, "axmLoadUtest::test_external_files"},
    {&Utest::test_encodings, "axmLoadUtest::test_encodings"},
    {&Utest::test_markup, "axmLoadUtest::test_markup"},
    {&Utest::test_large_documents, "axmLoadUtest::test_large_documents"},
    {&Utest::test_places, "axmLoadUtest::test_places"},
    {&Utest::test_schemas, "axmLoadUtest::test_schemas"},
    {&Utest::test_schema_places, "axmLoadUtest::test_schema_places"},
    {&Utest::test_schema_sets, "axmLoadUtest::test_schema_sets"},
    {&Utest::test_saved_sizes, "axmLoadUtest::test_saved_sizes"},
    {&Utest::test_second_saves, "axmLoadUtest::test_second_saves"},
    {&Utest::test_saved_edits, "axmLoadUtest::test_saved_edits"},
    {&Utest::test_refused_saves, "axmLoadUtest::test_refused_saves"},
    {&Utest::test_save_obstacles, "axmLoadUtest::test_save_obstacles"},
  };
  axm_run_groups(*this, factory, groups, tester, file);
}

void axmLoadUtest::test_entity_limits(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmLoadUtest::test_entity_limits");
  std::string const dtd = "<!DOCTYPE r [<!ENTITY a 'x'><!ENTITY b '&a;&a;'><!ENTITY c '&b;&b;'><!ENTITY m '<i/>'>]>";
  struct Case
  {
    std::string content;
    int expansions;
    char const* description;
  };
  Case const cases[] = {
    {"<r/>", 0, "entities that nothing refers to"},
    {"<r>&lt;&#65;&amp;</r>", 0, "references that are no entities of the document"},
    {"<r>&a;</r>", 1, "one reference"},
    {"<r>" + many(100, "&a;") + "</r>", 100, "a hundred references"},
    {"<r>" + many(50, "<e>&a;</e>") + "</r>", 50, "one reference in each of several elements"},
    {"<r>&b;</r>", 3, "references in an entity"},
    {"<r>&c;</r>", 7, "references in an entity in an entity"},
    {"<r>&c;&b;&a;</r>", 11, "one after the other"},
    {"<r k='&a;'/>", 1, "a reference in an attribute"},
    {"<r k='&c;' l='&b;'/>", 10, "nested ones in attributes"},
    {"<r k='&a;'>&a;</r>", 2, "in an attribute and a text"},
    {"<r>&m;&m;</r>", 2, "entities that hold elements"},
    {"<!--&a;--><r><!--&a; &b;--></r><!--&a;-->", 0, "comments"},
    {"<?p &a;?><r><?p &a;&b;?></r>", 0, "instructions"},
    {"<r><![CDATA[&a;&b;]]>&amp;a;</r>", 0, "texts that look like references"},
    {"<r k='&amp;a;' l='&#38;b;'>&#38;c;<!--&a;-->&a;<?p &a;?></r>", 1, "one among those"},
  };
  for (auto const& [content, expansions, description] : cases)
  {
    std::string const text = dtd + content;
    group.check(loads(load_of(factory, text, with_limit(expansions))), "loads with the limit of its expansions",
      __LINE__, description);
    group.check(loads(load_of_file(factory, text, with_limit(expansions))), "loads with the limit of its expansions",
      __LINE__, description);
    if (expansions == 0)
      continue;
    for (int const limit : {0, expansions - 1})
    {
      group.check(
        fails(load_of(factory, text, with_limit(limit))), "fails with a smaller limit", __LINE__, description);
      group.check(
        fails(load_of_file(factory, text, with_limit(limit))), "fails with a smaller limit", __LINE__, description);
    }
  }
  group.check(loads(load_of(factory, dtd + "<r k='&c;'>&c;</r>", with_limit(INT_MAX))), "loads", __LINE__,
    "the largest of all limits");
  group.check(text_of(root_of(load_of(factory, dtd + "<r>&c;</r>").document)), APSTRING("xxxx"), "root->get_text()",
    __LINE__, "what nested entities come to");
  group.check(fails(load_of(factory, "<!DOCTYPE r [<!ENTITY a '&b;'><!ENTITY b '&a;'>]><r>&a;</r>")), "fails", __LINE__,
    "entities that hold each other");
}

namespace
{
// The file as a URL.
std::string url_of(std::string const& name)
{
  std::error_code ignored;
  std::string const path = std::filesystem::absolute(std::filesystem::u8path(name), ignored).generic_u8string();
  std::string url = path.empty() || path.front() != '/' ? "file:///" : "file://";
  for (char const character : path)
  {
    char escaped[8];
    std::snprintf(escaped, sizeof escaped, "%%%02X", static_cast<unsigned>(static_cast<unsigned char>(character)));
    bool const is_plain =
      std::isalnum(static_cast<unsigned char>(character)) != 0 || std::strchr("/._-:", character) != nullptr;
    url += is_plain ? std::string(1, character) : std::string(escaped);
  }
  return url;
}
}

void axmLoadUtest::test_external_things(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmLoadUtest::test_external_things");
  apPath const entity = unique(APSTRING("entity"), APSTRING("ent"));
  apPath const subset = unique(APSTRING("subset"), APSTRING("dtd"));
  axmUtestFile const entity_removed_at_the_end(entity);
  axmUtestFile const subset_removed_at_the_end(subset);
  axmUtestUtils::write_data(entity, "outside");
  axmUtestUtils::write_data(subset, "<!ENTITY e 'outside'><!ATTLIST r k CDATA 'outside'>");
  std::string const entity_name = entity.path().c_str();
  std::string const subset_name = subset.path().c_str();
  struct Case
  {
    std::string text;
    bool needs_it;
    char const* description;
  };
  Case const cases[] = {
    {"<!DOCTYPE r [<!ENTITY e SYSTEM '" + entity_name + "'>]><r>&e;</r>", true, "an external entity"},
    {"<!DOCTYPE r [<!ENTITY e SYSTEM '" + entity_name + "'><!ENTITY i '&e;'>]><r>&i;</r>", true,
      "an external entity in an internal one"},
    {"<!DOCTYPE r [<!ENTITY e SYSTEM '" + entity_name + "'>]><r/>", false, "an external entity that is not used"},
    {"<!DOCTYPE r SYSTEM '" + subset_name + "'><r/>", false, "an external subset"},
    {"<!DOCTYPE r PUBLIC 'p' '" + subset_name + "'><r/>", false, "an external subset with a public identifier"},
    {"<!DOCTYPE r SYSTEM '" + subset_name + "' [<!ATTLIST r l CDATA 'inside'>]><r/>", false, "beside an internal one"},
    {"<!DOCTYPE r [<!ENTITY % p SYSTEM '" + subset_name + "'>%p;]><r/>", false, "an external parameter entity"},
  };
  for (auto const& [text, needs_it, description] : cases)
    for (Load const& load : {load_of(factory, text), load_of_file(factory, text)})
    {
      group.check(
        load.is_consistent && (!needs_it || load.document == nullptr), "!document.get()", __LINE__, description);
      apString const xml = xml_of(root_of(load.document));
      group.check(xml.find(APSTRING("outside")) < 0, "nothing from outside is in the document", __LINE__, description);
    }
  axmLoadOptions resolving;
  resolving.set_disable_entity_resolution(false);
  group.check(text_of(root_of(load_of_file(factory, cases[1].text, resolving).document)), APSTRING("outside"),
    "root->get_text()", __LINE__, "an external entity in an internal one, where that is allowed");
  std::string escaped_name = entity_name;
  std::size_t const at = escaped_name.rfind("entity");
  if (at != std::string::npos)
    escaped_name.replace(at, 1, "%65");
  std::string const escaped = "<!DOCTYPE r [<!ENTITY e SYSTEM '" + escaped_name + "'>]><r>&e;</r>";
  group.check(text_of(root_of(load_of_file(factory, escaped, resolving).document)), APSTRING("outside"),
    "root->get_text()", __LINE__, "an external entity is named by a URI, in which %65 is a letter");
  std::string const by_url = "<!DOCTYPE r [<!ENTITY e SYSTEM '" + url_of(entity_name) + "'>]><r>&e;</r>";
  group.check(text_of(root_of(load_of_file(factory, by_url, resolving).document)), APSTRING("outside"),
    "root->get_text()", __LINE__, "which may be the URL of a file");
  std::string const missing = "<!DOCTYPE r [<!ENTITY e SYSTEM './load_no_such_file.ent'>]><r>&e;</r>";
  group.check(
    fails(load_of_file(factory, missing, resolving)), "fails", __LINE__, "an external entity that is missing");
}

namespace
{
// A folder in the working folder as long as it lives, with what the documents of a table name.
class OutsideFolder
{
public:
  OutsideFolder() : path(std::filesystem::u8path(unique(APSTRING("outside"), APSTRING("d")).path().c_str()))
  {
    std::error_code ignored;
    std::filesystem::create_directories(path / "sub", ignored);
    for (auto const& [name, bytes] : files())
      write(in(name), bytes);
  }
  OutsideFolder(OutsideFolder const&) = delete;
  OutsideFolder& operator=(OutsideFolder const&) = delete;
  ~OutsideFolder()
  {
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
  }

  apPath in(char const* name) const { return apPath((path / name).generic_u8string().c_str()); }

  // The document stands in the folder, so its names are those of files beside it.
  Load load(Factory const& factory, char const* document, axmLoadOptions const& options) const
  {
    write(in("document.xml"), document);
    Load result = {nullptr, axmParseError(), false};
    result.document = factory->loadDocument(in("document.xml"), options, result.error);
    result.is_consistent = is_consistent(result.document, result.error);
    return result;
  }

private:
  static std::vector<std::pair<char const*, std::string>> files()
  {
    return {
      {"plain.ent", "outside"},
      {"lines.ent", "a\r\nb\rc&#13;d"},
      {"declared.ent", "<?xml version='1.0' encoding='UTF-8'?>\xC3\xA4"},
      {"encoding.ent", "<?xml encoding='UTF-8'?>\n\xD1\x84"},
      {"mark.ent", "\xEF\xBB\xBFx"},
      {"wide.ent", std::string("\xFF\xFEx\0\xAC\x20", 6)},
      {"elements.ent", "<b k='1'>x</b>y<!--z--><?p q?><![CDATA[<&]]>"},
      {"nested.ent", "<n>&inner;&outer;</n>"},
      {"empty.ent", ""},
      {"amp.ent", "&amp;&lt;&#65;"},
      {"start.ent", "<b>"},
      {"end.ent", "</r>"},
      {"tag.ent", "<b"},
      {"broken.ent", "one\ntwo & three"},
      {"bytes.ent", "\xE4"},
      {"control.ent", "\x01"},
      {"type.ent", "<!DOCTYPE r>"},
      {"late.ent", " <?xml version='1.0' encoding='UTF-8'?>x"},
      {"unknown.ent", "a&none;b"},
      {"self.ent", "&e;"},
      {"subset.dtd", "<!ENTITY s 'subset'><!ATTLIST r d CDATA 'default' t NMTOKENS #IMPLIED>"},
      {"declared.dtd", "<?xml version='1.0' encoding='UTF-8'?><!ENTITY s '\xC3\xA4'>"},
      {"sections.dtd",
        "<!ENTITY % yes 'INCLUDE'><!ENTITY % no 'IGNORE'><![INCLUDE[<!ENTITY i 'included'>]]>"
        "<![ IGNORE [<!ENTITY i 'ignored'> <![INCLUDE[<!ENTITY j 'ignored'>]]> ' <!-- ]]><![%yes;[<!ENTITY j 'J'>"
        "<![%no;[<!ENTITY k 'ignored'>]]><!ENTITY k 'K'>]]><![IGNORE[]]><![INCLUDE[]]><!ENTITY j 'late'>"},
      {"parameters.dtd",
        "<!ENTITY % type 'CDATA'><!ENTITY % name 'f'><!ENTITY % both 'a %type; \"v\"'><!ATTLIST r %both;>"
        "<!ENTITY %name; 'named'><!ENTITY g '[%type;]'><!ELEMENT r (%name;|#PCDATA)* >"},
      {"model.dtd", "<!ENTITY % names 'a|b'><!ELEMENT r (#PCDATA|%names;)*><!ENTITY m 'M'>"},
      {"open.dtd", "<![INCLUDE[<!ENTITY s 'x'>"},
      {"surplus.dtd", "<!ENTITY s 'x'>]]>"},
      {"ignored.dtd", "<![IGNORE[ <![ ]]> <!ENTITY s 'x'>"},
      {"other.dtd", "<![OTHER[<!ENTITY s 'x'>]]>"},
      {"text.dtd", "<!ENTITY s 'x'> text"},
      {"document.dtd", "<r/>"},
      {"half.dtd", "<!ENTITY s 'x'"},
      {"sub/outer.dtd", "<!ENTITY e SYSTEM 'inner.ent'><!ENTITY % q SYSTEM 'more.dtd'>%q;"},
      {"sub/more.dtd", "<!ENTITY m 'more'>"},
      {"sub/inner.ent", "inner"},
      {"sub/outer.ent", "[&e;]"},
    };
  }

  std::filesystem::path const path;
};

axmXmlTables::Taken const taken_entities[] = {
  {"<!DOCTYPE r [<!ENTITY e SYSTEM 'plain.ent'>]><r>&e;</r>", "<r>outside</r>"},
  {"<!DOCTYPE r [<!ENTITY e SYSTEM './plain.ent'>]><r>a&e;b&e;</r>", "<r>aoutsideboutside</r>"},
  {"<!DOCTYPE r [<!ENTITY e SYSTEM 'sub/../plain.ent'>]><r>&e;</r>", "<r>outside</r>"},
  {"<!DOCTYPE r [<!ENTITY e PUBLIC 'p' 'sub/inner.ent'>]><r>&e;</r>", "<r>inner</r>"},
  {"<!DOCTYPE r [<!ENTITY e SYSTEM 'lines.ent'>]><r>&e;</r>", "<r>a\nb\nc\rd</r>"},
  {"<!DOCTYPE r [<!ENTITY e SYSTEM 'declared.ent'>]><r>&e;</r>", "<r>\xC3\xA4</r>"},
  {"<!DOCTYPE r [<!ENTITY e SYSTEM 'encoding.ent'>]><r>&e;</r>", "<r>\n\xD1\x84</r>"},
  {"<!DOCTYPE r [<!ENTITY e SYSTEM 'mark.ent'>]><r>&e;</r>", "<r>x</r>"},
  {"<!DOCTYPE r [<!ENTITY e SYSTEM 'wide.ent'>]><r>&e;</r>", "<r>x\xE2\x82\xAC</r>"},
  {"<!DOCTYPE r [<!ENTITY e SYSTEM 'elements.ent'>]><r>&e;</r>", "<r><b k='1'>x</b>y<!--z--><?p q?><&</r>"},
  {"<!DOCTYPE r [<!ENTITY e SYSTEM 'nested.ent'><!ENTITY inner '<i/>'><!ENTITY outer SYSTEM 'plain.ent'>]><r>&e;</r>",
    "<r><n><i></i>outside</n></r>"},
  {"<!DOCTYPE r [<!ENTITY e SYSTEM 'empty.ent'>]><r>a&e;b</r>", "<r>ab</r>"},
  {"<!DOCTYPE r [<!ENTITY e SYSTEM 'amp.ent'>]><r>&e;</r>", "<r>&<A</r>"},
  {"<!DOCTYPE r [<!ENTITY e SYSTEM 'none.ent'>]><r/>", "<r></r>"},
  {"<!DOCTYPE r [<!ENTITY e SYSTEM 'none.ent'><!ENTITY f '&e;'>]><r/>", "<r></r>"},
  {"<!DOCTYPE r [<!ENTITY e SYSTEM 'plain.ent'><!ENTITY e 'second'>]><r>&e;</r>", "<r>outside</r>"},
  {"<!DOCTYPE r [<!ENTITY e 'first'><!ENTITY e SYSTEM 'plain.ent'>]><r>&e;</r>", "<r>first</r>"},
  {"<!DOCTYPE r [<!ENTITY e SYSTEM 'plain.ent'>]><r><!--&e;--><![CDATA[&e;]]></r>", "<r><!--&e;-->&e;</r>"},
};

char const* const refused_entities[] = {
  "<!DOCTYPE r [<!ENTITY e SYSTEM 'none.ent'>]><r>&e;</r>",
  "<!DOCTYPE r [<!ENTITY e SYSTEM 'plain.ent'>]><r k='&e;'/>",
  "<!DOCTYPE r [<!ENTITY e SYSTEM 'plain.ent'><!ENTITY i '&e;'>]><r k='&i;'/>",
  "<!DOCTYPE r [<!ENTITY e SYSTEM 'start.ent'>]><r>&e;</b></r>",
  "<!DOCTYPE r [<!ENTITY e SYSTEM 'start.ent'>]><r>&e;</r>",
  "<!DOCTYPE r [<!ENTITY e SYSTEM 'end.ent'>]><r>&e;",
  "<!DOCTYPE r [<!ENTITY e SYSTEM 'end.ent'>]><r>&e;</r>",
  "<!DOCTYPE r [<!ENTITY e SYSTEM 'tag.ent'>]><r>&e;/></r>",
  "<!DOCTYPE r [<!ENTITY e SYSTEM 'broken.ent'>]><r>&e;</r>",
  "<!DOCTYPE r [<!ENTITY e SYSTEM 'bytes.ent'>]><r>&e;</r>",
  "<!DOCTYPE r [<!ENTITY e SYSTEM 'control.ent'>]><r>&e;</r>",
  "<!DOCTYPE r [<!ENTITY e SYSTEM 'type.ent'>]><r>&e;</r>",
  "<!DOCTYPE r [<!ENTITY e SYSTEM 'late.ent'>]><r>&e;</r>",
  "<!DOCTYPE r [<!ENTITY e SYSTEM 'unknown.ent'>]><r>&e;</r>",
  "<!DOCTYPE r [<!ENTITY e SYSTEM 'self.ent'>]><r>&e;</r>",
  "<!DOCTYPE r [<!NOTATION n SYSTEM 'n'><!ENTITY e SYSTEM 'plain.ent' NDATA n>]><r>&e;</r>",
};

axmXmlTables::Taken const taken_subsets[] = {
  {"<!DOCTYPE r SYSTEM 'subset.dtd'><r>&s;</r>", "<r d='default'>subset</r>"},
  {"<!DOCTYPE r PUBLIC 'p' 'subset.dtd'><r t=' a  b '>&s;</r>", "<r d='default' t='a b'>subset</r>"},
  {"<!DOCTYPE r SYSTEM 'subset.dtd' [<!ENTITY s 'inside'><!ATTLIST r d CDATA 'mine'>]><r>&s;</r>",
    "<r d='mine'>inside</r>"},
  {"<!DOCTYPE r [<!ENTITY % p SYSTEM 'subset.dtd'>%p;]><r>&s;</r>", "<r d='default'>subset</r>"},
  {"<!DOCTYPE r [<!ENTITY % p SYSTEM 'subset.dtd'>%p;<!ENTITY s 'late'>]><r>&s;</r>", "<r d='default'>subset</r>"},
  {"<!DOCTYPE r [<!ENTITY % p SYSTEM 'none.dtd'>]><r/>", "<r></r>"},
  {"<!DOCTYPE r SYSTEM 'declared.dtd'><r>&s;</r>", "<r>\xC3\xA4</r>"},
  {"<!DOCTYPE r SYSTEM 'sections.dtd'><r>&i;&j;&k;</r>", "<r>includedJK</r>"},
  {"<!DOCTYPE r SYSTEM 'sections.dtd' [<!ENTITY % yes 'IGNORE'>]><r>&i;&j;</r>", "<r>includedlate</r>"},
  {"<!DOCTYPE r SYSTEM 'sections.dtd' [<!ENTITY % no 'INCLUDE'>]><r>&k;</r>", "<r>ignored</r>"},
  {"<!DOCTYPE r SYSTEM 'model.dtd'><r>&m;</r>", "<r>M</r>"},
  {"<!DOCTYPE r SYSTEM 'model.dtd' [<!ENTITY % names 'c'>]><r>&m;<c/></r>", "<r>M<c></c></r>"},
  {"<!DOCTYPE r SYSTEM 'sub/outer.dtd'><r>&e;&m;</r>", "<r>innermore</r>"},
  {"<!DOCTYPE r [<!ENTITY % p SYSTEM 'sub/outer.dtd'>%p;]><r>&e;&m;</r>", "<r>innermore</r>"},
  {"<!DOCTYPE r [<!ENTITY % p SYSTEM 'sub/outer.dtd'>%p;<!ENTITY o SYSTEM 'sub/outer.ent'>]><r>&o;</r>",
    "<r>[inner]</r>"},
};

char const* const refused_subsets[] = {
  "<!DOCTYPE r SYSTEM 'parameters.dtd'><r>&g;&f;</r>",
  "<!DOCTYPE r SYSTEM 'open.dtd'><r>&s;</r>",
  "<!DOCTYPE r SYSTEM 'surplus.dtd'><r>&s;</r>",
  "<!DOCTYPE r SYSTEM 'ignored.dtd'><r/>",
  "<!DOCTYPE r SYSTEM 'other.dtd'><r/>",
  "<!DOCTYPE r SYSTEM 'text.dtd'><r>&s;</r>",
  "<!DOCTYPE r SYSTEM 'document.dtd'><r/>",
  "<!DOCTYPE r SYSTEM 'half.dtd'><r/>",
  "<!DOCTYPE r [<!ENTITY % p SYSTEM 'half.dtd'>%p;>]><r/>",
  "<!DOCTYPE r [<!ENTITY % p SYSTEM 'text.dtd'>%p;]><r/>",
  "<?xml version='1.0' standalone='yes'?><!DOCTYPE r SYSTEM 'subset.dtd'><r>&s;</r>",
};

template <std::size_t TakenCount, std::size_t RefusedCount>
bool are_read(utUnitTest& tester, Factory const& factory, axmXmlTables::Taken const (&taken)[TakenCount],
  char const* const (&refused)[RefusedCount])
{
  OutsideFolder const folder;
  axmLoadOptions resolving;
  resolving.set_disable_entity_resolution(false);
  bool are_right = true;
  for (auto const& [text, shape] : taken)
  {
    Load const load = folder.load(factory, text, resolving);
    std::string const came = loads(load) ? axmXmlTables::shape_of(load.document) : "(no document)";
    are_right = are_right && came == shape;
    if (came != shape)
      tester.printf("%s\nExpected \"%s\"\nActual   \"%s\"", text, shape, came.c_str());
  }
  for (char const* const text : refused)
  {
    bool const is_refused = fails(folder.load(factory, text, resolving));
    are_right = are_right && is_refused;
    if (!is_refused)
      tester.printf("loaded, but is no document: %s", text);
  }
  return are_right;
}

// Whether what is told of a failure is a place of the file that it names.
bool is_place(axmParseError const& error, char const* name, int line)
{
  return error.url().find(apString(name)) >= 0 && (error.line_number() == -1 || error.line_number() == line);
}
}

void axmLoadUtest::test_external_files(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmLoadUtest::test_external_files");
  group.check(are_read(*tester, factory, taken_entities, refused_entities), "what is in the files is in the document",
    __LINE__, "external entities, where they are allowed");
  group.check(are_read(*tester, factory, taken_subsets, refused_subsets), "what is in the files is in the document",
    __LINE__, "external subsets and parameter entities, where they are allowed");
  OutsideFolder const folder;
  axmLoadOptions options;
  axmParseError const closed =
    folder.load(factory, "<!DOCTYPE r [\n<!ENTITY e SYSTEM 'plain.ent'>]>\n<r>\n&e;</r>", options).error;
  group.check(!closed.invalid() && (closed.url().empty() || is_place(closed, "document.xml", 4)), "the place", __LINE__,
    "a document that needs what it must not read");
  options.set_disable_entity_resolution(false);
  axmParseError const broken =
    folder.load(factory, "<!DOCTYPE r [<!ENTITY e SYSTEM 'broken.ent'>]>\n\n\n<r>&e;</r>", options).error;
  group.check(broken.url().empty() || is_place(broken, "broken.ent", 2) || is_place(broken, "document.xml", 4),
    "the place", __LINE__, "a failure in another file");
  axmParseError const after =
    folder.load(factory, "<!DOCTYPE r [<!ENTITY e SYSTEM 'lines.ent'>]>\n<r>&e;\n</s>", options).error;
  group.check(
    after.url().empty() || is_place(after, "document.xml", 3), "the place", __LINE__, "a failure after another file");
  std::string const declarations = many(10000, "<!ENTITY unused 'x'>\r\n");
  write(folder.in("large.dtd"), declarations + "<!ENTITY s 'last'>" + declarations);
  write(folder.in("large.ent"), many(30000, "\xC3\xA4 x\r\n"));
  std::string const large = many(30000, "\xC3\xA4 x\n");
  std::pair<char const*, std::string> const of_large_files[] = {{"<!DOCTYPE r SYSTEM 'large.dtd'><r>&s;</r>", "last"},
    {"<!DOCTYPE r [<!ENTITY % p SYSTEM 'large.dtd'>%p;]><r>&s;</r>", "last"},
    {"<!DOCTYPE r [<!ENTITY e SYSTEM 'large.ent'>]><r>a&e;b</r>", "a" + large + "b"},
    {"<!DOCTYPE r SYSTEM 'large.dtd' [<!ENTITY e SYSTEM 'large.ent'>]><r>&e;&s;&e;</r>", large + "last" + large}};
  for (auto const& [text, promised] : of_large_files)
    group.check(text_of(root_of(folder.load(factory, text, options).document)) == apString(promised.c_str()),
      "root->get_text()", __LINE__, "large files");
  options.set_entity_expansion_limit(2);
  char const three[] = "<!DOCTYPE r [<!ENTITY e SYSTEM 'plain.ent'>]><r>&e;&e;&e;</r>";
  group.check(fails(folder.load(factory, three, options)), "fails", __LINE__, "external entities count as others do");
  options.set_entity_expansion_limit(3);
  group.check(loads(folder.load(factory, three, options)), "loads", __LINE__, "as many as the limit allows");
}

namespace
{
std::string utf16(std::wstring const& text, bool big)
{
  std::string result;
  for (wchar_t const character : L"\uFEFF" + text)
  {
    auto const code = static_cast<unsigned>(character);
    char const high = static_cast<char>(code >> 8U & 0xFFU);
    char const low = static_cast<char>(code & 0xFFU);
    result += big ? high : low;
    result += big ? low : high;
  }
  return result;
}
}

namespace
{
struct Bytes
{
  char const* bytes;
  bool are_utf8;
};

// What begins, ends or leaves a range of UTF-8 (RFC 3629, 4).
Bytes const sequences[] = {{"\x7F", true}, {"\xC2\x80", true}, {"\xDF\xBF", true}, {"\xE0\xA0\x80", true},
  {"\xED\x9F\xBF", true}, {"\xEE\x80\x80", true}, {"\xEF\xBF\xBD", true}, {"\xF0\x90\x80\x80", true},
  {"\xF3\xBF\xBF\xBD", true}, {"\xF4\x8F\xBF\xBF", true}, {"\x80", false}, {"\xBF", false}, {"\xC0\x80", false},
  {"\xC1\xBF", false}, {"\xC2", false}, {"\xC2\x80\x80", false}, {"\xC2\xC2\x80", false}, {"\xE0\x80\x80", false},
  {"\xE0\x9F\xBF", false}, {"\xE1\x80", false}, {"\xED\xA0\x80", false}, {"\xED\xBF\xBF", false}, {"\xEF\xBF", false},
  {"\xF0\x80\x80\x80", false}, {"\xF0\x8F\xBF\xBF", false}, {"\xF1\x80\x80", false}, {"\xF1\x80", false},
  {"\xF4\x90\x80\x80", false}, {"\xF4\xBF\xBF\xBF", false}, {"\xF5\x80\x80\x80", false},
  {"\xF8\x88\x80\x80\x80", false}, {"\xFE", false}, {"\xFF", false}};

struct OtherEncoding
{
  char const* name;
  char const* bytes;
  wchar_t const* text;
};

// With those from 0x80 to 0x9F, which code pages of systems have otherwise.
OtherEncoding const other_encodings[] = {{"ISO-8859-1", "\xE4\x80\x85\x92\x9F", L"\u00E4\u0080\u0085\u0092\u009F"},
  {"ISO-8859-1", "\xA0\xA4\xFF", L"\u00A0\u00A4\u00FF"}, {"ISO-8859-2", "\xB1\x80\x9F", L"\u0105\u0080\u009F"},
  {"ISO-8859-5", "\xE4\x80", L"\u0444\u0080"}, {"ISO-8859-7", "\xE1\x9F", L"\u03B1\u009F"},
  {"ISO-8859-15", "\xA4\x80\xA6\xBD", L"\u20AC\u0080\u0160\u0153"}, {"windows-1251", "\xF4\x80", L"\u0444\u0402"},
  {"windows-1252", "\x80\x8A\x9F", L"\u20AC\u0160\u0178"}, {"KOI8-R", "\xC6", L"\u0444"},
  {"Shift_JIS", "\x83\x41", L"\u30A2"}, {"EUC-JP", "\xA5\xA2", L"\u30A2"}, {"US-ASCII", "x", L"x"}};

// Whether that is UTF-8 without a zero: anything else is another text once it was read as that.
bool is_utf8(apByteArray const& output)
{
  std::string const text(output.data(), output.size());
  utString const read_as_utf8 = apString(text.c_str()).to_utf8();
  return !text.empty() && text == read_as_utf8.c_str();
}

// Whether a sequence is taken or refused wherever it stands, for an engine may look at many bytes at once.
bool is_judged_everywhere(Factory const& factory, Bytes const& sequence)
{
  for (int before = 0; before < 70; ++before)
    for (char const* const filler : {"x", "\xC3\xA4", "\xF0\x9F\x98\x80"})
    {
      std::string const text = many(before, filler) + sequence.bytes + "x";
      Load const load = load_of(factory, "<r>" + text + many(70, filler) + "</r>");
      bool const is_right = sequence.are_utf8
                              ? text_of(root_of(load.document)) == apString((text + many(70, filler)).c_str())
                              : fails(load);
      if (!is_right)
        return false;
    }
  return true;
}
}

void axmLoadUtest::test_encodings(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmLoadUtest::test_encodings");
  apString const promised = APSTRING("\u00E4\u0444\u20AC");
  std::string const utf8 = "\xC3\xA4\xD1\x84\xE2\x82\xAC";
  std::wstring const content = L"\u00E4\u0444\u20AC";
  struct Case
  {
    std::string text;
    char const* description;
  };
  Case const cases[] = {
    {"<r>" + utf8 + "</r>", "UTF-8 without a declaration"},
    {"<?xml version='1.0' encoding='UTF-8'?><r>" + utf8 + "</r>", "UTF-8 that is declared"},
    {"<?xml version='1.0' encoding='utf-8'?><r>" + utf8 + "</r>", "in small letters"},
    {"\xEF\xBB\xBF<r>" + utf8 + "</r>", "UTF-8 with a mark"},
    {"\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"UTF-8\"?><r>" + utf8 + "</r>", "with a mark and a declaration"},
    {utf16(L"<r>" + content + L"</r>", false), "UTF-16, the low byte first"},
    {utf16(L"<r>" + content + L"</r>", true), "UTF-16, the high byte first"},
    {utf16(L"<?xml version='1.0' encoding='UTF-16'?><r>" + content + L"</r>", false), "UTF-16 that is declared"},
  };
  for (auto const& [text, description] : cases)
  {
    Load const load = load_of(factory, text);
    group.check(text_of(root_of(load.document)), promised, "root->get_text()", __LINE__, description);
    group.check(
      text_of(root_of(load_of_file(factory, text).document)), promised, "root->get_text()", __LINE__, description);
    apByteArray output;
    bool const saved = load.document != nullptr && factory->saveDocument(load.document, output);
    axmParseError error;
    auto const copy = saved ? factory->loadDocument(output, axmLoadOptions(), error) : nullptr;
    group.check(text_of(root_of(copy)), promised, "root->get_text(), saved and loaded", __LINE__, description);
    group.check(is_utf8(output), "output is UTF-8", __LINE__, description);
  }
  std::string const pair("\xFF\xFE<\0r\0>\0\x01\xD8\x37\xDC<\0/\0r\0>\0", 20);
  std::string const halves[] = {std::string("\xFF\xFE<\0r\0>\0\x01\xD8<\0/\0r\0>\0", 18),
    std::string("\xFF\xFE<\0r\0>\0\x37\xDC<\0/\0r\0>\0", 18), std::string("\xFF\xFE<\0r\0>\0a\0<\0/\0r\0>", 17)};
  for (Load const& load : {load_of(factory, pair), load_of_file(factory, pair)})
    group.check(text_of(root_of(load.document)), APSTRING("\U00010437"), "root->get_text()", __LINE__,
      "a pair of surrogates in UTF-16");
  for (std::string const& half : halves)
    group.check(fails(load_of(factory, half)) && fails(load_of_file(factory, half)), "fails", __LINE__,
      "half a character in UTF-16");
  for (char const* const encoding : {"x-none-such", "UTF-9", "none"})
    group.check(fails(load_of(factory, std::string("<?xml version='1.0' encoding='") + encoding + "'?><r/>")), "fails",
      __LINE__, "an encoding that nobody knows");
  // Other encodings an engine may refuse, but not mistake.
  for (auto const& [encoding, bytes, text] : other_encodings)
  {
    Load const load =
      load_of(factory, std::string("<?xml version='1.0' encoding='") + encoding + "'?><r>" + bytes + "</r>");
    group.check(fails(load) || text_of(root_of(load.document)) == apString(text), "root->get_text()", __LINE__,
      "other encodings are read as those or not at all");
  }
  for (std::string const& text : {std::string("<?xml version='1.0' encoding='UTF-16'?><r/>"),
         utf16(L"<?xml version='1.0' encoding='UTF-8'?><r/>", false),
         std::string("<?xml version='1.0' encoding='US-ASCII'?><r>\xE4</r>")})
    group.check(fails(load_of(factory, text)) && fails(load_of_file(factory, text)), "fails", __LINE__,
      "another encoding than the declared one");
  for (std::string const& text :
    {std::string("<r>\xC3</r>"), std::string("<r>\xE4\xB8</r>"), std::string("<r>\xC0\x80</r>"),
      std::string("<r>\xED\xA0\x80</r>"), std::string("<r>\xF5\x80\x80\x80</r>"), std::string("<r k='\xFF'/>")})
    group.check(fails(load_of(factory, text)) && fails(load_of_file(factory, text)), "fails", __LINE__,
      "bytes that are not UTF-8");
  bool are_judged = true;
  for (Bytes const& sequence : sequences)
    if (!is_judged_everywhere(factory, sequence))
    {
      are_judged = false;
      tester->printf("not judged right everywhere: %s", sequence.are_utf8 ? "UTF-8" : "what is not UTF-8");
    }
  group.check(are_judged, "UTF-8 is loaded, all else fails", __LINE__, "sequences of bytes at every place");
  std::string const with_zero("<r/>\0<r/>", 9);
  group.check(fails(load_of_file(factory, with_zero)), "fails", __LINE__, "a zero byte ends no file");
  std::string const long_text(200000, 'x');
  group.check(text_of(root_of(load_of_file(factory, "<r>" + long_text + "</r>").document)), apString(long_text.c_str()),
    "root->get_text()", __LINE__, "a large file is read to its end");
}

void axmLoadUtest::test_markup(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmLoadUtest::test_markup");
  struct Case
  {
    char const* text;
    wchar_t const* shape;
    char const* description;
  };
  Case const cases[] = {
    {"<r><![CDATA[x<y>&z]]></r>", L"<r>x<y>&z", "a CDATA section"},
    {"<r>a<![CDATA[b]]>c</r>", L"<r>abc", "a CDATA section among texts"},
    {"<r><![CDATA[]]]]><![CDATA[>]]></r>", L"<r>]]>", "the end of a CDATA section in two"},
    {"<r>a\r\nb\rc\nd</r>", L"<r>a\nb\nc\nd", "line ends are one character"},
    {"<r>a&#13;b</r>", L"<r>a\rb", "but not those that are references"},
    {"<r>a<!--b-->c<?d e?>f</r>", L"<r>a{b}c<d>f", "a comment and an instruction among texts"},
    {"<r><a>1</a><a/><a></a></r>", L"<r><a>1<a><a>", "elements with content and without"},
    {"<r>\xF0\x90\x90\xB7&#x10437;</r>", L"<r>\U00010437\U00010437", "characters beyond the first plane"},
    {"<r>&#x9;x&#xA;</r>", L"<r>\tx\n", "references to white space beside a text"},
    {"<r>\xC2\xA0</r>", L"<r>\u00A0", "a blank that is not white space of XML"},
    {"<r>\xE2\x80\x83</r>", L"<r>\u2003", "another one"},
    {"<r>]]&gt;</r>", L"<r>]]>", "what looks like an end"},
    {"<r>&lt;a/&gt;</r>", L"<r><a/>", "what looks like an element"},
    {"<!DOCTYPE r [<!ENTITY e 'x<b>y</b>z'>]><r>&e;</r>", L"<r>x<b>yz", "an entity that holds an element"},
    {"<!DOCTYPE r [<!ENTITY e '&#38;lt;'>]><r>&e;</r>", L"<r><", "an entity that holds an escaped reference"},
  };
  for (auto const& [text, promised, description] : cases)
    for (Load const& load : {load_of(factory, text), load_of_file(factory, text)})
      group.check(shape(root_of(load.document)), apString(promised), "shape(root)", __LINE__, description);
  struct Value
  {
    char const* text;
    wchar_t const* value;
    char const* description;
  };
  Value const values[] = {
    {"<r k='a\tb\nc'/>", L"a b c", "white space in an attribute is blanks"},
    {"<r k='a\r\nb'/>", L"a b", "a line end in an attribute is one blank"},
    {"<r k='&#9;&#10;&#13;'/>", L"\t\n\r", "but not what are references"},
    {"<r k='  a  '/>", L"  a  ", "blanks at the ends of an attribute are kept"},
    {"<r k='&lt;&gt;&amp;&quot;&apos;'/>", L"<>&\"'", "references in an attribute"},
    {"<r k='>\"'/>", L">\"", "characters that need no reference there"},
    {"<r k=\"'\"/>", L"'", "the other quote"},
    {"<r k=''/>", L"", "an empty attribute"},
    {"<!DOCTYPE r [<!ENTITY e 'x&#32;y'>]><r k='&e;'/>", L"x y", "an entity in an attribute"},
    {"<!DOCTYPE r [<!ATTLIST r k CDATA 'given'>]><r/>", L"given", "a default that the document declares"},
  };
  for (auto const& [text, promised, description] : values)
    group.check(attribute_of(root_of(load_of(factory, text).document), APSTRING("k")), apString(promised),
      "root->getAttribute(\"k\")", __LINE__, description);
  Document const outside = load_of(factory, "<?p q?><!--a--><r/><!--b--><?s?>").document;
  group.check(shape(outside), APSTRING("<#document><p>{a}<r>{b}<s>"), "shape(document)", __LINE__,
    "comments and instructions outside the root");
  group.check(value_of(first_of(outside)), APSTRING("q"), "document->getFirstChild()->getNodeValue()", __LINE__,
    "the content of an instruction");
}

namespace
{
// What stands in a document and what it means there.
struct Piece
{
  char const* written;
  char const* in_text;
  char const* in_attribute;
};

Piece const pieces[] = {{"x", "x", "x"}, {" ", " ", " "}, {"]", "]", "]"}, {"\xC3\xA4", "\xC3\xA4", "\xC3\xA4"},
  {"\xE2\x82\xAC", "\xE2\x82\xAC", "\xE2\x82\xAC"}, {"\xF0\x90\x90\xB7", "\xF0\x90\x90\xB7", "\xF0\x90\x90\xB7"},
  {"\r\n", "\n", " "}, {"\r", "\n", " "}, {"\n", "\n", " "}, {"\t", "\t", " "}, {"&lt;", "<", "<"},
  {"&#8364;", "\xE2\x82\xAC", "\xE2\x82\xAC"}, {"&e;", "y", "y"}, {"word", "word", "word"}};
}

namespace
{
// Entities that hold each other, each the one before it.
std::string nested_entities(int levels)
{
  std::string declarations = "<!ENTITY e0 'x'>";
  for (int level = 1; level <= levels; ++level)
    declarations += "<!ENTITY e" + std::to_string(level) + " '&e" + std::to_string(level - 1) + ";'>";
  return declarations;
}

// Documents of which one piece is long, or holds many others, and what they are.
std::vector<std::pair<std::string, std::string>> long_pieces()
{
  std::string const text = many(30000, "long ");
  return {{"<r><?p " + text + "?></r>", "<r><?p " + text + "?></r>"},
    {"<r><!--" + text + "--></r>", "<r><!--" + text + "--></r>"},
    {"<r><![CDATA[" + text + "]]></r>", "<r>" + text + "</r>"},
    {"<r>" + many(20000, "<![CDATA[x]]>") + "</r>", "<r>" + many(20000, "x") + "</r>"},
    {"<!DOCTYPE r [<!ENTITY e '" + text + "'>]><r k='&e;'>&e;</r>", "<r k='" + text + "'>" + text + "</r>"},
    {"<!DOCTYPE r [<!ATTLIST r k CDATA '" + text + "'>]><r/>", "<r k='" + text + "'></r>"},
    {"<!DOCTYPE r [<!--" + text + "-->" + many(5000, "<!ELEMENT a ANY><?p q?>") + "]><r/>", "<r></r>"},
    {"<!DOCTYPE r [" + nested_entities(200) + "]><r k='&e200;'>&e200;</r>", "<r k='x'>x</r>"},
    {"<r k='x'" + many(30000, " ") + "l='y'" + many(30000, "\n") + "/>", "<r k='x' l='y'></r>"},
    {many(3000, "<!--x--> ") + "<r/>" + many(3000, "\n<?p q?>"),
      many(3000, "<!--x-->") + "<r></r>" + many(3000, "<?p q?>")}};
}
}

void axmLoadUtest::test_large_documents(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmLoadUtest::test_large_documents");
  axmModelRandom random(1);
  // Of some kinds of pieces only, so that each kind comes to stand at every border of a buffer.
  for (int const kinds : {1, 2, 4, 6, 8, 14})
  {
    std::string written;
    std::string text;
    std::string value;
    while (written.size() < 150000)
    {
      Piece const& piece = pieces[static_cast<std::size_t>(random.below(kinds))];
      // Two line ends of one character each would be one of two.
      bool const would_join = !written.empty() && written.back() == '\r' && piece.written[0] == '\n';
      if (would_join)
        continue;
      written += piece.written;
      text += piece.in_text;
      value += piece.in_attribute;
    }
    text = "begin" + text;
    std::string const document =
      "<!DOCTYPE r [<!ENTITY e 'y'>]><r k='" + written + "' l='m'>begin" + written + "<a/>end</r>";
    for (Load const& load : {load_of(factory, document), load_of_file(factory, document)})
    {
      auto const root = root_of(load.document);
      group.check(attribute_of(root, APSTRING("k")) == apString(value.c_str()), "root->getAttribute(\"k\")", __LINE__,
        "a large attribute");
      group.check(attribute_of(root, APSTRING("l")), APSTRING("m"), "root->getAttribute(\"l\")", __LINE__,
        "and the one after it");
      group.check(value_of(first_of(root)) == apString(text.c_str()), "root->getFirstChild()->getNodeValue()", __LINE__,
        "a large text");
      group.check(
        text_of(last_of(root)), APSTRING("end"), "root->getLastChild()->get_text()", __LINE__, "and what follows it");
    }
    std::string const broken = "<r>" + many(3, written) + "</s>";
    group.check(fails(load_of(factory, broken)), "fails", __LINE__, "a large document with an error at its end");
  }
  for (char const* const white : {" ", "\n", "\t", "\r\n", " \n\t"})
  {
    std::string const much = many(70000, white);
    std::string const text = "<r>" + much + "<a>x" + many(70000, " ") + "</a>" + much + "</r>";
    for (Load const& load : {load_of(factory, text), load_of_file(factory, text)})
    {
      auto const root = root_of(load.document);
      group.check(number_of_children(root), 1, "root->getChildNodes()->length() == 1", __LINE__, "much white space");
      group.check(text_of(root) == apString(("x" + many(70000, " ")).c_str()), "root->get_text()", __LINE__,
        "and much of it beside a text");
    }
  }
  for (auto const& [text, shape] : long_pieces())
    for (Load const& load : {load_of(factory, text), load_of_file(factory, text)})
      group.check(loads(load) && axmXmlTables::shape_of(load.document) == shape, "shape of the document", __LINE__,
        "long pieces of markup");
  for (std::string const& name : {std::string(40000, 'n'), many(20000, "\xC3\xA4"), many(10000, "\xE4\xB8\x80")})
  {
    std::string const content = many(3, "<" + name + "></" + name + ">");
    Load const load = load_of_file(factory, "<r>" + content + "</r>");
    bool const is_right = number_of_children(root_of(load.document)) == 3 &&
                          name_of(last_of(root_of(load.document))) == apString(name.c_str());
    group.check(is_right, "root->getLastChild()->getNodeName()", __LINE__, "long names");
    group.check(fails(load_of(factory, "<r><" + name + "></" + name + "x></r>")), "fails", __LINE__,
      "a long end tag of another name");
  }
}

namespace
{
// The beginnings of documents with line ends, as newlines, wherever there can be some.
char const* const with_lines[] = {"<?xml version='1.0'\n?><r>", "<?xml\nversion\n=\n'1.0'?>\n<r>", "\n<r>",
  "<?p\nq?><r>", "<?p q\n\n?>\n<r>", "<!--\na\n-->\n<r>", "<!DOCTYPE\nr\n>\n<r>", "<!DOCTYPE r [\n\n]\n><r>",
  "<!DOCTYPE r [<!ENTITY\ne\n'a\nb'\n>]><r>", "<!DOCTYPE r [<!ENTITY e 'a\nb'>]><r k='&e;'>&e;",
  "<!DOCTYPE r [<!--\n--><?p\nq\n?>]><r>", "<!DOCTYPE r [<!ATTLIST r\nk CDATA\n'a\nb'>]><r>",
  "<!DOCTYPE r [<!ELEMENT r\n(a\n|\nb)\n>]><r>", "<!DOCTYPE r [<!ENTITY % p\n'\n'>\n%p;]><r>", "<r\n>", "<r\nk='1'\n>",
  "<r k='\n'>", "<r k='a\n\nb'\nl='\n'>", "<r\nk\n=\n'1'\n>", "<r><a\n/>", "<r><a\nk='\n'/>", "<r><a>\n</a\n>", "<r>\n",
  "<r>a\nb\n\nc", "<r>a\n&#10;b&#13;c\n", "<r>&amp;\n&lt;\n", "<r><![CDATA[\na\n]]>\n", "<r><!--\na\n-->\n",
  "<r><?p\nq\n?>\n", "<r><a>\n<b>\n</b>\n</a>\n"};

// The beginning with such line ends and quotes, and in its last line an error.
std::string with_error(std::string const& beginning, std::string const& line_end, char quote)
{
  std::string text;
  for (char const character : beginning + "\n")
    text += character == '\n' ? line_end : std::string(1, character == '\'' ? quote : character);
  return text + "</wrong>";
}

// Whether an error in the line after each of them is told there, with every kind of line end and of quotes.
bool are_lines_counted(utUnitTest& tester, Factory const& factory)
{
  bool are_right = true;
  auto const try_one = [&](std::string const& text, int line)
  {
    for (Load const& load : {load_of(factory, text), load_of_file(factory, text)})
    {
      int const told = load.error.line_number();
      if (fails(load) && (told == -1 || told == line))
        continue;
      tester.printf("line %d, not %d: %s", told, line, axmModelText::quoted(apString(text.c_str()).view()).c_str());
      are_right = false;
    }
  };
  for (std::string const beginning : with_lines)
  {
    int const line = 2 + static_cast<int>(std::count(beginning.begin(), beginning.end(), '\n'));
    for (char const* const line_end : {"\n", "\r\n", "\r"})
      for (char const quote : {'\'', '"'})
        try_one(with_error(beginning, line_end, quote), line);
  }
  return are_right;
}
}

void axmLoadUtest::test_places(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmLoadUtest::test_places");
  struct Case
  {
    std::string text;
    int line;
    // The first and the last column that may be told.
    int first;
    int last;
    char const* description;
  };
  Case const cases[] = {
    {"<r></s>", 1, 1, 8, "in the first line"},
    {"<r>\n</s>", 2, 1, 5, "a wrong end tag"},
    {"<r>\r\n<a>\r\n</b>", 3, 1, 5, "line ends of two characters"},
    {"<r>\n\n\n  <a b=1/>", 4, 3, 11, "a value without quotes"},
    {"<r>\n<a b='1' b='2'/></r>", 2, 1, 17, "an attribute twice"},
    {"<r>\n  &x;\n</r>", 2, 3, 7, "an entity that is not declared"},
    {"<r>\n\t\t<a\n<b/></r>", 3, 1, 4, "a tag that does not end"},
    {"<?xml version='1.0'?>\n<!-- one\ntwo -->\n<r>\n</s>", 5, 1, 5, "after a comment of two lines"},
    {"<r>\n<![CDATA[\n\n]]>\n</s>", 5, 1, 5, "after a CDATA section"},
    {"<!DOCTYPE r [\n<!ENTITY e 'x'>\n]>\n<r></s>", 4, 1, 8, "after a document type"},
    {"<r k='\n\n'>\n</s>", 4, 1, 5, "after an attribute of three lines"},
    {"<r>" + many(50, "\xC3\xA4") + "</s>", 1, 54, 58, "columns are characters, not bytes"},
    {"<r k='" + many(50, "\xE2\x82\xAC") + "'></s>", 1, 59, 63, "in an attribute, too"},
    {"<" + many(50, "\xD1\x84") + "></r>", 1, 53, 57, "and in a name"},
    {"<r>" + many(50, "\xF0\x90\x90\xB7") + "</s>", 1, 54, 108, "one beyond the first plane is one character or two"},
    {"<r>\t\t\t\t\t</s>", 1, 9, 13, "a tab is one character"},
    {"<r>\r\n\r\n</s>", 3, 1, 5, "a line end of two characters is before the first column"},
    {"<r>\r\r\r</s>", 4, 1, 5, "a return ends a line, too"},
    {"<r>\xC2\x85\n\xE2\x80\xA8\r\n\r</s>", 4, 1, 5, "line ends of every kind, and what is none in this version"},
    {"<r k='\r'>\r<!--\r-->\r&x;</r>", 5, 1, 4, "returns in all that may hold them"},
    {"<!DOCTYPE r [<!ENTITY e '" + many(50, "x") + "'>]><r>&e;</s>", 1, 86, 90,
      "an entity is as long as its reference"},
    {utf16(L"<r>\n" + std::wstring(50, L'\u00E4') + L"</s>", false), 2, 51, 55, "in UTF-16, the low byte first"},
    {utf16(L"<r>\r\n" + std::wstring(50, L'\u20AC') + L"</s>", true), 2, 51, 55, "in UTF-16, the high byte first"},
    {"<r>" + many(70000, "\n") + "</s>", 70001, 1, 5, "many lines"},
    {"<r>" + many(70000, "x") + "</s>", 1, 70004, 70008, "many columns"},
  };
  for (auto const& [text, line, first, last, description] : cases)
    for (Load const& load : {load_of(factory, text), load_of_file(factory, text)})
    {
      group.check(fails(load), "fails", __LINE__, description);
      int const told = load.error.line_number();
      group.check(told == -1 ? line : told, line, "error.line_number()", __LINE__, description);
      int const column = load.error.column_number();
      group.check(column == -1 || (first <= column && column <= last), "error.column_number()", __LINE__, description);
    }
  group.check(are_lines_counted(*tester, factory), "error.line_number()", __LINE__,
    "a line end of any kind counts wherever there can be one");
  for (char const* const text : {"<r></s>", "<r k=1/>", "<?xml version='1.0'?><r>&x;</r>"})
  {
    axmParseError const plain = load_of(factory, text).error;
    axmParseError const marked = load_of(factory, std::string("\xEF\xBB\xBF") + text).error;
    group.check(plain.line_number() == marked.line_number() && plain.column_number() == marked.column_number(),
      "the place", __LINE__, "a mark at the beginning is no character of the document");
  }
  Load const in_memory = load_of(factory, "<r>");
  group.check(in_memory.error.url(), APSTRING(""), "error.url()", __LINE__, "what is in memory is in no file");
  axmParseError missing;
  bool const is_missing =
    factory->loadDocument(apPath("./load_no_such_file.xml"), axmLoadOptions(), missing) == nullptr;
  group.check(
    is_missing && is_consistent(nullptr, missing), "!error.invalid()", __LINE__, "a file that is missing has no line");
  group.check(
    fails(in_memory) && !in_memory.error.message().empty(), "!error.message().empty()", __LINE__, "and has a message");
}

namespace
{
std::string schema(std::string const& target, std::string const& content)
{
  std::string const space = target.empty() ? "" : " xmlns='" + target + "' targetNamespace='" + target + "'";
  return "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'" + space + " elementFormDefault='qualified'>" +
         content + "</xs:schema>";
}

char const order[] =
  "<xs:element name='order'><xs:complexType><xs:sequence>"
  "<xs:element name='item' maxOccurs='3'><xs:complexType><xs:simpleContent><xs:extension base='xs:token'>"
  "<xs:attribute name='n' type='xs:positiveInteger' use='required'/><xs:attribute name='unit' type='unit'/>"
  "</xs:extension></xs:simpleContent></xs:complexType></xs:element>"
  "<xs:element name='sum' type='xs:decimal'/><xs:element name='note' type='xs:string' minOccurs='0'/>"
  "</xs:sequence></xs:complexType></xs:element><xs:simpleType name='unit'><xs:restriction base='xs:string'>"
  "<xs:enumeration value='kg'/><xs:enumeration value='m'/></xs:restriction></xs:simpleType>";
}

void axmLoadUtest::test_schemas(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmLoadUtest::test_schemas");
  struct Case
  {
    char const* content;
    bool is_valid;
    char const* description;
  };
  Case const cases[] = {
    {"<item n='1'>x</item><sum>1.5</sum>", true, "what the schema asks for"},
    {"<item n='1'/><item n='2'/><item n='3'/><sum>0</sum><note>y</note>", true, "all that it allows"},
    {"<item n='1' unit='kg'/><sum>-1</sum>", true, "an attribute that may be there"},
    {" <item n=' 1 '> x  y </item>\n<sum> 1 </sum>\n", true, "blanks around values"},
    {"<sum>1</sum>", false, "an element that is missing at the beginning"},
    {"<item n='1'/>", false, "an element that is missing at the end"},
    {"<item n='1'/><item n='2'/><item n='3'/><item n='4'/><sum>1</sum>", false, "one element too many"},
    {"<item n='1'/><sum>1</sum><sum>1</sum>", false, "an element twice"},
    {"<sum>1</sum><item n='1'/>", false, "the other order"},
    {"<item n='1'/><sum>1</sum><other/>", false, "an element that it does not know"},
    {"<item n='1'/><sum>1</sum>text", false, "a text where none may be"},
    {"<item/><sum>1</sum>", false, "a required attribute that is missing"},
    {"<item n='0'/><sum>1</sum>", false, "a value out of range"},
    {"<item n='1' unit='g'/><sum>1</sum>", false, "a value that is not in the list"},
    {"<item n='1' unit=''/><sum>1</sum>", false, "an empty value that is not in the list"},
    {"<item n='1' more='x'/><sum>1</sum>", false, "an attribute that it does not know"},
    {"<item n='1'><b/></item><sum>1</sum>", false, "an element in a simple value"},
    {"<item n='1'/><sum>1,5</sum>", false, "a value of another form"},
    {"<item n='1'/><sum/>", false, "a value that is empty"},
  };
  for (bool const has_namespace : {false, true})
  {
    apPath const path = unique(APSTRING("order"), APSTRING("xsd"));
    axmUtestFile const removed_at_the_end(path);
    axmUtestUtils::write_data(path, schema(has_namespace ? "urn:order" : "", order).c_str());
    axmLoadOptions options(axmValidateWithSchemas);
    if (has_namespace)
      options.add_external_schema(APSTRING("urn:order"), path);
    else
      options.set_no_namespace_schema(path);
    std::string const begin = has_namespace ? "<order xmlns='urn:order'>" : "<order>";
    for (auto const& [content, is_valid, description] : cases)
    {
      std::string const text = begin + content + "</order>";
      for (Load const& load : {load_of(factory, text, options), load_of_file(factory, text, options)})
        group.check(is_valid ? loads(load) : fails(load), is_valid ? "loads" : "fails", __LINE__, description);
    }
    std::string const other = has_namespace ? "<other xmlns='urn:order'/>" : "<other/>";
    group.check(fails(load_of(factory, other, options)), "fails", __LINE__, "a root that the schema does not declare");
    Load const spaced = load_of(factory, begin + "<item n=' 1 '> x  y </item><sum> 1 </sum></order>", options);
    auto const item = child_of(root_of(spaced.document), 0);
    group.check(text_of(item), APSTRING(" x  y "), "item->get_text()", __LINE__, "validation changes no text");
    group.check(
      attribute_of(item, APSTRING("n")), APSTRING(" 1 "), "item->getAttribute(\"n\")", __LINE__, "and no attribute");
  }
}

namespace
{
struct Place
{
  char const* text;
  int line;
};

// What stands in an order that breaks its schema, and where: in one line, so that there is no doubt.
Place const places_in_orders[] = {{"\n<item n='1'/>\n<sum>x</sum>", 3}, {"<!--\n\n--><item n='0'/><sum>1</sum>", 3},
  {"<?p\nq?>\n<item n='1'/><other/>", 3}, {"<item\nn='1'\n/>\n<sum>1</sum>\n<other/>", 5},
  {"\r\n<item n='1' more='x'/>\r\n<sum>1</sum>", 2}, {"<item n='1'><![CDATA[\n\n]]></item>\n<sum>1,5</sum>", 4},
  {"<item n='1' unit='g'/>\n<sum>1</sum>", 1}, {"\r\r<item n='1'/><sum>1</sum>text<other/>", 3}};

// The same of schemas that cannot be used.
Place const places_in_schemas[] = {{"\n<xs:element name='a'/>\n<xs:element name='order' type='none'/>\n", 3},
  {"<!--\n-->\n<xs:simpleType name='t'><xs:restriction base='xs:int'><xs:minInclusive value='x'/></xs:restriction>"
   "</xs:simpleType>\n<xs:element name='order'/>",
    3},
  {"\n\n\n<xs:element name='order' name='a'/>\n", 4}, {"\r\n<xs:element name='order'>&none;</xs:element>\n", 2},
  {"<xs:annotation>\n<xs:documentation>a\nb</xs:documentation>\n</xs:annotation>\n<xs:element name='order' "
   "minOccurs='2'/>\n",
    5}};
}

void axmLoadUtest::test_schema_places(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmLoadUtest::test_schema_places");
  OutsideFolder const folder;
  axmLoadOptions options(axmValidateWithSchemas);
  options.set_no_namespace_schema(folder.in("schema.xsd"));
  auto const fails_at = [&](std::string const& document, char const* name, int line)
  {
    Load const in_memory = load_of(factory, document, options);
    Load const in_file = folder.load(factory, document.c_str(), options);
    int const told = in_memory.error.line_number();
    bool const is_right = fails(in_memory) && fails(in_file) && (told == -1 || told == line) &&
                          (in_file.error.url().empty() || is_place(in_file.error, name, line));
    if (!is_right)
      tester->printf("Expected line %d of %s\nActual   line %d of %s\n%s", line, name, in_file.error.line_number(),
        in_file.error.url().to_utf8().c_str(), document.c_str());
    return is_right;
  };
  write(folder.in("schema.xsd"), schema("", order));
  for (auto const& [content, line] : places_in_orders)
    group.check(fails_at("<order>" + std::string(content) + "</order>", "document.xml", line), "the place", __LINE__,
      "what breaks a schema is in the document");
  for (auto const& [content, line] : places_in_schemas)
  {
    write(folder.in("schema.xsd"), schema("", content));
    group.check(fails_at("\n\n\n\n\n\n<order/>", "schema.xsd", line), "the place", __LINE__,
      "what is wrong in a schema is there");
  }
  write(folder.in("schema.xsd"), schema("", "<xs:include schemaLocation='sub/outer.xsd'/>"));
  write(
    folder.in("sub/outer.xsd"), schema("", "<xs:include schemaLocation='inner.xsd'/><xs:element name='v' type='t'/>"));
  write(
    folder.in("sub/inner.xsd"), schema("", "<xs:simpleType name='t'><xs:restriction base='xs:int'/></xs:simpleType>"));
  group.check(loads(load_of(factory, "<v>1</v>", options)) && fails(load_of(factory, "<v>x</v>", options)),
    "loads(valid) && fails(invalid)", __LINE__, "schemas name each other from where they are");
}

void axmLoadUtest::test_schema_sets(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmLoadUtest::test_schema_sets");
  apPath const plain = unique(APSTRING("plain"), APSTRING("xsd"));
  apPath const one = unique(APSTRING("one"), APSTRING("xsd"));
  apPath const two = unique(APSTRING("two"), APSTRING("xsd"));
  axmUtestFile const plain_removed_at_the_end(plain);
  axmUtestFile const one_removed_at_the_end(one);
  axmUtestFile const two_removed_at_the_end(two);
  apPath const more = unique(APSTRING("more"), APSTRING("xsd"));
  axmUtestFile const more_removed_at_the_end(more);
  std::string const holder = "<xs:element name='h'><xs:complexType><xs:sequence><xs:any namespace='##any' "
                             "processContents='strict' minOccurs='0' maxOccurs='unbounded'/></xs:sequence>"
                             "</xs:complexType></xs:element><xs:element name='v' type='xs:int'/>";
  axmUtestUtils::write_data(plain, schema("", holder).c_str());
  axmUtestUtils::write_data(one, schema("urn:one", holder).c_str());
  axmUtestUtils::write_data(two, schema("urn:two", "<xs:element name='v' type='xs:boolean'/>").c_str());
  axmUtestUtils::write_data(more, schema("urn:two", "<xs:element name='w' type='xs:int'/>").c_str());
  axmLoadOptions options(axmValidateWithSchemas);
  options.set_no_namespace_schema(plain);
  options.add_external_schema(APSTRING("urn:one"), one);
  options.add_external_schema(APSTRING("urn:two"), two);
  struct Case
  {
    char const* text;
    bool is_valid;
    char const* description;
  };
  Case const cases[] = {
    {"<h><v>1</v></h>", true, "the schema for no namespace"},
    {"<h><v>x</v></h>", false, "the schema for no namespace counts"},
    {"<h xmlns='urn:one'><v>1</v></h>", true, "the first namespace"},
    {"<h xmlns='urn:one'><v>true</v></h>", false, "the first namespace counts"},
    {"<h xmlns='urn:one' xmlns:t='urn:two'><t:v>true</t:v><v>1</v></h>", true, "two namespaces in one document"},
    {"<h xmlns='urn:one' xmlns:t='urn:two'><t:v>12</t:v><v>1</v></h>", false, "the second one counts"},
    {"<h xmlns='urn:one' xmlns:t='urn:two'><t:v>true</t:v><v>x</v></h>", false, "and the first one beside it"},
    {"<o:h xmlns:o='urn:one'><v>1</v><o:v>1</o:v></o:h>", true, "a namespace and none in one document"},
    {"<o:h xmlns:o='urn:one'><v>x</v><o:v>1</o:v></o:h>", false, "what is in none counts"},
    {"<h><h><h><h><h><v>1</v></h></h></h></h></h>", true, "far down"},
    {"<h><h><h><h><h><v>x</v></h></h></h></h></h>", false, "what is far down counts"},
    {"<h><v>1</v><w/></h>", false, "an element that nothing declares"},
  };
  // The namespace is that of a third schema, too.
  options.add_external_schema(APSTRING("urn:two"), more);
  Case const cases_of_two[] = {
    {"<h xmlns='urn:one' xmlns:t='urn:two'><t:v>true</t:v><t:w>1</t:w></h>", true, "two schemas for one namespace"},
    {"<h xmlns='urn:one' xmlns:t='urn:two'><t:v>12</t:v><t:w>1</t:w></h>", false, "the first of the two counts"},
    {"<h xmlns='urn:one' xmlns:t='urn:two'><t:v>true</t:v><t:w>x</t:w></h>", false, "and the second one"},
  };
  for (auto const& [text, is_valid, description] : cases)
    for (Load const& load : {load_of(factory, text, options), load_of_file(factory, text, options)})
      group.check(is_valid ? loads(load) : fails(load), is_valid ? "loads" : "fails", __LINE__, description);
  for (auto const& [text, is_valid, description] : cases_of_two)
    for (Load const& load : {load_of(factory, text, options), load_of_file(factory, text, options)})
      group.check(is_valid ? loads(load) : fails(load), is_valid ? "loads" : "fails", __LINE__, description);
  std::string const name = plain.path().c_str();
  std::string const instance = " xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' ";
  axmLoadOptions other_options(axmValidateWithSchemas);
  other_options.add_external_schema(APSTRING("urn:two"), two);
  for (axmLoadOptions const& given : {axmLoadOptions(), axmLoadOptions(axmValidateWithSchemas), other_options})
    for (std::string const& text : {"<h" + instance + "xsi:noNamespaceSchemaLocation='" + name + "'><v>x</v></h>",
           "<h xmlns='urn:one'" + instance + "xsi:schemaLocation='urn:one " + one.path().c_str() + "'><v>x</v></h>"})
      group.check(loads(load_of(factory, text, given)) && loads(load_of_file(factory, text, given)), "loads", __LINE__,
        "a schema that the document names is not one that is given");
  axmUtestUtils::write_data(plain, schema("", "<xs:element name='v' type='xs:boolean'/>").c_str());
  group.check(
    loads(load_of(factory, "<v>true</v>", options)), "loads", __LINE__, "a schema is read anew at every load");
  group.check(fails(load_of(factory, "<v>12</v>", options)), "fails", __LINE__, "and the old one is forgotten");
}

void axmLoadUtest::test_saved_sizes(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmLoadUtest::test_saved_sizes");
  apPath const path = unique(APSTRING("sizes"), APSTRING("xml"));
  axmUtestFile const removed_at_the_end(path);
  auto const document = factory->createDocument(APSTRING("r"));
  auto const root = root_of(document);
  if (!group.prerequisite(root != nullptr, "root.get()", __LINE__, "Prerequisite: create document"))
    return;
  int number = 0;
  int right = 0;
  for (int const border : {512, 1024, 4096, 8192, 16384, 65536})
    for (int distance = -70; distance <= 2; ++distance, ++number)
    {
      std::wstring text(static_cast<std::size_t>(border + distance), L'x');
      wchar_t const* const ends[] = {L"\u20AC", L"&", L"\u00E4<", L"\U00010437"};
      text += ends[number % 4];
      root->set_text(apString(std::wstring_view(text)));
      apByteArray output;
      axmParseError error;
      // To a file now and then: it may take long until one is on the disk.
      bool const to_file = number % 16 == 0;
      bool const saved = to_file ? factory->saveDocument(document, path) : factory->saveDocument(document, output);
      auto const copy = to_file ? factory->loadDocument(path, axmLoadOptions(), error)
                                : factory->loadDocument(output, axmLoadOptions(), error);
      right += saved && text_of(root_of(copy)).view() == text && number_of_children(root_of(copy)) == 1 ? 1 : 0;
    }
  group.check(right, number, "documents that come back", __LINE__, "saved documents of every size around buffers");
}

void axmLoadUtest::test_second_saves(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmLoadUtest::test_second_saves");
  apPath const path = unique(APSTRING("second"), APSTRING("xml"));
  axmUtestFile const removed_at_the_end(path);
  auto const document = load_of(factory, "<r><a>1</a><b k='v'>2</b></r>").document;
  auto const root = root_of(document);
  if (!group.prerequisite(root != nullptr, "root.get()", __LINE__, "Prerequisite: load document"))
    return;
  auto const saved_shape = [&]
  {
    axmParseError error;
    bool const saved = factory->saveDocument(document, path);
    return saved ? shape(root_of(factory->loadDocument(path, axmLoadOptions(), error))) : APSTRING("(not saved)");
  };
  group.check(saved_shape(), APSTRING("<r><a>1<b>2"), "shape(loaded)", __LINE__, "the first save");
  root->set_text(APSTRING("short"));
  group.check(saved_shape(), APSTRING("<r>short"), "shape(loaded)", __LINE__, "a second one of less");
  append(root, created(document, APSTRING("added")));
  group.check(saved_shape(), APSTRING("<r>short<added>"), "shape(loaded)", __LINE__, "a third one of more");
  auto const other = factory->createDocument(APSTRING("other"));
  group.check(other != nullptr && factory->saveDocument(other, path), "factory->saveDocument(other, path)", __LINE__,
    "another document to the same file");
  group.check(saved_shape(), APSTRING("<r>short<added>"), "shape(loaded)", __LINE__, "and the first one again");
  apString const xml = xml_of(document);
  apByteArray one;
  apByteArray another;
  group.check(factory->saveDocument(document, one) && factory->saveDocument(document, another) && one == another,
    "one == another", __LINE__, "two saves of one document are equal");
  for (std::size_t const size : {std::size_t(1), std::size_t(one.size()), std::size_t(100000)})
  {
    apByteArray output = bytes_in(std::string(size, 'x'));
    group.check(factory->saveDocument(document, output) && output == one, "output == one", __LINE__,
      "a save takes the place of what was there, however much that is");
  }
  group.check(xml_of(document), xml, "document->get_xml()", __LINE__, "and change nothing");
  group.check(xml.find(APSTRING("<?xml ")), 0, "document->get_xml()", __LINE__,
    "the XML of a document begins with its declaration");
}

namespace
{
// What is done to the root of a document before it is saved. It may be refused only if `may_be_refused`.
struct Edit
{
  char const* text;
  void (*edit)(axmDocument& document, axmElement& root);
  bool may_be_refused;
  char const* description;
};

void add(axmDocument& document, axmElement& parent, char const* name)
{
  if (auto const element = document.createElement(apString(name)))
    parent.appendChild(element);
}

Node attribute_node(axmElement& element, wchar_t const* name)
{
  auto const map = element.getAttributes();
  return map != nullptr ? map->getNamedItem(name) : nullptr;
}

Node taken_attribute(axmElement& element, wchar_t const* name)
{
  auto const map = element.getAttributes();
  return map != nullptr ? map->removeNamedItem(name) : nullptr;
}

void set_first(axmElement& root, wchar_t const* text)
{
  if (Node const first = root.getFirstChild())
    first->set_text(text);
}

// Ends of lines in other versions, blanks of other scripts, deletions, ends of ranges, a mark, and what is beyond U+FFFF.
wchar_t const odd_characters[] =
  L"a\x7F\u0080\u0085\u009F\u00A0\u00AD\u2028\u2029\u3000\uD7FF\uE000\uFEFF\uFFFD\U00010000\U0010FFFFz";

char const with_types[] = "<!DOCTYPE r [<!ATTLIST r k NMTOKENS #IMPLIED d CDATA 'x'>]><r k='a'/>";

Edit const edits[] = {
  {"<r xmlns:p='u'/>", [](axmDocument& d, axmElement& r) { add(d, r, "p:x"); }, true, "a prefix that is declared"},
  {"<r/>", [](axmDocument& d, axmElement& r) { add(d, r, "p:x"); }, true, "a prefix that is not declared"},
  {"<r/>", [](axmDocument&, axmElement& r) { r.setAttribute(L"p:k", L"v"); }, true, "an attribute with such a prefix"},
  {"<r><a xmlns:p='u'/></r>", [](axmDocument& d, axmElement& r) { add(d, r, "p:x"); }, true,
    "a prefix that is declared elsewhere"},
  {"<r xmlns:p='u' xmlns:q='u'/>",
    [](axmDocument&, axmElement& r)
    {
      r.setAttribute(L"p:k", L"1");
      r.setAttribute(L"q:k", L"2");
    },
    true, "two attributes of one name in one namespace"},
  {"<r xmlns:p='u' xmlns:q='v'/>",
    [](axmDocument&, axmElement& r)
    {
      r.setAttribute(L"p:k", L"1");
      r.setAttribute(L"q:k", L"2");
    },
    true, "and in two"},
  {"<r xmlns:p='u'><p:a/></r>", [](axmDocument&, axmElement& r) { r.setAttribute(L"xmlns:p", L""); }, true,
    "a prefix that is undeclared"},
  {"<r xmlns:p='u'><p:a/></r>", [](axmDocument&, axmElement& r) { r.removeAttribute(L"xmlns:p"); }, true,
    "a declaration that is taken out"},
  {"<r/>", [](axmDocument&, axmElement& r) { r.setAttribute(L"xmlns:xml", L"u"); }, true, "a prefix for another"},
  {"<r/>", [](axmDocument&, axmElement& r) { r.setAttribute(L"xmlns:xmlns", L"u"); }, true, "one that is for nobody"},
  {"<r/>", [](axmDocument& d, axmElement& r) { add(d, r, "x:"); }, true, "a prefix without a name"},
  {"<r/>", [](axmDocument& d, axmElement& r) { add(d, r, ":x"); }, true, "a name without a prefix"},
  {"<r xmlns:a='u'/>", [](axmDocument& d, axmElement& r) { add(d, r, "a:b:c"); }, true, "two colons"},
  {"<r xmlns:a='u'/>", [](axmDocument& d, axmElement& r) { add(d, r, "a:1"); }, true, "a name that begins wrong"},
  {"<r xmlns='u'><a/></r>", [](axmDocument& d, axmElement& r) { add(d, r, "x"); }, false, "no prefix"},
  {with_types, [](axmDocument&, axmElement& r) { r.setAttribute(L"k", L"a  b"); }, true, "two blanks among tokens"},
  {with_types, [](axmDocument&, axmElement& r) { r.setAttribute(L"k", L" a"); }, true, "a blank before tokens"},
  {with_types, [](axmDocument&, axmElement& r) { r.setAttribute(L"k", L"a "); }, true, "a blank after tokens"},
  {with_types, [](axmDocument&, axmElement& r) { r.setAttribute(L"k", L"a b c"); }, false, "single blanks"},
  {with_types, [](axmDocument&, axmElement& r) { r.setAttribute(L"k", L""); }, false, "no tokens"},
  {with_types, [](axmDocument&, axmElement& r) { r.setAttribute(L"n", L" a  b "); }, false, "what is no tokens"},
  {with_types, [](axmDocument&, axmElement& r) { r.setAttribute(L"d", L" y "); }, false, "a default that is another"},
  {with_types, [](axmDocument&, axmElement& r) { r.removeAttribute(L"d"); }, true, "a default that is taken out"},
  {"<!--c--><?p?><!DOCTYPE r [<!ATTLIST r d CDATA 'x'>]><r/>",
    [](axmDocument&, axmElement& r) { r.removeAttribute(L"d"); }, true, "the same after a comment"},
  {with_types, [](axmDocument& d, axmElement& r) { add(d, r, "r"); }, true, "a new element without its default"},
  {with_types, [](axmDocument& d, axmElement& r) { add(d, r, "s"); }, false, "an element without any"},
  {"<r><?t x?></r>", [](axmDocument&, axmElement& r) { set_first(r, L"a?>b"); }, true, "the end of an instruction"},
  {"<r><?t x?></r>", [](axmDocument&, axmElement& r) { set_first(r, L" a"); }, true, "a blank at its beginning"},
  {"<r><?t x?></r>", [](axmDocument&, axmElement& r) { set_first(r, L"a ?"); }, false, "a question mark"},
  {"<r><?t x?></r>", [](axmDocument&, axmElement& r) { set_first(r, L""); }, false, "an empty instruction"},
  {"<r><?t x?></r>", [](axmDocument&, axmElement& r) { set_first(r, L"\u0444&<"); }, false, "any characters in it"},
  {"<r><?t x?></r>", [](axmDocument&, axmElement& r) { set_first(r, L"a\x01"); }, true, "what no document holds"},
  {"<r><!--x--></r>", [](axmDocument&, axmElement& r) { set_first(r, L"a -> b <c> &d; ]]>"); }, false, "a comment"},
  {"<r><!--x--></r>", [](axmDocument&, axmElement& r) { set_first(r, L"-a"); }, false, "a hyphen at its beginning"},
  {"<r><!--x--></r>", [](axmDocument&, axmElement& r) { set_first(r, L"a\rb\r\n"); }, true, "a return in a comment"},
  {"<r><?t x?></r>", [](axmDocument&, axmElement& r) { set_first(r, L"a\rb\r\n"); }, true, "one in an instruction"},
  {"<r><![CDATA[x]]></r>", [](axmDocument&, axmElement& r) { set_first(r, L"a]]>b"); }, true, "the end of a section"},
  {"<r><![CDATA[x]]></r>", [](axmDocument&, axmElement& r) { set_first(r, L"a\rb"); }, true, "a return in a section"},
  {"<r><![CDATA[x]]></r>", [](axmDocument&, axmElement& r) { set_first(r, L"<&>\"'"); }, false, "markup in a section"},
  {"<r><![CDATA[x]]></r>", [](axmDocument&, axmElement& r) { set_first(r, L"a\x01"); }, true, "a character in one"},
  {"<r>x</r>", [](axmDocument&, axmElement& r) { set_first(r, L"]]>\r\n&lt;\t<>"); }, false, "a text"},
  {"<r k='x'/>", [](axmDocument&, axmElement& r) { r.setAttribute(L"k", L"\t\r\n \"'<>&"); }, false, "a value"},
  {"<r k='x'>x</r>",
    [](axmDocument&, axmElement& r)
    {
      r.setAttribute(L"k", odd_characters);
      set_first(r, odd_characters);
    },
    false, "characters that look like others"},
  {"<r><?t x?></r>", [](axmDocument&, axmElement& r) { set_first(r, odd_characters); }, false,
    "such characters in an instruction"},
  {"<r><!--x--></r>", [](axmDocument&, axmElement& r) { set_first(r, odd_characters); }, false,
    "such characters in a comment"},
  {"<r>x</r>",
    [](axmDocument& d, axmElement& r)
    {
      set_first(r, L"]]");
      r.appendChild(d.createTextNode(L">"));
    },
    false, "the end of a CDATA section in two texts"},
  {"<r/>",
    [](axmDocument& d, axmElement& r)
    {
      r.appendChild(d.createTextNode(L"a\r"));
      r.appendChild(d.createTextNode(L"\nb"));
    },
    false, "a line end of two characters in two texts"},
  {"<r k='x'/>", [](axmDocument&, axmElement& r) { set_text(attribute_node(r, L"k"), L"y"); }, false,
    "an attribute by itself"},
  {"<r k='x' l='y'/>", [](axmDocument&, axmElement& r) { taken_attribute(r, L"k"); }, false,
    "an attribute taken out of the map"},
  {"<r k='x'><a k='y'/></r>",
    [](axmDocument&, axmElement& r)
    {
      auto const other = std::dynamic_pointer_cast<axmElement>(r.getFirstChild());
      auto const map = r.getAttributes();
      if (map != nullptr && other != nullptr)
        map->setNamedItem(taken_attribute(*other, L"k"));
    },
    false, "an attribute put into the map"},
  {"<r k='x'/>", [](axmDocument&, axmElement& r) { r.set_attribute(L"k", 5); }, false, "a number as a value"},
  {"<r k='x'/>", [](axmDocument&, axmElement& r) { r.removeAttribute(L"k"); }, false, "the only attribute taken out"},
  {"<r>x<a/></r>", [](axmDocument&, axmElement& r) { r.set_text(L"y"); }, false, "a text in the place of all"},
  {"<r>x<a/></r>", [](axmDocument&, axmElement& r) { r.removeChild(r.getLastChild()); }, false, "a child taken out"},
  {"<r>x<a/></r>",
    [](axmDocument&, axmElement& r) { r.insertBefore(r.removeChild(r.getLastChild()), r.getFirstChild()); }, false,
    "children that change places"},
  {"<r><a/></r>", [](axmDocument& d, axmElement& r) { r.replaceChild(d.createElement(L"b"), r.getFirstChild()); },
    false, "a child in the place of another"},
  {"<!--c--><r/>", [](axmDocument& d, axmElement&) { set_text(d.getFirstChild(), L"d"); }, false,
    "a comment before all"},
  {"<r/><?p x?>", [](axmDocument& d, axmElement&) { set_text(d.getLastChild(), L"y"); }, false,
    "an instruction after all"},
  {"<!--c--><r/>", [](axmDocument& d, axmElement&) { d.removeChild(d.getFirstChild()); }, false,
    "a comment taken out of the document"},
};
}

void axmLoadUtest::test_saved_edits(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmLoadUtest::test_saved_edits");
  for (auto const& [text, edit, may_be_refused, description] : edits)
  {
    auto const document = load_of(factory, text).document;
    auto const root = root_of(document);
    if (!group.prerequisite(root != nullptr, "root.get()", __LINE__, "Prerequisite: load document"))
      continue;
    // What was saved before the edit is not what is saved after it.
    apByteArray output;
    factory->saveDocument(document, output);
    edit(*document, *root);
    if (!factory->saveDocument(document, output))
    {
      group.check(may_be_refused, "factory->saveDocument(document, output)", __LINE__, description);
      continue;
    }
    axmParseError error;
    auto const copy = factory->loadDocument(output, axmLoadOptions(), error);
    apString const promised(axmXmlTables::shape_of(document).c_str());
    group.check(copy != nullptr ? apString(axmXmlTables::shape_of(copy).c_str()) : APSTRING("(no document)"), promised,
      "what was saved, loaded again", __LINE__, description);
  }
}

void axmLoadUtest::test_refused_saves(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmLoadUtest::test_refused_saves");
  apPath const path = unique(APSTRING("refused"), APSTRING("xml"));
  apPath const absent = unique(APSTRING("absent"), APSTRING("xml"));
  axmUtestFile const removed_at_the_end(path);
  axmUtestFile const absent_at_the_end(absent);
  auto const refuses = [&](Document const& document)
  {
    axmUtestUtils::write_data(path, "<before/>");
    apByteArray output = bytes_of("before");
    axmParseError error;
    return document != nullptr && !factory->saveDocument(document, path) && !factory->saveDocument(document, output) &&
           output == bytes_of("before") && document->get_xml().empty() &&
           name_of(root_of(factory->loadDocument(path, axmLoadOptions(), error))) == APSTRING("before") &&
           !factory->saveDocument(document, absent) && !absent.exists();
  };
  for (wchar_t const* const text : {L"\x01", L"a\x08", L"\x0B", L"\x0C", L"\x1F", L"\uFFFE", L"\uFFFF"})
  {
    auto const in_text = factory->createDocument(APSTRING("r"));
    append(root_of(in_text), in_text != nullptr ? in_text->createTextNode(text) : nullptr);
    group.check(refuses(in_text), "refuses(document)", __LINE__, "a text that no document holds");
    auto const in_attribute = load_of(factory, "<r><a><b/></a></r>").document;
    auto const inner = std::dynamic_pointer_cast<axmElement>(first_of(first_of(root_of(in_attribute))));
    if (inner != nullptr)
      inner->setAttribute(APSTRING("k"), text);
    group.check(refuses(in_attribute), "refuses(document)", __LINE__, "an attribute that no document holds");
  }
  using Put = void (*)(Document const& document, Node const& comment);
  Put const places[] = {
    [](Document const& document, Node const& comment) { append(root_of(document), comment); },
    [](Document const& document, Node const& comment) { append(first_of(first_of(root_of(document))), comment); },
    [](Document const& document, Node const& comment) { append(document, comment); },
    [](Document const& document, Node const& comment) { insert(document, comment, root_of(document)); },
  };
  for (wchar_t const* const text : {L"--", L"a--b", L"a-", L"-", L"\x01"})
    for (Put const put : places)
    {
      auto const document = load_of(factory, "<r><a><b/></a></r>").document;
      put(document, document != nullptr ? document->createComment(text) : nullptr);
      group.check(refuses(document), "refuses(document)", __LINE__, "a comment that no document holds");
    }
  auto const rootless = factory->createDocument(APSTRING("r"));
  remove(rootless, root_of(rootless));
  group.check(refuses(rootless), "refuses(document)", __LINE__, "a document without a root");
  apByteArray output = bytes_of("before");
  group.check(!factory->saveDocument(nullptr, output) && output == bytes_of("before"),
    "!factory->saveDocument(nullptr, output)", __LINE__, "no document");
  group.check(!factory->saveDocument(nullptr, path), "!factory->saveDocument(nullptr, path)", __LINE__, "no document");
  auto const document = factory->createDocument(APSTRING("r"));
  group.check(!factory->saveDocument(document, apPath()), "!factory->saveDocument(document, apPath())", __LINE__,
    "a path that names nothing");
  apPath const full("/dev/full");
  group.check(!full.exists() || !factory->saveDocument(document, full), "!factory->saveDocument(document, full)",
    __LINE__, "a device that takes nothing, where the system has one");
  auto const large = load_of(factory, "<r>" + many(20000, "<a>a text of some length</a>") + "</r>").document;
  group.check(!full.exists() || (large != nullptr && !factory->saveDocument(large, full)),
    "!factory->saveDocument(large, full)", __LINE__, "nor a large document");
}

void axmLoadUtest::test_save_obstacles(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmLoadUtest::test_save_obstacles");
  auto const obstacles = std::dynamic_pointer_cast<axmSaveObstacles>(factory);
  // A sentence without its end where a save is refused, nothing where it is done.
  auto const is_told = [&](Document const& document)
  {
    apByteArray output;
    apString const told = obstacles->obstacle(*document);
    return factory->saveDocument(document, output) ? told.empty() : !told.empty() && told.view().back() != L'.';
  };
  bool are_told = true;
  for (auto const& [text, edit, may_be_refused, description] : edits)
  {
    auto const document = load_of(factory, text).document;
    auto const root = root_of(document);
    if (obstacles == nullptr || root == nullptr)
      continue;
    edit(*document, *root);
    are_told = are_told && is_told(document);
    root->set_text(APSTRING("\u0001"));
    are_told = are_told && is_told(document);
    remove(document, root);
    are_told = are_told && is_told(document);
  }
  group.check(are_told, "obstacles->obstacle(*document)", __LINE__,
    "what keeps a document from being saved, where the factory tells it");
}
