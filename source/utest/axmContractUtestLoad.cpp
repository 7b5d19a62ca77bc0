#include "axmContractUtest.h"

#include "axmUtestAccess.h"
#include "axmUtestFile.h"
#include "axmUtestGroup.h"
#include "axmUtestUtils.h"

#include <filesystem>
#include <string>
#include <system_error>

using namespace axmUtestAccess;

namespace
{
using Factory = std::shared_ptr<axmDocumentFactory>;
using Document = std::shared_ptr<axmDocument>;

char const file[] = "source/utest/axmContractUtestLoad";

char const machine_schema[] =
  "<?xml version=\"1.0\"?><xs:schema xmlns:xs=\"http://www.w3.org/2001/XMLSchema\" xmlns=\"ContractTest\" "
  "targetNamespace=\"ContractTest\" elementFormDefault=\"qualified\"><xs:element name=\"machine\"><xs:complexType>"
  "<xs:sequence><xs:element name=\"part\" type=\"xs:int\" maxOccurs=\"unbounded\"/></xs:sequence>"
  "</xs:complexType></xs:element></xs:schema>";

char const valid_machine[] = "<machine xmlns=\"ContractTest\">\n  <part>1</part>\n  <part>2</part>\n</machine>";
char const invalid_machine[] = "<machine xmlns=\"ContractTest\">\n  <part>1</part>\n  <part>two</part>\n</machine>";

apPath unique(apString const& name, apString const& extension)
{
  return axmUtestUtils::uniquify_filename(APSTRING("./contract_") + name, extension);
}

apPath absolute(apPath const& path)
{
  std::error_code ignored;
  std::filesystem::path const found = std::filesystem::absolute(std::filesystem::u8path(path.path().c_str()), ignored);
  return apPath(found.generic_u8string().c_str());
}

bool fails(Factory const& factory, apByteArray const& data, axmLoadOptions const& options = axmLoadOptions())
{
  axmParseError error;
  return factory->loadDocument(data, options, error) == nullptr && !error.invalid();
}

bool loads(Factory const& factory, apByteArray const& data, axmLoadOptions const& options = axmLoadOptions())
{
  axmParseError error;
  return factory->loadDocument(data, options, error) != nullptr && error.invalid();
}

axmLoadOptions with_schema(apPath const& path)
{
  axmLoadOptions options(axmValidateWithSchemas);
  options.add_external_schema(APSTRING("ContractTest"), path);
  return options;
}

// The texts of the children, each in brackets.
apString texts(Document const& document)
{
  apString result;
  auto const children = children_of(root_of(document));
  for (int index = 0; index < loop_length_of(children); ++index)
    result += APSTRING("[") + text_of(children->at(index)) + APSTRING("]");
  return result;
}

// A document whose text is `count` references to an internal entity.
apByteArray with_references(int count)
{
  std::string text = "<!DOCTYPE r [<!ENTITY e \"x\">]><r>";
  for (int reference = 0; reference < count; ++reference)
    text += "&e;";
  return bytes_of((text + "</r>").c_str());
}

axmLoadOptions with_limit(int limit)
{
  axmLoadOptions options;
  options.set_entity_expansion_limit(limit);
  return options;
}
}

void axmContractUtest::test_load_success(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmContractUtest::test_load_success");
  apByteArray const data =
    bytes_of("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<r A='\xC3\xA4'>\xD1\x84 &lt;&#x20AC;<b/></r>");
  axmParseError error;
  auto const document = factory->loadDocument(data, axmLoadOptions(), error);
  auto const root = root_of(document);
  group.check(attribute_of(root, APSTRING("A")), APSTRING("\u00E4"), "root->getAttribute(\"A\")", __LINE__,
    "UTF-8 in an attribute");
  group.check(
    text_of(root), APSTRING("\u0444 <\u20AC"), "root->get_text()", __LINE__, "UTF-8 and references in a text");
  bool const untouched = error.invalid() && error.message().empty() && error.url().empty() &&
                         error.line_number() == -1 && error.column_number() == -1;
  group.check(untouched, "the error is as it was made", __LINE__, "a load that succeeds leaves the error untouched");

  axmParseError earlier(APSTRING("earlier"));
  earlier.set_line_number(7);
  group.check(factory->loadDocument(data, axmLoadOptions(), earlier) != nullptr, "document.get()", __LINE__,
    "a load succeeds with an earlier error");
  group.check(!earlier.invalid() && earlier.message() == APSTRING("earlier") && earlier.line_number() == 7,
    "the earlier error is as it was", __LINE__, "and leaves it untouched");

  apPath const path = unique(APSTRING("load"), APSTRING("xml"));
  axmUtestFile const removed_at_the_end(path);
  axmUtestUtils::write_data(path, "<r A='1'>\n  <b>one</b>  <c> two </c>\n</r>\n");
  axmParseError fresh;
  auto const from_file = factory->loadDocument(path, axmLoadOptions(), fresh);
  group.check(
    from_file != nullptr && fresh.invalid(), "document.get() && error.invalid()", __LINE__, "load from a file");
  group.check(texts(from_file), APSTRING("[one][ two ]"), "texts(document)", __LINE__, "with what stands in it");
  group.check(attribute_of(root_of(from_file), APSTRING("A")), APSTRING("1"), "root->getAttribute(\"A\")", __LINE__,
    "and its attributes");
  auto const again = factory->loadDocument(path, axmLoadOptions(), fresh);
  remove(root_of(from_file), first_of(root_of(from_file)));
  group.check(
    texts(again), APSTRING("[one][ two ]"), "texts(again)", __LINE__, "each load gives a document of its own");
  axmUtestUtils::write_data(path, "<r><d>new</d></r>");
  group.check(texts(factory->loadDocument(path, axmLoadOptions(), fresh)), APSTRING("[new]"), "texts(document)",
    __LINE__, "a load reads what is there now");
}

void axmContractUtest::test_load_failure(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmContractUtest::test_load_failure");
  char const* const malformed[] = {"", "  \n ", "Hello World", "<a>", "<a></b>", "</a>", "<a b=1/>", "<a b='1' b='2'/>",
    "<a/><b/>", "<a/>text", "<a>&undefined;</a>", "<a>&</a>", "<a b='<'/>", "<a><!-- -- --></a>", "<1/>", "<a>\x01</a>",
    "<a>\xFF</a>", "<?xml version=\"1.0\"?>"};
  for (char const* const text : malformed)
    group.check(fails(factory, bytes_of(text)), "!document.get() && !error.invalid()", __LINE__,
      "what is not a document does not load");
  char const with_zero[] = "<a/>\0<b/>";
  group.check(fails(factory, apByteArray(with_zero, sizeof with_zero - 1)), "!document.get() && !error.invalid()",
    __LINE__, "a zero byte ends nothing");
  apByteArray cut = bytes_of("<a>text</a>");
  cut.resize(cut.size() - 1);
  group.check(fails(factory, cut), "!document.get() && !error.invalid()", __LINE__, "the size of the data counts");
  group.check(loads(factory, bytes_of("<a/>")), "document.get() && error.invalid()", __LINE__,
    "the factory is usable after failures");

  axmParseError error(APSTRING("earlier"));
  factory->loadDocument(bytes_of("<a>"), axmLoadOptions(), error);
  group.check(!error.invalid() && error.message() != APSTRING("earlier"), "error.message() != earlier", __LINE__,
    "a failure takes the place of an earlier error");
  group.check(!error.message().empty(), "!error.message().empty()", __LINE__, "a failure has a message");

  axmParseError missing;
  auto const document = factory->loadDocument(apPath("./contract_no_such_file.xml"), axmLoadOptions(), missing);
  group.check(document == nullptr && !missing.invalid(), "!document.get() && !error.invalid()", __LINE__,
    "a file that is missing");
  group.check(!missing.message().empty(), "!error.message().empty()", __LINE__, "has a message too");
  axmParseError folder;
  group.check(factory->loadDocument(apPath("."), axmLoadOptions(), folder) == nullptr && !folder.invalid(),
    "!document.get() && !error.invalid()", __LINE__, "a folder is no file");

  apPath const path = unique(APSTRING("malformed"), APSTRING("xml"));
  axmUtestFile const removed_at_the_end(path);
  axmUtestUtils::write_data(path, "<a><b></a>");
  axmParseError in_file;
  group.check(factory->loadDocument(path, axmLoadOptions(), in_file) == nullptr && !in_file.invalid(),
    "!document.get() && !error.invalid()", __LINE__, "a file that is no document");
  axmUtestUtils::write_data(path, "");
  axmParseError empty;
  group.check(factory->loadDocument(path, axmLoadOptions(), empty) == nullptr && !empty.invalid(),
    "!document.get() && !error.invalid()", __LINE__, "an empty file");
}

namespace
{
// Whether an error names a file, by its path or by its URL (RFC 3986, 2.1: UTF-8 in percent signs), if it names any.
bool is_named(axmParseError const& error, std::string const& name)
{
  std::string const url = error.url().to_utf8().c_str();
  if (url.empty() || url.find(name) != std::string::npos)
    return true;
  std::string plain;
  for (std::size_t at = 0; at < url.size(); ++at)
  {
    bool const is_escape = url[at] == '%' && at + 2 < url.size() &&
                           std::isxdigit(static_cast<unsigned char>(url[at + 1])) != 0 &&
                           std::isxdigit(static_cast<unsigned char>(url[at + 2])) != 0;
    plain += is_escape ? static_cast<char>(std::stoi(url.substr(at + 1, 2), nullptr, 16)) : url[at];
    at += is_escape ? 2 : 0;
  }
  return plain.find(name) != std::string::npos;
}

// The files whose names are told with what failed in them.
void check_urls(axmUtestGroup const& group, axmDocumentFactory const& factory)
{
  for (wchar_t const* const name : {L"place \u0444", L"place\u00A0%41", L"place#1", L"place+&;=", L"pl\u00E4ce"})
  {
    apPath const path = unique(name, APSTRING("xml"));
    axmUtestFile const removed_at_the_end(path);
    axmUtestUtils::write_data(path, "<root>");
    axmParseError error;
    factory.loadDocument(path, axmLoadOptions(), error);
    group.check(is_named(error, apString(name).to_utf8().c_str()), "error.url() names the file", __LINE__,
      "the file that failed, whatever its name");
  }
}
}

void axmContractUtest::test_load_place(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmContractUtest::test_load_place");
  // What is not known is -1; what is told must be right.
  auto const is_unknown_or = [](int told, int right) { return told == -1 || told == right; };
  axmParseError error;
  factory->loadDocument(bytes_of("<root>\n  <a>\n  </b>\n</root>"), axmLoadOptions(), error);
  group.check(
    is_unknown_or(error.line_number(), 3), "error.line_number() == 3", __LINE__, "the line of a wrong end tag");
  group.check(error.column_number() == -1 || (error.column_number() >= 1 && error.column_number() <= 7),
    "1 <= error.column_number() && error.column_number() <= 7", __LINE__, "its column is one of that line");
  axmParseError later(APSTRING("earlier"));
  later.set_line_number(77);
  later.set_column_number(88);
  later.set_url(APSTRING("earlier"));
  factory->loadDocument(apByteArray(), axmLoadOptions(), later);
  group.check(later.line_number() != 77 && later.column_number() != 88 && later.url() != APSTRING("earlier"),
    "the place is not the earlier one", __LINE__, "nothing of an earlier error is left");

  apPath const path = unique(APSTRING("place"), APSTRING("xml"));
  axmUtestFile const removed_at_the_end(path);
  axmUtestUtils::write_data(path, "<root>\n\n\n<&>\n</root>");
  axmParseError in_file;
  factory->loadDocument(path, axmLoadOptions(), in_file);
  group.check(is_unknown_or(in_file.line_number(), 4), "error.line_number() == 4", __LINE__, "the line in a file");
  group.check(in_file.url().empty() || in_file.url().find(APSTRING("contract_place")) >= 0,
    "error.url() names the file", __LINE__, "the file that failed");
  check_urls(group, *factory);

  apPath const schema_path = unique(APSTRING("place"), APSTRING("xsd"));
  axmUtestFile const schema_removed_at_the_end(schema_path);
  axmUtestUtils::write_data(schema_path, machine_schema);
  axmParseError invalid;
  factory->loadDocument(bytes_of(invalid_machine), with_schema(schema_path), invalid);
  group.check(
    is_unknown_or(invalid.line_number(), 3), "error.line_number() == 3", __LINE__, "the line that breaks a schema");
}

void axmContractUtest::test_white_space(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmContractUtest::test_white_space");
  struct Case
  {
    char const* text;
    wchar_t const* children;
    char const* description;
  };
  Case const cases[] = {
    {"<r>  </r>", L"", "two spaces are dropped"},
    {"<r>\n</r>", L"", "a line end is dropped"},
    {"<r>\n  \n</r>", L"", "lines of spaces are dropped"},
    {"<r> <a>x</a> <b>y</b> </r>", L"[ ][x][ ][y][ ]", "a single space is kept wherever it stands"},
    {"<r>  <a>x</a>   <b>y</b>  </r>", L"[x][y]", "several spaces are dropped wherever they stand"},
    {"<r>\n x \n</r>", L"[\n x \n]", "white space beside other text is kept"},
    {"<r>  x<a/>  y  </r>", L"[  x][][  y  ]", "at both ends"},
    {"<r><a>  </a><b> </b></r>", L"[][ ]", "further down too"},
    {"<r>a<!--c-->b</r>", L"[a][c][b]", "a comment stands between two texts"},
    {"<r>  <!--c-->  </r>", L"[c]", "white space around a comment is dropped"},
    {"<r>\n<!-- c -->\n</r>", L"[ c ]", "white space in a comment is kept"},
  };
  for (auto const& [text, children, description] : cases)
    group.check(texts(load(*factory, text)), children, "texts(document)", __LINE__, description);
  auto const root = load_root(*factory, "<r>  </r>");
  group.check(
    root != nullptr && !root->hasChildNodes(), "!root->hasChildNodes()", __LINE__, "what is dropped is no child");
  group.check(attribute_of(load_root(*factory, "<r A='  '/>"), APSTRING("A")), APSTRING("  "),
    "root->getAttribute(\"A\")", __LINE__, "white space in an attribute is kept");

  apPath const path = unique(APSTRING("white"), APSTRING("xml"));
  axmUtestFile const removed_at_the_end(path);
  axmUtestUtils::write_data(path, "<r>  <a>x</a> <b/>\n</r>");
  axmParseError error;
  group.check(texts(factory->loadDocument(path, axmLoadOptions(), error)), APSTRING("[x][ ][]"), "texts(document)",
    __LINE__, "the same from a file");
  axmParseError validated_error;
  axmLoadOptions const validating(axmValidateWithSchemas);
  group.check(texts(factory->loadDocument(bytes_of("<r>  <a>x</a> <b/>\n</r>"), validating, validated_error)),
    APSTRING("[x][ ][]"), "texts(document)", __LINE__, "the same when validating");
}

void axmContractUtest::test_entities(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmContractUtest::test_entities");
  group.check(text_of(load_root(*factory, "<r>&lt;&amp;&gt;&quot;&apos;&#65;&#x42;</r>")), APSTRING("<&>\"'AB"),
    "root->get_text()", __LINE__, "the references that every document may use");
  group.check(text_of(load_root(*factory, "<!DOCTYPE r [<!ENTITY e \"in&#32;side\">]><r>&e;</r>")), APSTRING("in side"),
    "root->get_text()", __LINE__, "an entity that the document declares");

  group.check(loads(factory, with_references(3), with_limit(3)), "document.get() && error.invalid()", __LINE__,
    "as many expansions as the limit allows");
  group.check(fails(factory, with_references(4), with_limit(3)), "!document.get() && !error.invalid()", __LINE__,
    "one expansion more");
  group.check(loads(factory, with_references(50000)), "document.get() && error.invalid()", __LINE__,
    "as many expansions as the limit allows by default");
  group.check(fails(factory, with_references(50001)), "!document.get() && !error.invalid()", __LINE__,
    "one expansion more than by default");

  apPath const external = unique(APSTRING("external"), APSTRING("txt"));
  apPath const path = unique(APSTRING("entity"), APSTRING("xml"));
  axmUtestFile const external_removed_at_the_end(external);
  axmUtestFile const removed_at_the_end(path);
  axmUtestUtils::write_data(external, "from outside");
  std::string const text =
    std::string("<!DOCTYPE r [<!ENTITY e SYSTEM \"") + external.path().c_str() + "\">]><r>&e;</r>";
  axmUtestUtils::write_data(path, text.c_str());
  axmParseError error;
  apString const unresolved = text_of(root_of(factory->loadDocument(path, axmLoadOptions(), error)));
  group.check(unresolved.find(APSTRING("outside")) < 0, "what is outside is not in the document", __LINE__,
    "nothing external is resolved by default");
  axmLoadOptions resolving;
  resolving.set_disable_entity_resolution(false);
  axmParseError resolving_error;
  group.check(text_of(root_of(factory->loadDocument(path, resolving, resolving_error))), APSTRING("from outside"),
    "root->get_text()", __LINE__, "a local file is resolved where that is allowed");
}

void axmContractUtest::test_validation(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmContractUtest::test_validation");
  apPath const schema_path = unique(APSTRING("schema"), APSTRING("xsd"));
  axmUtestFile const schema_removed_at_the_end(schema_path);
  axmUtestUtils::write_data(schema_path, machine_schema);
  axmLoadOptions const options = with_schema(schema_path);
  group.check(loads(factory, bytes_of(valid_machine), options), "document.get() && error.invalid()", __LINE__,
    "a document that follows its schema");
  group.check(fails(factory, bytes_of(invalid_machine), options), "!document.get() && !error.invalid()", __LINE__,
    "a document that breaks its schema");
  group.check(loads(factory, bytes_of(valid_machine), options), "document.get() && error.invalid()", __LINE__,
    "a failure is not remembered");
  group.check(fails(factory, bytes_of("<machine xmlns=\"ContractTest\"><other/></machine>"), options),
    "!document.get() && !error.invalid()", __LINE__, "an element that the schema does not know");
  group.check(fails(factory, bytes_of("<machine xmlns=\"ContractTest\"></machine>"), options),
    "!document.get() && !error.invalid()", __LINE__, "an element that is missing");
  axmLoadOptions not_validating(options);
  not_validating.set_validate_mode(axmValidateNone);
  group.check(loads(factory, bytes_of(invalid_machine), not_validating), "document.get() && error.invalid()", __LINE__,
    "schemas do nothing where validation is not asked for");
  group.check(loads(factory, bytes_of(invalid_machine)), "document.get() && error.invalid()", __LINE__,
    "nor are they remembered");
  axmParseError error;
  group.check(texts(factory->loadDocument(bytes_of(valid_machine), options, error)), APSTRING("[1][2]"),
    "texts(document)", __LINE__, "validation leaves the document as it is");
  group.check(loads(factory, bytes_of("<other xmlns=\"Unrelated\"/>"), options), "document.get() && error.invalid()",
    __LINE__, "a document for which no schema is given");

  apPath const path = unique(APSTRING("validated"), APSTRING("xml"));
  axmUtestFile const removed_at_the_end(path);
  axmUtestUtils::write_data(path, invalid_machine);
  axmParseError from_file;
  group.check(factory->loadDocument(path, options, from_file) == nullptr && !from_file.invalid(),
    "!document.get() && !error.invalid()", __LINE__, "a file that breaks its schema");
  group.check(!from_file.message().empty(), "!error.message().empty()", __LINE__, "the failure has a message");
  axmUtestUtils::write_data(path, valid_machine);
  axmParseError valid_file;
  group.check(factory->loadDocument(path, options, valid_file) != nullptr && valid_file.invalid(),
    "document.get() && error.invalid()", __LINE__, "a file that follows its schema");
}

void axmContractUtest::test_bad_schemas(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmContractUtest::test_bad_schemas");
  apPath const good = unique(APSTRING("good"), APSTRING("xsd"));
  apPath const bad = unique(APSTRING("bad"), APSTRING("xsd"));
  axmUtestFile const good_removed_at_the_end(good);
  axmUtestFile const bad_removed_at_the_end(bad);
  axmUtestUtils::write_data(good, machine_schema);
  char const* const unusable[] = {"", "no schema at all", "<unclosed>",
    ("<xs:schema xmlns:xs=\"http://www.w3.org/2001/XMLSchema\"><xs:element name=\"r\" "
     "type=\"no_such_type\"/></xs:schema>")};
  for (char const* const text : unusable)
  {
    axmUtestUtils::write_data(bad, text);
    axmLoadOptions options(axmValidateWithSchemas);
    options.set_no_namespace_schema(bad);
    group.check(fails(factory, bytes_of("<r/>"), options), "!document.get() && !error.invalid()", __LINE__,
      "a schema that cannot be used fails the load");
  }
  group.check(fails(factory, bytes_of(valid_machine), with_schema(apPath("."))), "!document.get() && !error.invalid()",
    __LINE__, "a folder is no schema");

  axmUtestUtils::write_data(bad,
    "<xs:schema xmlns:xs=\"http://www.w3.org/2001/XMLSchema\" targetNamespace=\"Unrelated\">"
    "<xs:element name=\"r\" type=\"no_such_type\"/></xs:schema>");
  axmLoadOptions one_wrong = with_schema(good);
  one_wrong.add_external_schema(APSTRING("Unrelated"), bad);
  apPath const path = unique(APSTRING("good"), APSTRING("xml"));
  axmUtestFile const path_removed_at_the_end(path);
  axmUtestUtils::write_data(path, valid_machine);
  axmParseError in_memory;
  axmParseError in_file;
  bool const are_refused = factory->loadDocument(bytes_of(valid_machine), one_wrong, in_memory) == nullptr &&
                           factory->loadDocument(path, one_wrong, in_file) == nullptr;
  group.check(are_refused && !in_memory.invalid() && !in_file.invalid(), "!document.get() && !error.invalid()",
    __LINE__, "a wrong schema that the document does not need fails the load");
  for (axmParseError const& error : {in_memory, in_file})
    group.check(error.url().empty() || error.url().find(APSTRING("contract_bad")) >= 0, "error.url() names the schema",
      __LINE__, "and is what failed");

  axmLoadOptions one_missing = with_schema(good);
  one_missing.add_external_schema(APSTRING("Unrelated"), apPath("./contract_no_such_schema.xsd"));
  group.check(fails(factory, bytes_of(valid_machine), one_missing), "!document.get() && !error.invalid()", __LINE__,
    "one missing schema beside a good one fails the load");
  axmLoadOptions none_missing(axmValidateWithSchemas);
  none_missing.set_no_namespace_schema(apPath("./contract_no_such_schema.xsd"));
  none_missing.add_external_schema(APSTRING("ContractTest"), good);
  group.check(fails(factory, bytes_of(valid_machine), none_missing), "!document.get() && !error.invalid()", __LINE__,
    "a missing schema for no namespace fails the load too");
  axmLoadOptions not_validating = one_missing;
  not_validating.set_validate_mode(axmValidateNone);
  group.check(loads(factory, bytes_of(valid_machine), not_validating), "document.get() && error.invalid()", __LINE__,
    "nothing is missing where validation is not asked for");
}

void axmContractUtest::test_file_names(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmContractUtest::test_file_names");
  struct Case
  {
    apPath path;
    char const* description;
  };
  Case const cases[] = {
    {unique(APSTRING("a b"), APSTRING("xml")), "a name with a space"},
    {unique(APSTRING("a%20b"), APSTRING("xml")), "a name that looks like an encoded space"},
    {unique(APSTRING("a%2Fb"), APSTRING("xml")), "a name that looks like an encoded slash"},
    {unique(APSTRING("a\u00A0b"), APSTRING("xml")), "a name with a non-breaking space"},
    {unique(APSTRING("\u0444"), APSTRING("xml")), "a name in other letters"},
    {unique(APSTRING("a+b#c"), APSTRING("xml")), "a name with a plus and a hash sign"},
    {unique(APSTRING("a;b&c='d',e@(f)"), APSTRING("xml")), "a name with other signs"},
    {unique(APSTRING("\U00010437"), APSTRING("xml")), "a name beyond U+FFFF"},
    {unique(apString(std::string(100, 'n').c_str()), APSTRING("xml")), "a long name"},
    {absolute(unique(APSTRING("absolute"), APSTRING("xml"))), "an absolute name"},
  };
  int number = 0;
  for (auto const& [path, description] : cases)
  {
    axmUtestFile const removed_at_the_end(path);
    auto const document = factory->createDocument(APSTRING("r"));
    auto const root = root_of(document);
    if (root == nullptr)
      break;
    root->set_attribute(APSTRING("N"), ++number);
    group.check(factory->saveDocument(document, path), "factory->saveDocument(document, path)", __LINE__, description);
    group.check(path.exists(), "path.exists()", __LINE__, description);
    axmParseError error;
    auto const loaded = root_of(factory->loadDocument(path, axmLoadOptions(), error));
    int read = 0;
    group.check(loaded != nullptr && loaded->get_attribute(APSTRING("N"), read) && read == number,
      "loaded->get_attribute(\"N\", read) && read == number", __LINE__, description);
  }
  group.check(number, 10, "number == 10", __LINE__, "number of names");

  apPath const encoded = unique(APSTRING("both%20names"), APSTRING("xml"));
  apPath const plain = unique(APSTRING("both names"), APSTRING("xml"));
  axmUtestFile const encoded_removed_at_the_end(encoded);
  axmUtestFile const plain_removed_at_the_end(plain);
  axmUtestUtils::write_data(encoded, "<encoded/>");
  axmUtestUtils::write_data(plain, "<plain/>");
  axmParseError error;
  group.check(name_of(root_of(factory->loadDocument(encoded, axmLoadOptions(), error))), APSTRING("encoded"),
    "root->getNodeName()", __LINE__, "a percent sign is not decoded");
  group.check(name_of(root_of(factory->loadDocument(plain, axmLoadOptions(), error))), APSTRING("plain"),
    "root->getNodeName()", __LINE__, "a space is not encoded");
}
