#include "axmDocumentFactoryUtest.h"

#include "axmUtestAccess.h"
#include "axmUtestFile.h"
#include "axmUtestGroup.h"
#include "axmUtestUtils.h"

#include <utUnitTest.h>

using namespace axmUtestAccess;

namespace
{
using Factory = std::shared_ptr<axmDocumentFactory>;

char const file[] = "source/utest/axmDocumentFactoryUtest";

apString uri_of(std::shared_ptr<axmDocument> const& document)
{
  return document != nullptr ? document->getDocumentURI() : APSTRING("(no document)");
}
}

// Each group has a factory of its own to hold, as its contract says.
// NOLINTBEGIN(performance-unnecessary-value-param)

axmDocumentFactoryUtest::axmDocumentFactoryUtest(utUnitTest* given) : tester(given) {}

axmDocumentFactoryUtest::~axmDocumentFactoryUtest() = default;

void axmDocumentFactoryUtest::run_tests(Factory factory) const
{
  do_run_tests(factory);
  test_service(factory);
}

void axmDocumentFactoryUtest::do_run_tests(Factory factory) const
{
  using Utest = axmDocumentFactoryUtest;
  axmUtestEntry<Utest, Factory> const groups[] = {
    {&Utest::test_create, "axmDocumentFactoryUtest::test_create"},
    {&Utest::test_attributes, "axmDocumentFactoryUtest::test_attributes"},
    {&Utest::test_nodes, "axmDocumentFactoryUtest::test_nodes"},
    {&Utest::test_from_memory, "axmDocumentFactoryUtest::test_from_memory"},
    {&Utest::test_remove_white, "axmDocumentFactoryUtest::test_remove_white"},
    {&Utest::test_save, "axmDocumentFactoryUtest::test_save"},
    {&Utest::test_get_xml, "axmDocumentFactoryUtest::test_get_xml"},
    {&Utest::test_create_comments, "axmDocumentFactoryUtest::test_create_comments"},
    {&Utest::test_read_bad, "axmDocumentFactoryUtest::test_read_bad"},
    {&Utest::test_write_bad, "axmDocumentFactoryUtest::test_write_bad"},
    {&Utest::test_exotic_filenames, "axmDocumentFactoryUtest::test_exotic_filenames"},
  };
  axm_run_groups(*this, factory, groups, tester, file);
}

void axmDocumentFactoryUtest::test_service(Factory factory) const
{
  utServiceName const name(utString("XMLService"));
  utService::get_instance()->register_service(name, factory);
  utServiceName resolved;
  Factory const located_factory = utService::locate_service<axmDocumentFactory>(name, resolved);
  char const group_name[] = "axmDocumentFactoryUtest::test_service";
  auto const check_located = [&]
  {
    axmUtestGroup const group(tester, file, group_name);
    group.check(located_factory != nullptr, "located_factory.get()", __LINE__, "test locating factory service");
  };
  axm_run_group(group_name, tester, file, check_located);
  do_run_tests(located_factory);
}

void axmDocumentFactoryUtest::test_create(Factory factory) const
{
  axmUtestGroup const group(tester, file, "axmDocumentFactoryUtest::test_create");
  auto const document = factory->createDocument(APSTRING("Test"));
  if (!group.check(document != nullptr, "document.get()", __LINE__, "test create document"))
    return;
  auto const root = document->getDocumentElement();
  if (!group.check(root != nullptr, "root.get()", __LINE__, "test document element"))
    return;
  group.check(root->getNodeName(), APSTRING("Test"), "root->getNodeName() == APSTRING(\"Test\")", __LINE__,
    "test document element name");
}

void axmDocumentFactoryUtest::test_attributes(Factory factory) const
{
  axmUtestGroup const group(tester, file, "axmDocumentFactoryUtest::test_attributes");
  auto const root = root_of(factory->createDocument(APSTRING("test")));
  if (!group.check(name_of(root), APSTRING("test"), "root->getNodeName() == APSTRING(\"test\")", __LINE__,
        "test document element name") ||
      root == nullptr)
    return;

  root->setAttribute(APSTRING("John"), APSTRING("Tall"));
  group.check(root->hasAttributes(), "root->hasAttributes()", __LINE__, "test has attributes");
  group.check(
    root->hasAttribute(APSTRING("John")), "root->hasAttribute(APSTRING(\"John\"))", __LINE__, "test has attribute");
  group.check(root->getAttribute(APSTRING("John")), APSTRING("Tall"),
    "root->getAttribute(APSTRING(\"John\")) == APSTRING(\"Tall\")", __LINE__, "test attribute value");

  root->removeAttribute(APSTRING("John"));
  group.check(!root->hasAttributes(), "!root->hasAttributes()", __LINE__, "test has attributes after removal");
  group.check(!root->hasAttribute(APSTRING("John")), "!root->hasAttribute(APSTRING(\"John\"))", __LINE__,
    "test has attribute after removal");

  root->set_attribute(APSTRING("Size"), 100);
  group.check(root->getAttribute(APSTRING("Size")), APSTRING("100"),
    "root->getAttribute(APSTRING(\"Size\")) == APSTRING(\"100\")", __LINE__, "test integer attribute value");
}

void axmDocumentFactoryUtest::test_nodes(Factory factory) const
{
  axmUtestGroup const group(tester, file, "axmDocumentFactoryUtest::test_nodes");
  auto const document = factory->createDocument(APSTRING("root"));
  auto const root = root_of(document);
  append(root, created(document, APSTRING("NewChild")));
  Node const first_child = root != nullptr ? root->getFirstChild() : nullptr;
  if (!group.check(name_of(first_child), APSTRING("NewChild"), "first_child->getNodeName() == APSTRING(\"NewChild\")",
        __LINE__, "test append child") ||
      first_child == nullptr)
    return;

  root->removeChild(first_child);
  auto const emptied = document->getDocumentElement();
  group.check(emptied != nullptr && !emptied->hasChildNodes(), "!document->getDocumentElement()->hasChildNodes()",
    __LINE__, "test remove child");

  for (auto const& name :
    {APSTRING("Child1"), APSTRING("Child2"), APSTRING("Child3"), APSTRING("Child4"), APSTRING("Child5")})
    append(root, created(document, name));
  group.check(name_of(root->getLastChild()), APSTRING("Child5"),
    "root->getLastChild()->getNodeName() == APSTRING(\"Child5\")", __LINE__, "test last child");

  apString const orig_uri = document->getDocumentURI();
  apString const parent_uri = uri_of(root->getOwnerDocument());
  group.check(parent_uri, orig_uri, "orig_uri == parent_uri", __LINE__, "test owner document");

  Node const child1 = root->getFirstChild();
  group.check(name_of(child1 != nullptr ? child1->getNextSibling() : nullptr), APSTRING("Child2"),
    "root->getFirstChild()->getNextSibling()->getNodeName() == APSTRING(\"Child2\")", __LINE__, "test next sibling");
  group.check(number_of_children(root), 5, "root->getChildNodes()->length() == 5", __LINE__, "test number of children");

  // The last child is still attached, which an engine has to call out before it moves the node.
  Node const last_child = root->getLastChild();
  utUnitTest::get_tester()->expect_assert_min(1);
  if (child1 != nullptr && last_child != nullptr)
    root->replaceChild(last_child, child1);
  utUnitTest::get_tester()->check_assert();
  group.check(name_of(root->getFirstChild()), APSTRING("Child5"),
    "root->getFirstChild()->getNodeName() == APSTRING(\"Child5\")", __LINE__, "test replace child");
}

void axmDocumentFactoryUtest::test_from_memory(Factory factory) const
{
  axmUtestGroup const group(tester, file, "axmDocumentFactoryUtest::test_from_memory");
  {
    axmParseError error;
    factory->loadDocument(apByteArray(), axmLoadOptions(axmValidateNone), error);
    group.check(!error.invalid(), "!error.invalid()", __LINE__, "test load from empty memory");
    tester->printf("Error was \"%s\"", error.message().to_utf8().c_str());
  }
  {
    axmParseError error;
    factory->loadDocument(bytes_of("Hello World"), axmLoadOptions(axmValidateNone), error);
    group.check(!error.invalid(), "!error.invalid()", __LINE__, "test load from memory that is not xml");
    tester->printf("Error was \"%s\"", error.message().to_utf8().c_str());
  }

  apByteArray const number = bytes_of("<root number=\"123\" />");
  {
    axmParseError error;
    auto const document = factory->loadDocument(number, axmLoadOptions(axmValidateNone), error);
    group.check(
      document != nullptr && error.invalid(), "document.get() && error.invalid()", __LINE__, "test load from memory");
    auto const root = root_of(document);
    group.check(
      name_of(root), APSTRING("root"), "root->getNodeName() == APSTRING(\"root\")", __LINE__, "test root name");
    group.check(attribute_of(root, APSTRING("number")), APSTRING("123"),
      "root->getAttribute(APSTRING(\"number\")) == APSTRING(\"123\")", __LINE__, "test root attribute");
  }
  {
    axmParseError error;
    auto const document = factory->loadDocument(number, axmLoadOptions(axmValidateWithSchemas), error);
    group.check(document != nullptr && error.invalid(), "document.get() && error.invalid()", __LINE__,
      "test load from memory with validation and no schemas");
  }

  apPath const schema_path("../data/in_memory_test_schema.xsd");
  group.prerequisite(
    schema_path.exists(), "schema_path.exists()", __LINE__, "Prerequisite: schema file doesn't exist - copy it in");
  axmLoadOptions options(axmValidateWithSchemas);
  options.add_external_schema(APSTRING("InMemoryTest"), schema_path);
  axmParseError error;
  auto const document = factory->loadDocument(
    bytes_of("<?xml version=\"1.0\" ?><machine xmlns=\"InMemoryTest\"><XY Value=\"1.2\" Valid=\"1\"/></machine>"),
    options, error);
  group.check(document != nullptr && error.invalid(), "document.get() && error.invalid()", __LINE__,
    "test load from memory with schema");
  auto const root = root_of(document);
  group.check(
    name_of(root), APSTRING("machine"), "root->getNodeName() == APSTRING(\"machine\")", __LINE__, "test root name");
  group.check(number_of_children(root), 1, "root->getChildNodes()->length() == 1", __LINE__, "test number of children");
  group.check(attribute_of(child_of(root, 0), APSTRING("Value")), APSTRING("1.2"),
    "root->getChildNodes()->at(0)->getAttribute(APSTRING(\"Value\")) == APSTRING(\"1.2\")", __LINE__,
    "test child attribute");
}

void axmDocumentFactoryUtest::test_remove_white(Factory factory) const
{
  axmUtestGroup const group(tester, file, "axmDocumentFactoryUtest::test_remove_white");
  struct Case
  {
    char const* data;
    std::vector<apString> expected;
  };
  Case const cases[] = {
    {"<root> </root>", {APSTRING(" ")}},
    {"<root>\n<tag>Hello World</tag>\n</root>", {APSTRING("Hello World")}},
    {"<root>Hello World</root>", {APSTRING("Hello World")}},
    {"<root><b>Hello</b> <i>There</i> World</root>",
      {APSTRING("Hello"), APSTRING(" "), APSTRING("There"), APSTRING(" World")}},
    {"<root><tag1> </tag1><tag2>Hello World</tag2></root>", {APSTRING(" "), APSTRING("Hello World")}},
  };
  for (auto const& [data, expected] : cases)
  {
    apByteArray const ap_data = bytes_of(data);
    group.check(do_remove_white_test(factory, ap_data, expected), "do_remove_white_test(factory,ap_data,expected)",
      __LINE__, utUnitTest::build_varargs("test remove white from \"%s\"", data));
  }
}

bool axmDocumentFactoryUtest::do_remove_white_test(
  Factory factory, apByteArray const& data, std::vector<apString> const& expected) const
{
  axmUtestGroup const group(tester, file, "axmDocumentFactoryUtest::do_remove_white_test");
  axmParseError error;
  auto const document = factory->loadDocument(data, axmLoadOptions(axmValidateNone), error);
  bool const loaded = group.prerequisite(
    document != nullptr && error.invalid(), "document.get() && error.invalid()", __LINE__, "Prerequisite: test load");
  auto const root = root_of(document);
  auto const children = root != nullptr ? root->getChildNodes() : nullptr;
  bool all_ok = loaded;
  all_ok = group.check(length_of(children), static_cast<int>(expected.size()),
             "children->length() == static_cast<int>(expected.size())", __LINE__, "number of children is wrong") &&
           all_ok;
  for (int i = 0; i < static_cast<int>(expected.size()); ++i)
  {
    apString const text = text_of(item_of(children, i));
    all_ok = group.check(text, expected.at(static_cast<std::size_t>(i)), "text == expected.at(i)", __LINE__,
               utUnitTest::build_varargs("node %d text is wrong", i)) &&
             all_ok;
  }
  return all_ok;
}

void axmDocumentFactoryUtest::test_save(Factory factory) const
{
  axmUtestGroup const group(tester, file, "axmDocumentFactoryUtest::test_save");
  auto const document_in = factory->createDocument(APSTRING("Test"));
  {
    apByteArray output;
    group.check(document_in != nullptr && factory->saveDocument(document_in, output),
      "factory->saveDocument(document_in,output)", __LINE__, "test save to memory");
    axmParseError error;
    auto const document_out = factory->loadDocument(output, axmLoadOptions(axmValidateNone), error);
    group.check(document_out != nullptr && error.invalid(), "document_out.get() && error.invalid()", __LINE__,
      "test load from saved memory");
    auto const root = root_of(document_out);
    group.check(root != nullptr, "root.get()", __LINE__, "test root from saved memory");
    group.check(name_of(root), APSTRING("Test"), "root->getNodeName() == APSTRING(\"Test\")", __LINE__,
      "test root name from saved memory");
  }
  {
    apPath const path("./save_test.xml");
    axmUtestFile const removed_at_the_end(path);
    group.check(document_in != nullptr && factory->saveDocument(document_in, path),
      "factory->saveDocument(document_in,path)", __LINE__, "test save to file");
    axmParseError error;
    auto const document_out = factory->loadDocument(path, axmLoadOptions(axmValidateNone), error);
    group.check(document_out != nullptr && error.invalid(), "document_out.get() && error.invalid()", __LINE__,
      "test load from saved file");
    auto const root = root_of(document_out);
    group.check(root != nullptr, "root.get()", __LINE__, "test root from saved file");
    group.check(name_of(root), APSTRING("Test"), "root->getNodeName() == APSTRING(\"Test\")", __LINE__,
      "test root name from saved file");
  }
}

void axmDocumentFactoryUtest::test_get_xml(Factory factory) const
{
  axmUtestGroup const group(tester, file, "axmDocumentFactoryUtest::test_get_xml");
  auto const document_in = factory->createDocument(APSTRING("Test"));
  auto const root_in = root_of(document_in);
  if (root_in != nullptr)
  {
    root_in->setAttribute(APSTRING("Colour"), APSTRING("Blue"));
    root_in->setAttribute(APSTRING("Escapees"), APSTRING("&<>"));
  }
  utString const xml = document_in != nullptr ? document_in->get_xml().to_utf8() : utString("");
  axmParseError error;
  auto const document_out = factory->loadDocument(bytes_of(xml.c_str()), axmLoadOptions(axmValidateNone), error);
  group.check(document_out != nullptr, "document_out.get()", __LINE__, "test load from xml");
  auto const root = root_of(document_out);
  group.check(
    name_of(root), APSTRING("Test"), "root->getNodeName() == APSTRING(\"Test\")", __LINE__, "test root name from xml");
  group.check(attribute_of(root, APSTRING("Colour")), APSTRING("Blue"),
    "root->getAttribute(APSTRING(\"Colour\")) == APSTRING(\"Blue\")", __LINE__, "test attribute from xml");
  group.check(attribute_of(root, APSTRING("Escapees")), APSTRING("&<>"),
    "root->getAttribute(APSTRING(\"Escapees\")) == APSTRING(\"&<>\")", __LINE__, "test escaped attribute from xml");
}

void axmDocumentFactoryUtest::test_create_comments(Factory factory) const
{
  axmUtestGroup const group(tester, file, "axmDocumentFactoryUtest::test_create_comments");
  axmParseError error;
  auto const document = factory->loadDocument(
    bytes_of("<?xml version=\"1.0\" encoding=\"UTF-8\"?><tag_1>  <tag_2>Tag2Text</tag_2>  <!--A comment-->  "
             "<tag_3>Tag3Text</tag_3></tag_1>"),
    axmLoadOptions(axmValidateNone), error);
  auto const root = root_of(document);
  auto const children = root != nullptr ? root->getChildNodes() : nullptr;
  group.check(length_of(children), 3, "children->length() == 3", __LINE__, "test number of children");
  apString const comment_text = value_of(item_of(children, 1));
  apString const expected_text = APSTRING("A comment");
  group.check(comment_text, expected_text, "comment_text == expected_text", __LINE__, "test comment text");
}

void axmDocumentFactoryUtest::test_read_bad(Factory factory) const
{
  axmUtestGroup const group(tester, file, "axmDocumentFactoryUtest::test_read_bad");
  axmLoadOptions const options(axmValidateWithSchemas);
  axmParseError error;
  {
    auto const document = factory->loadDocument(apPath("../data/not_a_file.xml"), options, error);
    group.check(document == nullptr && !error.invalid(), "!document.get() && !error.invalid()", __LINE__,
      "test load of missing file");
    tester->printf("Error was \"%s\"\n", error.message().to_utf8().c_str());
  }
  {
    auto const document = factory->loadDocument(apPath("../data/not/a/dir/file.xml"), options, error);
    group.check(document == nullptr && !error.invalid(), "!document.get() && !error.invalid()", __LINE__,
      "test load from missing directory");
    tester->printf("Error was \"%s\"\n", error.message().to_utf8().c_str());
  }
}

void axmDocumentFactoryUtest::test_write_bad(Factory factory) const
{
  axmUtestGroup const group(tester, file, "axmDocumentFactoryUtest::test_write_bad");
  auto const document = factory->createDocument(APSTRING("root"));
  bool const ok = document == nullptr || factory->saveDocument(document, apPath("../data/not/a/dir/features_file.xml"));
  group.check(!ok, "!ok", __LINE__, "test save to missing directory");
}

void axmDocumentFactoryUtest::test_exotic_filenames(Factory factory) const
{
  axmUtestGroup const group(tester, file, "axmDocumentFactoryUtest::test_exotic_filenames");
  auto const unique = [](apString const& name) { return axmUtestUtils::uniquify_filename(name, APSTRING("xml")); };
  auto const load_from = [](char const* description)
  { return utUnitTest::build_varargs("test load from \"%s\"", description); };
  {
    apPath const simple_path = unique(APSTRING("./simple_xml_path"));
    utString const text = simple_path.path();
    char const* const description = text.c_str();
    group.check(do_exotic_filename_test(factory, simple_path, description),
      "do_exotic_filename_test(factory, simple_path, description)", __LINE__, load_from(description));
  }
  {
    apPath const space_path = unique(APSTRING("./path with spaces"));
    utString const text = space_path.path();
    char const* const description = text.c_str();
    group.check(do_exotic_filename_test(factory, space_path, description),
      "do_exotic_filename_test(factory, space_path, description)", __LINE__, load_from(description));
  }
  {
    apPath const nb_space_path = unique(APSTRING("./path\u00A0with\u00A0nb\u00A0spaces"));
    char const* const description = "non-breaking spaces path";
    group.check(do_exotic_filename_test(factory, nb_space_path, description),
      "do_exotic_filename_test(factory, nb_space_path, description)", __LINE__, load_from(description));
  }
  {
    apPath const mixed_space_path = unique(APSTRING("./path\u00A0with mixed\u00A0spaces"));
    char const* const description = "mixed spaces path";
    group.check(do_exotic_filename_test(factory, mixed_space_path, description),
      "do_exotic_filename_test(factory, mixed_space_path, description)", __LINE__, load_from(description));
  }
  {
    apPath const percent_path = unique(APSTRING("./path_with_%_char"));
    utString const text = percent_path.path();
    char const* const description = text.c_str();
    group.check(do_exotic_filename_test(factory, percent_path, description),
      "do_exotic_filename_test(factory, percent_path, description)", __LINE__, load_from(description));
  }
  {
    apPath const cyrillic_path = unique(APSTRING("./path_with_cyrillic_\u0444"));
    char const* const description = "cyrillic path";
    group.check(do_exotic_filename_test(factory, cyrillic_path, description),
      "do_exotic_filename_test(factory, cyrillic_path, description)", __LINE__, load_from(description));
  }
}

bool axmDocumentFactoryUtest::do_exotic_filename_test(
  Factory factory, apPath const& path, char const* description) const
{
  axmUtestGroup const group(tester, file, "axmDocumentFactoryUtest::do_exotic_filename_test");
  axmUtestFile const removed_at_the_end(path);
  axmUtestUtils::write_data(path, "<?xml version=\"1.0\" ?><machine>  <XY Value=\"1.2\" Valid=\"1\"/></machine>");
  axmParseError error;
  auto const document = factory->loadDocument(path, axmLoadOptions(axmValidateNone), error);
  group.check(document != nullptr && error.invalid(), "document.get() && error.invalid()", __LINE__,
    utUnitTest::build_varargs("load from %s", description));
  return true;
}

// NOLINTEND(performance-unnecessary-value-param)
