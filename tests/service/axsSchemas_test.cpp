#include "Engine.h"

#include <thread>
#include <vector>

#if defined(__GLIBC__)
#  include <ucontext.h>
#endif

namespace
{
std::string schema(std::string const& attributes, std::string const& content)
{
  return "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' elementFormDefault='qualified'" + attributes + ">\n" +
         content + "</xs:schema>";
}

std::string const machine = "<xs:complexType name='XY'><xs:attribute name='Value' type='xs:decimal' use='required'/>"
                            "</xs:complexType>\n<xs:element name='machine'><xs:complexType><xs:sequence>"
                            "<xs:element name='XY' type='XY'/></xs:sequence></xs:complexType></xs:element>";

std::string number_schema(std::string const& target, std::string const& element)
{
  return schema(" targetNamespace='" + target + "'", "<xs:element name='" + element + "' type='xs:int'/>");
}

axmLoadOptions plain(apPath const& path)
{
  axmLoadOptions options(axmValidateWithSchemas);
  options.set_no_namespace_schema(path);
  return options;
}

axmLoadOptions with(std::initializer_list<std::pair<char const*, apPath>> schemas)
{
  axmLoadOptions options(axmValidateWithSchemas);
  for (auto const& [name_space, path] : schemas)
    options.add_external_schema(wide(name_space), path);
  return options;
}
}

TEST(axsSchemas, validates_by_namespace_and_without)
{
  TestFile const named("engine_named.xsd", schema(" targetNamespace='urn:m' xmlns='urn:m'", machine));
  TestFile const unnamed("engine_unnamed.xsd", schema("", machine));
  axmLoadOptions options = with({{"urn:m", named.path()}});
  options.set_no_namespace_schema(unnamed.path());
  for (char const* const start : {"<machine>", "<machine xmlns='urn:m'>"})
  {
    EXPECT_NE(load(start + std::string("  <XY Value=' 1.2 '/></machine>"), options), nullptr);
    error_of(start + std::string("  <XY Value='Some Text'/></machine>"), options);
    error_of(start + std::string("<ZZ/></machine>"), options);
  }
  EXPECT_NE(load("<p:machine xmlns:p='urn:m'><p:XY Value='1'/></p:machine>", options), nullptr);
}

TEST(axsSchemas, names_element_attribute_and_rule_with_their_place)
{
  TestFile const file("engine_places.xsd", schema("", machine));
  axmParseError error = error_of("<machine>\n  <XY Value='Some Text'/></machine>", plain(file.path()));
  EXPECT_NE(narrow(error.message()).find("attribute 'Value' of element 'XY': "), std::string::npos);
  EXPECT_NE(narrow(error.message()).find("Some Text"), std::string::npos);
  EXPECT_EQ(error.line_number(), 2);
  EXPECT_EQ(error.column_number(), 26);
  error = error_of("<machine>\n<XY/></machine>", plain(file.path()));
  EXPECT_EQ(narrow(error.message()), "element 'XY': missing required attribute 'Value'");
  EXPECT_EQ(error.line_number(), 2);
  error = error_of("<machine>text<XY Value='1'/></machine>", plain(file.path()));
  EXPECT_NE(narrow(error.message()).find("'machine'"), std::string::npos);
  TestFile const document("engine_invalid.xml", "<machine/>");
  EXPECT_EQ(engine()->loadDocument(document.path(), plain(file.path()), error), nullptr);
  EXPECT_EQ(narrow(error.url()), document.name);
}

namespace
{
std::string const orders =
  "<xs:simpleType name='colour'><xs:restriction base='xs:string'><xs:enumeration value='red'/>"
  "<xs:enumeration value='green'/></xs:restriction></xs:simpleType>"
  "<xs:simpleType name='code'><xs:restriction base='xs:string'><xs:pattern value='[A-Z]{3}'/></xs:restriction>"
  "</xs:simpleType>"
  "<xs:simpleType name='percent'><xs:restriction base='xs:int'><xs:minInclusive value='0'/>"
  "<xs:maxInclusive value='100'/></xs:restriction></xs:simpleType>"
  "<xs:simpleType name='ints'><xs:list itemType='xs:int'/></xs:simpleType>"
  "<xs:complexType name='item'><xs:sequence><xs:element name='name' type='xs:token'/>"
  "<xs:element name='price' type='xs:decimal' minOccurs='0'/></xs:sequence>"
  "<xs:attribute name='id' type='xs:int' use='required'/><xs:attribute name='colour' type='colour'/>"
  "</xs:complexType>"
  "<xs:complexType name='more'><xs:complexContent><xs:extension base='item'><xs:sequence>"
  "<xs:element name='more'/></xs:sequence></xs:extension></xs:complexContent></xs:complexType>"
  "<xs:element name='r'><xs:complexType><xs:sequence><xs:element name='item' type='item' minOccurs='0' maxOccurs='2'/>"
  "<xs:choice minOccurs='0' maxOccurs='unbounded'><xs:element name='d' type='xs:double'/>"
  "<xs:element name='b' type='xs:boolean'/><xs:element name='date' type='xs:date'/>"
  "<xs:element name='code' type='code'/><xs:element name='percent' type='percent'/>"
  "<xs:element name='ints' type='ints'/><xs:element name='id' type='xs:ID'/><xs:element name='ref' type='xs:IDREF'/>"
  "<xs:element name='size'><xs:simpleType><xs:restriction base='xs:string'><xs:maxLength value='2'/></xs:restriction>"
  "</xs:simpleType></xs:element></xs:choice></xs:sequence></xs:complexType>"
  "<xs:key name='k'><xs:selector xpath='item'/><xs:field xpath='@id'/></xs:key></xs:element>";

struct Invalid
{
  char const* text;
  int line;
  int column;
  char const* message;
};
}

TEST(axsSchemas, says_in_plain_words_what_is_not_valid_and_where)
{
  TestFile const file("engine_orders.xsd", schema("", orders));
  std::string const own_type =
    "<r><item xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' xsi:type='more' id='1'>\n<name/>\n";
  Invalid const documents[] = {
    // Values.
    {"<r><d>1,5</d></r>", 1, 14, "element 'd': \"1,5\" is not of the type xs:double, as in 1.5"},
    {"<r>\n<b>yes</b></r>", 2, 11, "element 'b': \"yes\" is not of the type xs:boolean, which is true, false, 1 or 0"},
    {"<r><b/></r>", 1, 8, "element 'b': \"\" is not of the type xs:boolean, which is true, false, 1 or 0"},
    {"<r><date>31.12.2024</date></r>", 1, 27,
      "element 'date': \"31.12.2024\" is not of the type xs:date, as in 2024-12-31"},
    {"<r><date>2024-02-30</date></r>", 1, 27,
      "element 'date': \"2024-02-30\" is not of the type xs:date: its day must be between 1 and 29"},
    {"<r><code>ab</code></r>", 1, 19,
      "element 'code': \"ab\" is not of the type 'code': it does not match the pattern '[A-Z]{3}'"},
    {"<r><percent>x</percent></r>", 1, 24,
      "element 'percent': \"x\" is not of the type 'percent', which is made from xs:int"},
    {"<r><percent>101</percent></r>", 1, 26,
      "element 'percent': \"101\" is not of the type 'percent': it must be less than or equal to maxInclusive facet "
      "value '100'"},
    {"<r><ints>1 x</ints></r>", 1, 20,
      "element 'ints': \"1 x\" is not of the type 'ints': its item 'x' is not of the type xs:int"},
    {"<r><size>abc</size></r>", 1, 20,
      "element 'size': \"abc\" is not allowed: it has length '3' which exceeds maxLength facet value '2'"},
    {"<r><item id='x'><name/></item></r>", 1, 17, "attribute 'id' of element 'item': \"x\" is not of the type xs:int"},
    {"<r><item id='1' colour='blue'><name/></item></r>", 1, 31,
      "attribute 'colour' of element 'item': \"blue\" is not of the type 'colour': it is none of 'red', 'green'"},
    {"<r><item id='99999999999'><name/></item></r>", 1, 27,
      "attribute 'id' of element 'item': \"99999999999\" is not of the type xs:int: it must be less than or equal to "
      "maxInclusive facet value '2147483647'"},
    {"<r><id>a</id><id>a</id></r>", 1, 24, "element 'id': ID value 'a' is not unique; first at line 1"},
    // What stands where.
    {"<r>\n<item id='1'/>\n</r>", 2, 15, "element 'item' ends too early; expected is 'name'"},
    {"<r>\n<item id='1'>\n<price>1</price>\n</item>\n</r>", 3, 8,
      "element 'price' may not stand here in 'item'; expected is 'name'"},
    {"<r><item id='1'>\n<name/>\n<name/>\n<price>1</price></item></r>", 3, 8,
      "element 'name' may not stand here in 'item'; expected is 'price' or the end of the element"},
    {"<r>\n<item id='1'><name/></item>\n<item id='2'><name/></item>\n<item id='3'><name/></item>\n<d>1</d>\n</r>", 4,
      14,
      "element 'item' may not stand here in 'r'; expected is 'd', 'b', 'date', 'code', 'percent', 'ints', 'id', 'ref', "
      "'size' or the end of the element"},
    {"<r>\n<item id='1'><nam/></item></r>", 2, 20, "element 'nam' may not stand here in 'item'; expected is 'name'"},
    {"<r>\n<item id='1'>text<name/></item></r>", 2, 18, "element 'item': text is not allowed here"},
    {"<r>\n<item><name/></item></r>", 2, 7, "element 'item': missing required attribute 'id'"},
    {"<r>\n<item id='1' ID='2'><name/></item></r>", 2, 21, "attribute 'ID' is not declared for element 'item'"},
    {"<R/>", 1, 5, "no declaration found for element 'R'"},
    // Across the document.
    {"<r>\n<item id='1'><name/></item>\n<item id='1'><name/></item></r>", 3, 14,
      "element 'item': its key \"1\" is not unique in the element 'r'; first at line 2"},
    {"<r>\n<ref>a</ref>\n</r>", 2, 13, "there is no ID 'a', to which an IDREF refers"},
  };
  for (Invalid const& document : documents)
  {
    axmParseError const error = error_of(document.text, plain(file.path()));
    EXPECT_EQ(narrow(error.message()), document.message) << document.text;
    EXPECT_EQ(error.line_number(), document.line) << document.text;
    EXPECT_EQ(error.column_number(), document.column) << document.text;
  }

  // Of an element that names its type itself, what its declaration expects is not what is expected.
  EXPECT_NE(load(own_type + "<more/></item></r>", plain(file.path())), nullptr);
  axmParseError const error = error_of(own_type + "<more/><more/></item></r>", plain(file.path()));
  EXPECT_EQ(narrow(error.message()), "element 'more' may not stand here in 'item'; expected is the end of the element");
}

TEST(axsSchemas, names_namespaces_where_names_differ_in_nothing_else)
{
  TestFile const other("engine_form_2.xsd", number_schema("urn:o", "n"));
  TestFile const file("engine_form.xsd",
    schema(" targetNamespace='urn:m' xmlns:o='urn:o'",
      "<xs:import namespace='urn:o' schemaLocation='engine_form_2.xsd'/><xs:element name='m'><xs:complexType>"
      "<xs:sequence><xs:element ref='o:n'/></xs:sequence></xs:complexType></xs:element><xs:element name='n'/>"));
  axmLoadOptions const options = with({{"urn:m", file.path()}});
  EXPECT_EQ(narrow(error_of("<m xmlns='urn:m'><n>1</n></m>", options).message()),
    "element 'n' of the namespace 'urn:m' may not stand here in 'm'; expected is 'n' of the namespace 'urn:o'");
  EXPECT_EQ(narrow(error_of("<p:m xmlns:p='urn:m'><n>1</n></p:m>", options).message()),
    "element 'n' in no namespace may not stand here in 'm'; expected is 'n' of the namespace 'urn:o'");
}

TEST(axsSchemas, a_long_value_is_shown_in_part)
{
  TestFile const file("engine_long_value.xsd", schema("", "<xs:element name='r' type='xs:int'/>"));
  std::string const shown = narrow(error_of("<r>" + std::string(1000, 'x') + "</r>", plain(file.path())).message());
  EXPECT_EQ(shown, "element 'r': \"" + std::string(100, 'x') + "...\" is not of the type xs:int");
  EXPECT_LT(error_of("<r>" + std::string(1000000, 'x') + "</r>", plain(file.path())).message().length(), 500);
}

TEST(axsSchemas, changes_nothing_of_what_is_loaded)
{
  TestFile const file("engine_defaults.xsd",
    schema("", "<xs:element name='r'><xs:complexType mixed='true'><xs:sequence><xs:element name='n' type='xs:token'/>"
               "</xs:sequence><xs:attribute name='a' type='xs:token'/><xs:attribute name='d' default='x'/>"
               "</xs:complexType></xs:element>"));
  auto const document = load("<r a=' 1  2 '> <n>  x  y </n></r>", plain(file.path()));
  EXPECT_EQ(narrow(document->getDocumentElement()->get_xml()), "<r a=\" 1  2 \"> <n>  x  y </n></r>");
}

TEST(axsSchemas, sees_white_space_before_it_is_dropped)
{
  TestFile const file("engine_white.xsd",
    schema("", "<xs:element name='r'><xs:simpleType><xs:restriction base='xs:string'><xs:length value='2'/>"
               "</xs:restriction></xs:simpleType></xs:element>"));
  EXPECT_NE(load("<r>  </r>", plain(file.path())), nullptr);
  error_of("<r> </r>", plain(file.path()));
}

TEST(axsSchemas, a_schema_that_cannot_be_used_fails_the_load_with_its_own_place)
{
  axmParseError error = error_of("<r/>", plain(apPath("engine_missing.xsd")));
  EXPECT_EQ(narrow(error.url()), "engine_missing.xsd");
  error_of("<r xmlns='urn:other'/>", with({{"urn:m", apPath("engine_missing.xsd")}}));

  TestFile const broken("engine_broken.xsd", schema("", "<xs:element name='r' type='none'/>"));
  error = error_of("<r/>", plain(broken.path()));
  EXPECT_EQ(narrow(error.url()), broken.name);
  EXPECT_EQ(error.line_number(), 2);
  EXPECT_NE(narrow(error.message()).find("none"), std::string::npos);

  TestFile const no_schema("engine_no_schema.xsd", "<r/>");
  EXPECT_EQ(narrow(error_of("<r/>", plain(no_schema.path())).url()), no_schema.name);
  TestFile const no_xml("engine_no_xml.xsd", "text");
  EXPECT_EQ(narrow(error_of("<r/>", plain(no_xml.path())).url()), no_xml.name);
  TestFile const empty("engine_empty.xsd", "");
  EXPECT_EQ(narrow(error_of("<r/>", plain(empty.path())).url()), empty.name);
  EXPECT_EQ(narrow(error_of("<r/>", plain(apPath("."))).url()), ".");

  TestFile const other("engine_other.xsd", number_schema("urn:a", "r"));
  EXPECT_NE(narrow(error_of("<r/>", with({{"urn:b", other.path()}})).message()).find("urn:a"), std::string::npos);
  EXPECT_NE(narrow(error_of("<r/>", plain(other.path())).message()).find("urn:a"), std::string::npos);
}

TEST(axsSchemas, an_ambiguous_content_is_told_with_its_place)
{
  std::string const content = "<xs:sequence><xs:element name='a' minOccurs='0'/><xs:element name='a'/></xs:sequence>";
  auto const words = [](std::string const& line)
  {
    return " is ambiguous: an element in it may be meant by 'a' of line " + line + " or by 'a' of line " + line +
           " (unique particle attribution)";
  };
  TestFile const named(
    "engine_ambiguous.xsd", schema("", "\n<xs:complexType name='t'>" + content + "</xs:complexType>"));
  axmParseError error = error_of("<r/>", plain(named.path()));
  EXPECT_EQ(narrow(error.message()), "the content of the type 't'" + words("3"));
  EXPECT_EQ(narrow(error.url()), named.name);
  EXPECT_EQ(error.line_number(), 3);

  // Types without a name, in two files; the one meant is not the first.
  TestFile const part("engine_ambiguous_2.xsd",
    schema("", "\n\n<xs:element name='p'><xs:complexType>" + content + "</xs:complexType></xs:element>"));
  TestFile const whole("engine_ambiguous_3.xsd",
    schema("", "<xs:include schemaLocation='engine_ambiguous_2.xsd'/><xs:element name='r'><xs:complexType><xs:sequence>"
               "<xs:element name='b'/></xs:sequence></xs:complexType></xs:element>"));
  error = error_of("<r/>", plain(whole.path()));
  EXPECT_EQ(narrow(error.message()), "the content of this type" + words("4"));
  EXPECT_EQ(narrow(error.url()), part.name);
  EXPECT_EQ(error.line_number(), 4);

  TestFile const other("engine_ambiguous_4.xsd",
    schema(" targetNamespace='urn:o'", "<xs:element name='r'><xs:complexType><xs:sequence><xs:element name='b'/>"
                                       "</xs:sequence></xs:complexType></xs:element>"));
  axmLoadOptions options = with({{"urn:o", other.path()}});
  options.set_no_namespace_schema(part.path());
  EXPECT_EQ(narrow(error_of("<r/>", options).url()), part.name);
}

TEST(axsSchemas, says_in_plain_words_what_is_wrong_with_a_schema)
{
  std::pair<char const*, char const*> const faults[] = {
    {"<xs:element name='r' type='foo'/>", "there is no declaration of 'foo' in no namespace"},
    {"<xs:element name='r' type='xs:itn'/>",
      "there is no declaration of 'itn' in the namespace 'http://www.w3.org/2001/XMLSchema'"},
    {"<xs:element name='r'><xs:complexType><xs:sequence><xs:element ref='e'/></xs:sequence></xs:complexType>"
     "</xs:element>",
      "there is no declaration of 'e' in no namespace"},
    {"<xs:elment name='r'/>", "this element may not stand in 'schema'"},
    {"<xs:complexType name='A'><xs:complexContent><xs:extension base='A'/></xs:complexContent></xs:complexType>",
      "'A' is defined by itself"},
    {"<xs:element name='r' type='xs:boolean' default='x'/>",
      "the default is wrong: \"x\" is not of the type xs:boolean, which is true, false, 1 or 0"},
  };
  for (auto const& [content, words] : faults)
  {
    TestFile const file("engine_wrong_schema.xsd", schema("", content));
    axmParseError const error = error_of("<r/>", plain(file.path()));
    EXPECT_EQ(narrow(error.message()), words) << content;
    EXPECT_EQ(error.line_number(), 2) << content;
  }
  EXPECT_EQ(narrow(error_of("<r/>", with({{"urn:a", apPath()}})).message()),
    "There is no file name of the schema for the namespace \"urn:a\"");
}

TEST(axsSchemas, what_a_schema_includes_must_be_there_and_local)
{
  TestFile const missing("engine_includes.xsd", schema("", "<xs:include schemaLocation='engine_none.xsd'/>"));
  axmParseError error = error_of("<r/>", plain(missing.path()));
  EXPECT_EQ(narrow(error.url()), missing.name);
  EXPECT_EQ(error.line_number(), 2);
  EXPECT_NE(narrow(error.message()).find("engine_none.xsd"), std::string::npos);
  for (char const* const address : {"http://localhost:1/x.xsd", "https://localhost:1/x.xsd", "ftp://localhost/x.xsd"})
  {
    std::string const location = " schemaLocation='" + std::string(address) + "'/>";
    TestFile const included("engine_remote.xsd", schema("", "<xs:include" + location));
    EXPECT_NE(narrow(error_of("<r/>", plain(included.path())).message()).find(address), std::string::npos);
    std::string const import = "<xs:import namespace='urn:x'" + location;
    TestFile const unused("engine_remote_1.xsd", schema("", import + "<xs:element name='r'/>"));
    EXPECT_NE(load("<r/>", plain(unused.path())), nullptr);
    TestFile const used(
      "engine_remote_2.xsd", schema("", import + "<xs:element name='r' type='x:t' xmlns:x='urn:x'/>"));
    EXPECT_NE(narrow(error_of("<r/>", plain(used.path())).message()).find(address), std::string::npos);
  }
}

TEST(axsSchemas, knows_the_attributes_of_the_xml_namespace)
{
  TestFile const file("engine_xml.xsd",
    schema("", "<xs:import namespace='http://www.w3.org/XML/1998/namespace' "
               "schemaLocation='http://www.w3.org/2001/xml.xsd'/><xs:element name='r'><xs:complexType>"
               "<xs:attributeGroup ref='xml:specialAttrs'/></xs:complexType></xs:element>"));
  EXPECT_NE(load("<r xml:lang='de' xml:space='preserve' xml:base='x' xml:id='i'/>", plain(file.path())), nullptr);
  error_of("<r xml:space='maybe'/>", plain(file.path()));
}

TEST(axsSchemas, heeds_no_hints_of_the_document)
{
  TestFile const file("engine_hints.xsd", schema("", "<xs:element name='r'/>"));
  std::string const hint =
    "xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' xsi:schemaLocation='urn:h http://localhost:1/h.xsd' "
    "xsi:noNamespaceSchemaLocation='engine_none.xsd'";
  EXPECT_NE(load("<r " + hint + "/>", plain(file.path())), nullptr);
  EXPECT_NE(load("<h xmlns='urn:h' " + hint + "/>", plain(file.path())), nullptr);
}

TEST(axsSchemas, a_root_whose_namespace_has_no_schema_loads)
{
  TestFile const file("engine_one.xsd", number_schema("urn:a", "r"));
  axmLoadOptions const options = with({{"urn:a", file.path()}});
  EXPECT_NE(load("<r>text</r>", options), nullptr);
  EXPECT_NE(load("<r xmlns='urn:b'>text</r>", options), nullptr);
  error_of("<r xmlns='urn:a'>text</r>", options);
  EXPECT_NE(load("<r>text</r>", axmLoadOptions(axmValidateWithSchemas)), nullptr);
  axmLoadOptions none = options;
  none.set_validate_mode(axmValidateNone);
  EXPECT_NE(load("<r xmlns='urn:a'>text</r>", none), nullptr);
}

TEST(axsSchemas, two_files_for_one_namespace_both_apply)
{
  TestFile const one("engine_two_1.xsd", number_schema("urn:a", "one"));
  TestFile const two("engine_two_2.xsd", number_schema("urn:a", "two"));
  axmLoadOptions const options = with({{"urn:a", one.path()}, {"urn:a", two.path()}, {"urn:a", one.path()}});
  for (char const* const name : {"one", "two"})
  {
    std::string const tag = name;
    EXPECT_NE(load("<" + tag + " xmlns='urn:a'>5</" + tag + ">", options), nullptr);
    error_of("<" + tag + " xmlns='urn:a'>five</" + tag + ">", options);
  }
}

TEST(axsSchemas, schemas_of_two_namespaces_apply_together)
{
  TestFile const first("engine_ns_1.xsd",
    schema(" targetNamespace='urn:1' xmlns:t='urn:2'", "<xs:import namespace='urn:2'/><xs:element name='r'>"
                                                       "<xs:complexType><xs:attribute ref='t:AB'/></xs:complexType>"
                                                       "</xs:element>"));
  TestFile const second("engine_ns_2.xsd",
    schema(" targetNamespace='urn:2'", "<xs:attribute name='AB' type='xs:decimal' use='required'/>"));
  for (bool const reversed : {false, true})
  {
    axmLoadOptions const options = reversed ? with({{"urn:2", second.path()}, {"urn:1", first.path()}})
                                            : with({{"urn:1", first.path()}, {"urn:2", second.path()}});
    EXPECT_NE(load("<r xmlns='urn:1' xmlns:b='urn:2' b:AB='0.1'/>", options), nullptr);
    axmParseError const error = error_of("<r xmlns='urn:1' xmlns:b='urn:2' b:AB='x'/>", options);
    EXPECT_NE(narrow(error.message()).find("attribute 'b:AB' of element 'r'"), std::string::npos);
  }
}

TEST(axsSchemas, a_use_of_a_global_attribute_is_let_pass_if_it_is_legal)
{
  for (char const* const use : {"required", "optional", "prohibited"})
  {
    TestFile const file("engine_use.xsd",
      schema("", "<xs:attribute name='a' type='xs:int' use='" + std::string(use) + "'/><xs:element name='r'/>"));
    EXPECT_NE(load("<r/>", plain(file.path())), nullptr) << use;
  }
  TestFile const illegal(
    "engine_use.xsd", schema("", "<xs:attribute name='a' type='xs:int' use='sometimes'/><xs:element name='r'/>"));
  EXPECT_EQ(narrow(error_of("<r/>", plain(illegal.path())).url()), illegal.name);
}

TEST(axsSchemas, takes_file_names_as_they_are_also_in_includes)
{
  for (char const* const name : {"engine spaces", "engine\xC2\xA0nb", "engine mixed\xC2\xA0spaces", "engine%20percent",
         "engine_%", "engine#hash", "engine_\xD1\x84"})
  {
    std::string const base = name;
    TestFile const part(base + " part.xsd", schema("", "<xs:simpleType name='T'><xs:restriction base='xs:int'/>"
                                                       "</xs:simpleType>"));
    TestFile const imported(base + " imported.xsd", number_schema("urn:i", "i"));
    TestFile const whole(base + ".xsd",
      schema(" xmlns:i='urn:i'", "<xs:include schemaLocation='" + base +
                                   " part.xsd'/>"
                                   "<xs:import namespace='urn:i' schemaLocation='" +
                                   base +
                                   " imported.xsd'/>"
                                   "<xs:element name='r'><xs:complexType><xs:sequence><xs:element name='t' type='T'/>"
                                   "<xs:element ref='i:i'/></xs:sequence></xs:complexType></xs:element>"));
    EXPECT_NE(load("<r><t>1</t><i xmlns='urn:i'>2</i></r>", plain(whole.path())), nullptr) << name;
    error_of("<r><t>x</t><i xmlns='urn:i'>2</i></r>", plain(whole.path()));
    error_of("<r><t>1</t><i xmlns='urn:i'>x</i></r>", plain(whole.path()));
  }
  TestFile const part("engine decoded.xsd", schema("", "<xs:element name='r' type='xs:int'/>"));
  TestFile const whole("engine_decodes.xsd", schema("", "<xs:include schemaLocation='engine%20decoded.xsd'/>"));
  error_of("<r>x</r>", plain(whole.path()));
}

TEST(axsSchemas, numbers_of_occurrences_are_not_bounded)
{
  TestFile const part("engine_groups.xsd",
    schema("", "<xs:group name='a'><xs:sequence><xs:element name='x'/><xs:element name='y'/></xs:sequence></xs:group>"
               "<xs:group name='b'><xs:sequence><xs:group ref='a' maxOccurs='4294967296'/></xs:sequence></xs:group>"));
  TestFile const whole("engine_groups_2.xsd",
    schema("", "<xs:include schemaLocation='engine_groups.xsd'/>\n<xs:element name='r'><xs:complexType><xs:sequence>"
               "<xs:group ref='b' maxOccurs='1000000'/><xs:element name='z' minOccurs='2' maxOccurs='3'/></xs:sequence>"
               "</xs:complexType></xs:element>"));
  EXPECT_NE(load("<r><x/><y/><x/><y/><z/><z/></r>", plain(whole.path())), nullptr);
  EXPECT_EQ(narrow(error_of("<r><x/><y/><x/><z/></r>", plain(whole.path())).message()),
    "element 'z' may not stand here in 'r'; expected is 'y'");
  EXPECT_EQ(narrow(error_of("<r><x/><y/><z/></r>", plain(whole.path())).message()),
    "element 'r' ends too early; expected is 'z'");
}

TEST(axsSchemas, groups_may_be_nested_deeply)
{
  std::string open;
  std::string close;
  for (int i = 0; i < 20000; ++i)
  {
    open += i % 2 == 0 ? "<xs:sequence>" : "<xs:choice>";
    close.insert(0, i % 2 == 0 ? "</xs:sequence>" : "</xs:choice>");
  }
  TestFile const nested(
    "engine_nested.xsd", schema("", "<xs:element name='r'><xs:complexType>" + open + "<xs:element name='a'/>" + close +
                                      "</xs:complexType></xs:element>"));
  EXPECT_NE(load("<r><a/></r>", plain(nested.path())), nullptr);
  error_of("<r/>", plain(nested.path()));
}

namespace
{
std::string pattern_schema(std::string const& pattern)
{
  return schema("", "<xs:element name='r'><xs:simpleType><xs:restriction base='xs:string'>\n<xs:pattern value='" +
                      pattern + "'/></xs:restriction></xs:simpleType></xs:element>");
}
}

TEST(axsSchemas, patterns_that_repeat_what_repeats_are_matched)
{
  for (char const* const pattern : {"(a*)*b?", "(a*)+", "(a*){2,}", "(a{0,5})*", "(a*b*)*", "(a|b*)*", "((a|b)*)*c?",
         "((a+)?)*", "(a+)*", "(a|b)*", "a*b*a*", "(a*)?", "(a?)*", "()*a*", "[(a*)*]*", "(b*a|\\p{Lu})*a"})
  {
    TestFile const file("engine_pattern.xsd", pattern_schema(pattern));
    EXPECT_NE(load("<r>aaaaaaaa</r>", plain(file.path())), nullptr) << pattern;
    error_of("<r>" + std::string(100000, 'a') + "!</r>", plain(file.path()));
  }
}

TEST(axsSchemas, a_long_value_is_matched)
{
  TestFile const file("engine_long_pattern.xsd", pattern_schema("(a|b|c)+x?"));
  std::string value;
  for (int i = 0; i < 1000000; ++i)
    value += "abc";
  EXPECT_NE(load("<r>" + value + "</r>", plain(file.path())), nullptr);
  error_of("<r>" + value + "y</r>", plain(file.path()));
}

#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
namespace
{
ucontext_t caller;
ucontext_t fiber;
bool loaded_in_fiber = false;

void load_in_fiber()
{
  TestFile const file("engine_fiber.xsd", pattern_schema("(a|b)+"));
  loaded_in_fiber = load("<r>ab</r>", plain(file.path())) != nullptr;
}
}

// On a stack that the system does not know nothing tells its end; that is no reason to refuse everything.
TEST(axsSchemas, validation_works_on_the_stack_of_a_fiber)
{
  std::vector<char> stack(1024 * 1024);
  ASSERT_EQ(getcontext(&fiber), 0);
  fiber.uc_stack.ss_sp = stack.data();
  fiber.uc_stack.ss_size = stack.size();
  fiber.uc_link = &caller;
  makecontext(&fiber, &load_in_fiber, 0);
  ASSERT_EQ(swapcontext(&caller, &fiber), 0);
  EXPECT_TRUE(loaded_in_fiber);
}
#endif

TEST(axsSchemas, a_redefined_group_may_refer_to_itself)
{
  TestFile const part("engine_redefined.xsd",
    schema("", "<xs:group name='g'><xs:sequence><xs:element name='x'/></xs:sequence></xs:group>"));
  TestFile const whole("engine_redefines.xsd",
    schema("", "<xs:redefine schemaLocation='engine_redefined.xsd'><xs:group name='g'><xs:sequence>"
               "<xs:group ref='g'/><xs:element name='y'/></xs:sequence></xs:group></xs:redefine>"
               "<xs:element name='r'><xs:complexType><xs:group ref='g'/></xs:complexType></xs:element>"));
  EXPECT_NE(load("<r><x/><y/></r>", plain(whole.path())), nullptr);
}

TEST(axsSchemas, a_document_type_declaration_does_not_disturb_validation)
{
  TestFile const file("engine_doctype.xsd", schema("", machine));
  std::string const doctype = "<!DOCTYPE machine [<!ELEMENT other EMPTY><!ENTITY e '1.2'><!ENTITY t 'text'>]>";
  EXPECT_NE(load(doctype + "<machine><XY Value='&e;'/></machine>", plain(file.path())), nullptr);
  error_of(doctype + "<machine><XY Value='&t;'/></machine>", plain(file.path()));
}

TEST(axsSchemas, documents_may_be_nested_as_deep_as_memory_lasts)
{
  TestFile const file("engine_deep.xsd",
    schema("", "<xs:element name='a'><xs:complexType><xs:sequence><xs:element ref='a' minOccurs='0'/></xs:sequence>"
               "</xs:complexType></xs:element>"));
  auto const nested = [](int levels, std::string const& innermost)
  {
    std::string open;
    std::string close;
    for (int i = 0; i < levels; ++i)
    {
      open += "<a>";
      close += "</a>";
    }
    return open + innermost + close;
  };
  EXPECT_NE(load(nested(200000, ""), plain(file.path())), nullptr);
  EXPECT_EQ(narrow(error_of(nested(200000, "<b/>"), plain(file.path())).message()),
    "element 'b' may not stand here in 'a'; expected is 'a' or the end of the element");
}
