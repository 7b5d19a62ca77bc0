#include "../TextStream.h"
#include "Schema.h"

#include <gtest/gtest.h>

namespace
{
std::string const xsi = " xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance'";

std::string with_type(std::string const& element, std::string const& content)
{
  return "<xs:element name='" + element + "'><xs:complexType>" + content + "</xs:complexType></xs:element>";
}

std::string sequence(std::string const& content)
{
  return "<xs:sequence>" + content + "</xs:sequence>";
}

// cvc-elt.4.3, cvc-type
std::string const types =
  "<xs:complexType name='base'><xs:sequence><xs:element name='a' minOccurs='0'/></xs:sequence>"
  "</xs:complexType><xs:complexType name='more'><xs:complexContent><xs:extension base='base'>"
  "<xs:sequence><xs:element name='b'/></xs:sequence></xs:extension></xs:complexContent>"
  "</xs:complexType><xs:complexType name='less'><xs:complexContent><xs:restriction base='base'/>"
  "</xs:complexContent></xs:complexType><xs:complexType name='abstract' abstract='true'/>";
}

TEST(axsAssessment, all_errors_are_told_in_the_order_of_the_document)
{
  Schema const schema(with_type(
    "r", sequence("<xs:element name='n' type='xs:int' maxOccurs='9'/>") + "<xs:attribute name='a' type='xs:int'/>"));
  EXPECT_EQ(schema.wrong("<r a='x'>\n<n>1</n><n>y</n>\n<m/><n>z</n></r>"),
    "1: attribute 'a' of element 'r': \"x\" is not of the type xs:int\n"
    "2: element 'n': \"y\" is not of the type xs:int\n"
    "3: element 'm' may not stand here in 'r'; expected is 'n' or the end of the element\n");
  EXPECT_EQ(schema.wrong("<r><n>x</n><n>y</n></r>", 1), "1: element 'n': \"x\" is not of the type xs:int\n");
  EXPECT_EQ(schema.wrong("<r><n>x</n>\n<n></r>"),
    "1: element 'n': \"x\" is not of the type xs:int\n"
    "2: the element 'n', open since line 2, must be closed first, by </n>\n");
}

TEST(axsAssessment, an_error_that_reaches_the_bound_may_not_be_the_last)
{
  Schema const schema("<xs:element name='r'><xs:complexType><xs:attribute name='a' type='xs:int'/>"
                      "<xs:attribute name='b' type='xs:int'/></xs:complexType></xs:element>");
  EXPECT_FALSE(schema.validation().check(bytes("<r a='x' b='y'/>"), 2).is_whole);
  EXPECT_TRUE(schema.validation().check(bytes("<r a='x' b='y'/>"), 3).is_whole);
  EXPECT_TRUE(schema.validation().check(bytes("<r/>"), 1).is_whole);
}

// cvc-elt.2, cvc-type.2
TEST(axsAssessment, what_is_abstract_may_not_stand_in_a_document)
{
  Schema const schema("<xs:element name='h' abstract='true' type='xs:int'/><xs:element name='m' substitutionGroup='h'/>"
                      "<xs:element name='t' type='abstract'/>" +
                      types + with_type("r", sequence("<xs:element ref='h'/>")));
  EXPECT_EQ(schema.wrong("<r><m>1</m></r>"), "");
  EXPECT_EQ(schema.wrong("<r><m>x</m></r>"), "1: element 'm': \"x\" is not of the type xs:int\n");
  EXPECT_EQ(schema.wrong("<r><h>1</h></r>"),
    "1: element 'h' is abstract: an element that can stand in its place is expected\n");
  EXPECT_EQ(schema.wrong("<t/>"),
    "1: element 't': its type 'abstract' is abstract; xsi:type must name one that is derived from it\n");
}

// cvc-elt.3
TEST(axsAssessment, a_nil_element_is_empty_and_nillable)
{
  Schema const schema("<xs:element name='n' nillable='true' type='xs:int'/><xs:element name='p' type='xs:int'/>"
                      "<xs:element name='f' nillable='true' type='xs:int' fixed='1'/>");
  EXPECT_EQ(schema.wrong("<n" + xsi + " xsi:nil='true'/>"), "");
  EXPECT_EQ(schema.wrong("<n" + xsi + " xsi:nil=' 1 '/>"), "");
  EXPECT_EQ(schema.wrong("<n" + xsi + " xsi:nil='false'>5</n>"), "");
  EXPECT_EQ(schema.wrong("<n" + xsi + " xsi:nil='true'>5</n>"), "1: element 'n': it must be empty\n");
  EXPECT_NE(schema.wrong("<n" + xsi + " xsi:nil='yes'>5</n>"), "");
  EXPECT_EQ(schema.wrong("<p" + xsi + " xsi:nil='true'/>"),
    "1: attribute 'xsi:nil' of element 'p': the element is not nillable\n"
    "1: element 'p': \"\" is not of the type xs:int\n");
  EXPECT_EQ(schema.wrong("<f" + xsi + " xsi:nil='true'/>"),
    "1: attribute 'xsi:nil' of element 'f': the element has the fixed value \"1\" and may not be nil\n");
}

// cvc-elt.4
TEST(axsAssessment, a_document_may_name_a_type_that_is_derived)
{
  Schema const schema(types + "<xs:element name='r' type='base'/><xs:element name='s' type='base' block='extension'/>"
                              "<xs:element name='i' type='xs:decimal'/>");
  EXPECT_EQ(schema.wrong("<r" + xsi + " xsi:type='more'><a/><b/></r>"), "");
  EXPECT_EQ(schema.wrong("<r" + xsi + " xsi:type='less'/>"), "");
  EXPECT_EQ(schema.wrong("<r" + xsi + " xsi:type='less'><a/></r>"),
    "1: element 'a' may not stand here in 'r', which must be empty\n");
  EXPECT_EQ(schema.wrong("<s" + xsi + " xsi:type='less'/>"), "");
  EXPECT_NE(schema.wrong("<s" + xsi + " xsi:type='more'><b/></s>").find("may not take the place"), std::string::npos);
  EXPECT_NE(schema.wrong("<r" + xsi + " xsi:type='none'/>").find("there is no type 'none'"), std::string::npos);
  EXPECT_NE(schema.wrong("<r" + xsi + " xsi:type='p:none'/>"), "");
  EXPECT_EQ(schema.wrong("<i" + xsi + " xmlns:x='http://www.w3.org/2001/XMLSchema' xsi:type='x:int'>5</i>"), "");
  EXPECT_NE(schema.wrong("<i" + xsi + " xmlns:x='http://www.w3.org/2001/XMLSchema' xsi:type='x:string'>5</i>"), "");
}

// cvc-elt.5, cvc-au
TEST(axsAssessment, fixed_values_are_compared_as_values)
{
  Schema const schema("<xs:element name='f' type='xs:decimal' fixed='1.0'/>"
                      "<xs:element name='m' fixed='x y'><xs:complexType mixed='true'><xs:sequence><xs:element name='a' "
                      "minOccurs='0'/></xs:sequence></xs:complexType></xs:element>" +
                      with_type("a", "<xs:attribute name='f' type='xs:int' fixed='7'/>"));
  EXPECT_EQ(schema.wrong("<f>01</f>"), "");
  EXPECT_EQ(schema.wrong("<f/>"), "");
  EXPECT_EQ(schema.wrong("<f>2</f>"), "1: element 'f': \"2\" is not allowed: it must be \"1.0\"\n");
  EXPECT_EQ(schema.wrong("<m>x y</m>"), "");
  EXPECT_EQ(schema.wrong("<m/>"), "");
  EXPECT_NE(schema.wrong("<m>x <a/>y</m>"), "");
  EXPECT_NE(schema.wrong("<m>xy</m>"), "");
  EXPECT_EQ(schema.wrong("<a f='07'/>"), "");
  EXPECT_EQ(schema.wrong("<a f='8'/>"), "1: attribute 'f' of element 'a': \"8\" is not allowed: it must be \"7\"\n");
}

// cvc-complex-type.2.1, .2.2, .2.3
TEST(axsAssessment, a_content_is_empty_simple_elements_or_mixed_as_declared)
{
  Schema const schema(with_type("empty", "") + with_type("elements", sequence("<xs:element name='a'/>")) +
                      "<xs:element name='simple' type='xs:string'/>");
  EXPECT_EQ(schema.wrong("<empty><!--c--><?p?></empty>"), "");
  EXPECT_EQ(schema.wrong("<empty> </empty>"), "1: element 'empty': it must be empty\n");
  EXPECT_EQ(schema.wrong("<empty><a/></empty>"), "1: element 'a' may not stand here in 'empty', which must be empty\n");
  EXPECT_EQ(schema.wrong("<elements> <a/>&#32;</elements>"), "");
  EXPECT_EQ(schema.wrong("<elements>x<a/>y</elements>"), "1: element 'elements': text is not allowed here\n");
  EXPECT_EQ(schema.wrong("<simple>a<![CDATA[b]]><!--c-->d</simple>"), "");
  EXPECT_EQ(
    schema.wrong("<simple><a/></simple>"), "1: element 'a' may not stand here in 'simple', which has a text only\n");
}

// cvc-wildcard, cvc-assess-elt
TEST(axsAssessment, wildcards_are_strict_lax_or_skipped)
{
  auto const any = [](std::string const& process)
  {
    return with_type(process, sequence("<xs:any processContents='" + process + "' namespace='##any'/>") +
                                "<xs:anyAttribute processContents='" + process + "'/>");
  };
  Schema const schema(any("strict") + any("lax") + any("skip") +
                      "<xs:element name='n' type='xs:int'/>"
                      "<xs:attribute name='i' type='xs:int'/>");
  EXPECT_EQ(schema.wrong("<strict i='1'><n>1</n></strict>"), "");
  EXPECT_NE(schema.wrong("<strict i='x'><n>1</n></strict>"), "");
  EXPECT_EQ(schema.wrong("<strict><u/></strict>"), "1: no declaration found for element 'u'\n");
  EXPECT_EQ(schema.wrong("<strict u='1'><n>1</n></strict>"),
    "1: attribute 'u' of element 'strict' must be declared in the schema, and is not\n");
  EXPECT_EQ(schema.wrong("<lax u='1'><u><v><n>1</n></v></u></lax>"), "");
  EXPECT_EQ(schema.wrong("<lax><u><v><n>x</n></v></u></lax>"), "1: element 'n': \"x\" is not of the type xs:int\n");
  EXPECT_EQ(schema.wrong("<skip i='x'><n>x</n></skip>"), "");
}

TEST(axsAssessment, below_an_unknown_root_what_is_known_is_checked)
{
  Schema const schema("<xs:element name='n' type='xs:int'/>");
  EXPECT_EQ(schema.wrong("<e:e xmlns:e='urn:e'><e:b><n>5</n></e:b></e:e>"), "");
  EXPECT_EQ(schema.wrong("<e:e xmlns:e='urn:e'><e:b><n>x</n></e:b></e:e>"),
    "1: element 'n': \"x\" is not of the type xs:int\n");
  EXPECT_FALSE(schema.validation().check(bytes("<e xmlns='urn:e'/>")).has_assessed);
  EXPECT_TRUE(schema.validation().check(bytes("<e:e xmlns:e='urn:e'><n>5</n></e:e>")).has_assessed);
}

// cvc-id
TEST(axsAssessment, ids_are_unique_and_references_find_one)
{
  Schema const schema(with_type(
    "r", sequence("<xs:element name='e' maxOccurs='unbounded'><xs:complexType><xs:attribute name='id' type='xs:ID'/>"
                  "<xs:attribute name='refs' type='xs:IDREFS'/></xs:complexType></xs:element>")));
  EXPECT_EQ(schema.wrong("<r><e refs='b a'/><e id='a'/><e id='b'/></r>"), "");
  EXPECT_EQ(schema.wrong("<r>\n<e id='a'/>\n<e id='a'/></r>"),
    "3: attribute 'id' of element 'e': ID value 'a' is not unique; first at line 2\n");
  EXPECT_EQ(schema.wrong("<r>\n<e refs='a b'/>\n<e id='a'/></r>"), "2: there is no ID 'b', to which an IDREF refers\n");
}

TEST(axsAssessment, names_in_values_are_resolved_where_they_stand)
{
  Schema const schema("<xs:element name='q' type='xs:QName'/><xs:element name='r'><xs:complexType><xs:sequence>"
                      "<xs:element ref='q' maxOccurs='9'/></xs:sequence></xs:complexType><xs:unique name='u'>"
                      "<xs:selector xpath='q'/><xs:field xpath='.'/></xs:unique></xs:element>");
  EXPECT_EQ(schema.wrong("<r xmlns:p='urn:p'><q>p:a</q><q xmlns:p='urn:q'>p:<!--c-->a</q></r>"), "");
  EXPECT_EQ(schema.wrong("<r xmlns:p='urn:p'><q>p:a</q><q xmlns:o='urn:p'>o:a</q></r>"),
    "1: element 'q': what must be unique in the element 'r' is not: \"o:a\"; first at line 1\n");
  EXPECT_NE(schema.wrong("<r><q>p:a</q></r>"), "");
  EXPECT_EQ(schema.wrong("<r><q>xml:a</q></r>"), "");
}

TEST(axsAssessment, types_with_many_attributes_are_assessed)
{
  std::string declared;
  std::string given;
  for (int i = 0; i < 300; ++i)
  {
    declared += "<xs:attribute name='a" + std::to_string(i) + "' type='xs:int' use='required'/>";
    given += " a" + std::to_string(i) + "='1'";
  }
  Schema const schema(with_type("r", declared));
  EXPECT_EQ(schema.wrong("<r" + given + "/>"), "");
  EXPECT_EQ(schema.wrong("<r b='1'" + given + "/>"), "1: attribute 'b' is not declared for element 'r'\n");
  EXPECT_EQ(schema.wrong("<r" + given.substr(7) + "/>"), "1: element 'r': missing required attribute 'a0'\n");
}

TEST(axsAssessment, each_element_is_assessed_by_its_own_attributes_whatever_others_of_its_type_had)
{
  Schema const schema(
    "<xs:element name='r'><xs:complexType><xs:sequence><xs:element name='i' maxOccurs='unbounded'><xs:complexType>"
    "<xs:attribute name='a' type='xs:int' use='required'/><xs:attribute name='b' type='xs:int'/></xs:complexType>"
    "</xs:element></xs:sequence></xs:complexType></xs:element>");
  EXPECT_EQ(schema.wrong("<r><i a='1' b='2'/><i a='3' b='4'/><i b='5' a='6'/><i a='7'/><i a='8'/></r>"), "");
  EXPECT_EQ(schema.wrong("<r><i a='1' b='2'/>\n<i a='x' b='2'/>\n<i a='1' b='x'/>\n<i b='2'/>\n<i a='1' c='2'/>\n"
                         "<i a='1' b='2' c='3'/>\n<i c='1' b='2'/>\n<i/></r>"),
    "2: attribute 'a' of element 'i': \"x\" is not of the type xs:int\n"
    "3: attribute 'b' of element 'i': \"x\" is not of the type xs:int\n"
    "4: element 'i': missing required attribute 'a'\n"
    "5: attribute 'c' is not declared for element 'i'\n"
    "6: attribute 'c' is not declared for element 'i'\n"
    "7: attribute 'c' is not declared for element 'i'\n"
    "7: element 'i': missing required attribute 'a'\n"
    "8: element 'i': missing required attribute 'a'\n");
}

TEST(axsAssessment, attributes_of_one_name_in_two_namespaces_are_told_apart)
{
  TestFile const file("two_namespaces.xsd",
    "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' targetNamespace='u' xmlns:u='u'>"
    "<xs:attribute name='a' type='xs:int'/><xs:element name='r'><xs:complexType><xs:sequence>"
    "<xs:element name='g' maxOccurs='unbounded'><xs:complexType><xs:sequence><xs:element name='i'><xs:complexType>"
    "<xs:attribute ref='u:a'/></xs:complexType></xs:element></xs:sequence></xs:complexType></xs:element>"
    "</xs:sequence></xs:complexType></xs:element></xs:schema>");
  axmLoadOptions options(axmValidateWithSchemas);
  options.add_external_schema(wide("u"), file.path());
  axsValidation const validation(options);
  ASSERT_TRUE(validation.schema_errors().empty());
  auto const errors = [&](std::string const& groups)
  { return validation.check(bytes("<u:r xmlns:u='u'>" + groups + "</u:r>"), 10).errors.size(); };
  std::string const group = "<i u:a='1'/></g>";
  EXPECT_EQ(errors("<g>" + group + "<g>" + group), 0U);
  EXPECT_EQ(errors("<g>" + group + "<g xmlns:u='v'>" + group), 1U);
}

// cvc-complex-type.5
TEST(axsAssessment, one_id_at_most_comes_in_by_a_wildcard)
{
  Schema const schema("<xs:attribute name='i' type='xs:ID'/><xs:attribute name='j' type='xs:ID'/>" +
                      with_type("r", "<xs:anyAttribute processContents='lax'/>"));
  EXPECT_EQ(schema.wrong("<r i='x'/>"), "");
  EXPECT_EQ(schema.wrong("<r i='x' j='y'/>"), "1: attribute 'j' of element 'r' is an ID beside another one\n");
}

TEST(axsAssessment, a_wrong_schema_is_told_by_each_check)
{
  Schema const schema("<xs:element name='r' type='none'/>");
  EXPECT_EQ(schema.fault(), "there is no declaration of 'none' in no namespace\n");
  EXPECT_NE(schema.wrong("<r/>").find("there is no declaration of 'none'"), std::string::npos);
}

TEST(axsAssessment, errors_in_a_stream_have_the_name_that_it_is_given)
{
  Schema const schema("<xs:element name='r' type='xs:int'/>");
  TextStream named("<r>x</r>");
  axsValidation::Result const result = schema.validation().check(named, apPath("named.xml"));
  ASSERT_EQ(result.errors.size(), 1U);
  EXPECT_EQ(narrow(result.errors.front().url()), "named.xml");
  TextStream unnamed("<r>x</r>");
  EXPECT_EQ(narrow(schema.validation().check(unnamed).errors.front().url()), "");
}

TEST(axsAssessment, nothing_below_a_skipped_element_is_assessed)
{
  Schema const schema("<xs:element name='n' type='xs:int'/>" +
                      with_type("r", "<xs:sequence><xs:any processContents='skip'/></xs:sequence>"));
  EXPECT_EQ(schema.wrong("<r><n>x<n>y<other a='1'/><n>z</n></n></n></r>"), "");
  EXPECT_EQ(schema.wrong("<r><n/><n/></r>"), "1: element 'n' may not stand here in 'r'; expected is the end of the "
                                             "element\n1: element 'n': \"\" is not of the type xs:int\n");
}

TEST(axsAssessment, a_nil_or_simple_element_has_no_children)
{
  Schema const schema(with_type("r", "<xs:sequence><xs:element name='n' nillable='true' maxOccurs='9'><xs:complexType>"
                                     "<xs:sequence><xs:element name='a'/></xs:sequence></xs:complexType></xs:element>"
                                     "<xs:element name='s' type='xs:int' minOccurs='0'/></xs:sequence>"));
  EXPECT_EQ(schema.wrong("<r" + xsi + "><n xsi:nil='true'/><n><a/></n><n xsi:nil='false'><a/></n><s>1</s></r>"), "");
  EXPECT_EQ(schema.wrong("<r" + xsi + "><n xsi:nil='true'><a/><b/></n></r>"),
    "1: element 'a' may not stand here in 'n', which is nil and must be empty\n");
  EXPECT_EQ(
    schema.wrong("<r><n><a/></n><s><a/></s></r>"), "1: element 'a' may not stand here in 's', which has a text only\n");
}

TEST(axsAssessment, an_attribute_stands_where_it_is_declared_or_a_wildcard_takes_it)
{
  Schema const schema("<xs:attribute name='g' type='xs:int' fixed='1'/>" + with_type("none", "") +
                      with_type("any", "<xs:anyAttribute processContents='lax'/>") +
                      with_type("strict", "<xs:anyAttribute/>") +
                      with_type("local", "<xs:anyAttribute namespace='##local u' processContents='skip'/>") +
                      with_type("other", "<xs:anyAttribute namespace='##other' processContents='skip'/>"));
  std::string const spaces = " xmlns:u='u' xmlns:v='v'";
  EXPECT_EQ(schema.wrong("<none" + xsi + " xsi:schemaLocation='t t.xsd' xsi:noNamespaceSchemaLocation='x'/>"), "");
  EXPECT_EQ(schema.wrong("<none a='1'/>"), "1: attribute 'a' is not declared for element 'none'\n");
  EXPECT_EQ(
    schema.wrong("<none" + xsi + " xsi:other='1'/>"), "1: attribute 'xsi:other' is not declared for element 'none'\n");
  EXPECT_EQ(schema.wrong("<any" + spaces + " a='1' u:b='2' g='1'/>"), "");
  EXPECT_EQ(
    schema.wrong("<any g='2'/>"), "1: attribute 'g' of element 'any': \"2\" is not allowed: it must be \"1\"\n");
  EXPECT_EQ(schema.wrong("<strict g='1'/>"), "");
  EXPECT_EQ(schema.wrong("<strict a='1'/>"),
    "1: attribute 'a' of element 'strict' must be declared in the schema, and is not\n");
  EXPECT_EQ(schema.wrong("<local" + spaces + " a='1' u:b='2'/>"), "");
  EXPECT_EQ(schema.wrong("<local" + spaces + " v:a='1'/>"), "1: attribute 'v:a' is not declared for element 'local'\n");
  EXPECT_EQ(schema.wrong("<other" + spaces + " u:a='1'/>"), "");
  EXPECT_EQ(schema.wrong("<other a='1'/>"), "1: attribute 'a' is not declared for element 'other'\n");
}

TEST(axsAssessment, what_is_expected_may_be_a_wildcard)
{
  auto const wrong_of = [](std::string const& wildcard)
  {
    Schema const schema(with_type("r", "<xs:sequence><xs:any processContents='skip'" + wildcard + "/></xs:sequence>"));
    return schema.wrong("<r/>");
  };
  EXPECT_EQ(wrong_of(""), "1: element 'r' ends too early; expected is any element\n");
  EXPECT_EQ(
    wrong_of(" namespace='##other'"), "1: element 'r' ends too early; expected is an element of another namespace\n");
  EXPECT_EQ(
    wrong_of(" namespace='##local'"), "1: element 'r' ends too early; expected is an element in no namespace\n");
  EXPECT_EQ(wrong_of(" namespace='u'"), "1: element 'r' ends too early; expected is an element of the namespace 'u'\n");
  EXPECT_EQ(wrong_of(" namespace='u v'"),
    "1: element 'r' ends too early; expected is an element of the namespace 'u' or some others\n");
}

// cvc-elt.5.1.1: the default of an element has to be of the type that the document names.
TEST(axsAssessment, a_default_is_of_the_type_that_the_document_names)
{
  Schema const schema("<xs:element name='r' type='xs:string' default='x y'/><xs:simpleType name='t'>"
                      "<xs:restriction base='xs:string'><xs:maxLength value='1'/></xs:restriction></xs:simpleType>");
  EXPECT_EQ(schema.wrong("<r/>"), "");
  EXPECT_EQ(schema.wrong("<r" + xsi + " xsi:type='t'>z</r>"), "");
  EXPECT_EQ(schema.wrong("<r" + xsi + " xsi:type='t'/>"),
    "1: element 'r': \"x y\" is not of the type 't': it has length '3' which exceeds maxLength facet value '1'\n");
}

TEST(axsAssessment, defaults_are_values_of_keys_and_references)
{
  Schema const schema("<xs:element name='r'><xs:complexType><xs:sequence><xs:element name='i' maxOccurs='9'>"
                      "<xs:complexType><xs:attribute name='k' type='xs:int' default='1'/></xs:complexType></xs:element>"
                      "<xs:element name='e' type='xs:int' default='1' minOccurs='0' maxOccurs='9'/></xs:sequence>"
                      "</xs:complexType><xs:unique name='u'><xs:selector xpath='i'/><xs:field xpath='@k'/></xs:unique>"
                      "<xs:unique name='v'><xs:selector xpath='e'/><xs:field xpath='.'/></xs:unique></xs:element>");
  EXPECT_EQ(schema.wrong("<r><i/><i k='2'/><e/><e>2</e></r>"), "");
  EXPECT_EQ(schema.wrong("<r><i/><i k='01'/></r>"),
    "1: element 'i': what must be unique in the element 'r' is not: \"01\"; first at line 1\n");
  EXPECT_EQ(schema.wrong("<r><i/><e/><e>01</e></r>"),
    "1: element 'e': what must be unique in the element 'r' is not: \"01\"; first at line 1\n");

  Schema const references(with_type("s", "<xs:attribute name='f' type='xs:IDREF' default='x'/>"
                                         "<xs:attribute name='i' type='xs:ID'/>"));
  EXPECT_EQ(references.wrong("<s i='x'/>"), "");
  EXPECT_EQ(references.wrong("<s/>"), "1: there is no ID 'x', to which an IDREF refers\n");
}

// cvc-elt.5.1.2: the default of an element is held against its type like any value, in the document that it stands in.
TEST(axsAssessment, the_default_of_an_element_refers_to_what_the_document_has)
{
  Schema const schema(
    "<xs:simpleType name='any'><xs:union memberTypes='xs:ID xs:int'/></xs:simpleType>" +
    with_type("r", "<xs:choice maxOccurs='9'><xs:element name='f' type='xs:IDREF' default='x'/>"
                   "<xs:element name='g' type='xs:IDREFS' default='x y'/><xs:element name='i' type='xs:ID'/>"
                   "<xs:element name='u' type='any' default='x'/><xs:element name='e' type='xs:ENTITY' default='pic'/>"
                   "</xs:choice>"));
  EXPECT_EQ(schema.wrong("<r><f/><i>x</i></r>"), "");
  EXPECT_EQ(schema.wrong("<r><i>y</i>\n<f/></r>"), "2: there is no ID 'x', to which an IDREF refers\n");
  EXPECT_EQ(schema.wrong("<r><i>x</i>\n<g/></r>"), "2: there is no ID 'y', to which an IDREF refers\n");
  EXPECT_EQ(schema.wrong("<r><u/>\n<f/></r>"), "");
  EXPECT_EQ(schema.wrong("<r><u>7</u><u/>\n<u/></r>"), "2: element 'u': ID value 'x' is not unique; first at line 1\n");
  EXPECT_EQ(schema.wrong("<!DOCTYPE r [<!NOTATION n SYSTEM 's'><!ENTITY pic SYSTEM 'p' NDATA n>]><r><e/></r>"), "");
  EXPECT_EQ(schema.wrong("<r><e/></r>"), "1: element 'e': \"pic\" is not of the type xs:ENTITY: the document type "
                                         "declares no unparsed entity of that name\n");
}

TEST(axsAssessment, entities_and_notations_are_those_of_the_document_type_and_the_schema)
{
  Schema const schema(
    "<xs:notation name='jpeg' public='p'/>" +
    with_type("r", "<xs:attribute name='e' type='xs:ENTITY'/><xs:attribute name='n'><xs:simpleType>"
                   "<xs:restriction base='xs:NOTATION'><xs:enumeration value='jpeg'/></xs:restriction>"
                   "</xs:simpleType></xs:attribute>"));
  std::string const type = "<!DOCTYPE r [<!NOTATION jpeg SYSTEM 's'><!ENTITY pic SYSTEM 'p' NDATA jpeg>"
                           "<!ENTITY text 'x'>]>";
  EXPECT_EQ(schema.wrong(type + "<!--c--><?p?><r e='pic' n='jpeg'/>"), "");
  EXPECT_EQ(schema.wrong(type + "<r e='text'/>"),
    "1: attribute 'e' of element 'r': \"text\" is not of the type xs:ENTITY: the "
    "document type declares no unparsed entity of that name\n");
  EXPECT_EQ(schema.wrong(type + "<r e='missing'/>"),
    "1: attribute 'e' of element 'r': \"missing\" is not of the type "
    "xs:ENTITY: the document type declares no unparsed entity of that name\n");
  EXPECT_EQ(schema.wrong("<r e='pic'/>"), "1: attribute 'e' of element 'r': \"pic\" is not of the type xs:ENTITY: the "
                                          "document type declares no unparsed entity of that name\n");
  EXPECT_EQ(schema.wrong("<r n='gif'/>"),
    "1: attribute 'n' of element 'r': \"gif\" is not of the type xs:NOTATION: the schema declares no such notation\n");
}

TEST(axsAssessment, a_long_value_is_shown_by_its_beginning)
{
  Schema const schema("<xs:element name='r' type='xs:int'/>");
  std::string value;
  for (int i = 0; i < 100; ++i)
    value += "\xC3\xA4";
  std::string const wrong = schema.wrong("<r>" + value + "</r>");
  EXPECT_NE(wrong.find("\xC3\xA4...\""), std::string::npos) << wrong;
  EXPECT_LT(wrong.size(), value.size());
}

// cvc-elt.4: whatever is not declared is assessed by the type that the document names.
TEST(axsAssessment, an_undeclared_element_has_the_type_that_the_document_names)
{
  Schema const schema(types + with_type("r", "<xs:sequence><xs:any/></xs:sequence>"));
  EXPECT_EQ(schema.wrong("<none/>"), "1: no declaration found for element 'none'\n");
  EXPECT_EQ(schema.wrong("<none" + xsi + " xsi:type='base'><a/></none>"), "");
  EXPECT_EQ(schema.wrong("<none" + xsi + " xsi:type='less'><a/></none>"),
    "1: element 'a' may not stand here in 'none', which must be empty\n");
  EXPECT_EQ(schema.wrong("<r><none/></r>"), "1: no declaration found for element 'none'\n");
  EXPECT_EQ(schema.wrong("<r" + xsi + "><none xsi:type='base'/></r>"), "");
  EXPECT_EQ(schema.wrong("<none" + xsi + " xsi:type='abstract'/>"),
    "1: element 'none': its type 'abstract' is abstract; xsi:type must name one that is derived from it\n");
}

// More items than are looked at one by one, with substitution groups that lie in each other, and groups.
TEST(axsAssessment, a_member_of_a_substitution_group_is_found_in_a_long_content)
{
  std::string const head = "<xs:element name='h'/><xs:element name='h1' substitutionGroup='h'/>"
                           "<xs:element name='h2' substitutionGroup='h'/><xs:element name='i' substitutionGroup='h'/>"
                           "<xs:element name='i1' substitutionGroup='i'/><xs:element name='i2' substitutionGroup='i'/>"
                           "<xs:element name='o'/><xs:element name='o1' substitutionGroup='o'/>";
  auto const separator = [](int number) { return "<xs:element name='s" + std::to_string(number) + "'/>"; };
  auto const maybe = [](std::string const& name) { return "<xs:element ref='" + name + "' minOccurs='0'/>"; };
  auto const group = [](std::string const& content)
  { return "<xs:choice minOccurs='0' maxOccurs='2'>" + content + "</xs:choice>"; };
  Schema const schema(
    head + with_type("r", sequence(maybe("h") + separator(1) + maybe("i") + separator(2) + maybe("h") + separator(3) +
                                   group(maybe("o") + "<xs:element ref='i'/>") + separator(4) +
                                   group("<xs:element ref='h'/>" + separator(9)) + separator(5) +
                                   group("<xs:element ref='o'/>" + separator(8)) + separator(6))));
  EXPECT_EQ(schema.fault(), "");
  EXPECT_EQ(schema.wrong("<r><s1/><s2/><s3/><s4/><s5/><s6/></r>"), "");
  EXPECT_EQ(schema.wrong("<r><i2/><s1/><i1/><s2/><h2/><s3/><o1/><i/><s4/><h1/><s9/><s5/><s8/><o/><s6/></r>"), "");
  auto const expected = [](std::string const& wrong, std::string const& names)
  { return "1: element '" + wrong + "' may not stand here in 'r'; expected is " + names + "\n"; };
  EXPECT_EQ(schema.wrong("<r><s1/><h1/></r>"), expected("h1", "'i' or 's2'"));
  EXPECT_EQ(schema.wrong("<r><o1/></r>"), expected("o1", "'h' or 's1'"));
  EXPECT_NE(schema.wrong("<r><s1/><s2/><s3/><h1/></r>"), "");
  EXPECT_NE(schema.wrong("<r><s1/><s2/><s3/><s4/><o/></r>"), "");
  EXPECT_NE(schema.wrong("<r><s1/><s2/><s3/><s4/><s5/><i1/></r>"), "");
}

TEST(axsAssessment, whether_an_undeclared_element_is_nil_is_a_boolean_at_least)
{
  Schema const schema(types);
  EXPECT_EQ(schema.wrong("<u xmlns='u'" + xsi + " xsi:nil='true'>x</u>"), "");
  EXPECT_EQ(schema.wrong("<u xmlns='u'" + xsi + " xsi:nil='x'/>"),
    "1: attribute 'xsi:nil' of element 'u': \"x\" is not of the type xs:boolean, which is true, false, 1 or 0\n");
}

TEST(axsAssessment, a_mixed_element_may_have_no_elements)
{
  Schema const schema("<xs:element name='m'><xs:complexType mixed='true'/></xs:element>");
  EXPECT_EQ(schema.wrong("<m>text</m>"), "");
  EXPECT_EQ(schema.wrong("<m><a/></m>"), "1: element 'a' may not stand here in 'm', which has no elements\n");
}

TEST(axsAssessment, of_what_is_expected_twelve_names_are_told_at_most)
{
  auto const wrong_of = [](int count)
  {
    std::string choice;
    for (int i = 0; i < count; ++i)
      choice += "<xs:element name='e" + std::to_string(i) + "'/>";
    Schema const schema(with_type("r", "<xs:choice>" + choice + "</xs:choice>"));
    return schema.wrong("<r/>");
  };
  std::string const some = "1: element 'r' ends too early; expected is 'e0', 'e1', 'e2', 'e3', 'e4', 'e5', 'e6', 'e7', "
                           "'e8', 'e9', 'e10'";
  EXPECT_EQ(wrong_of(12), some + " or 'e11'\n");
  EXPECT_EQ(wrong_of(13), some + " or others\n");
  EXPECT_EQ(wrong_of(100), some + " or others\n");
}

TEST(axsAssessment, what_is_expected_twice_is_told_once)
{
  Schema const schema(with_type("r", "<xs:choice><xs:any namespace='u' processContents='skip'/>"
                                     "<xs:sequence><xs:any namespace='v' processContents='skip'/></xs:sequence>"
                                     "<xs:element name='a'/></xs:choice>"));
  EXPECT_EQ(schema.wrong("<r/>"), "1: element 'r' ends too early; expected is an element of the namespace 'u', an "
                                  "element of the namespace 'v' or 'a'\n");
  Schema const bounded(with_type("r", "<xs:sequence><xs:element name='a' minOccurs='0' maxOccurs='3'/>"
                                      "<xs:element name='b'/></xs:sequence>"));
  EXPECT_EQ(bounded.wrong("<r><a/></r>"), "1: element 'r' ends too early; expected is 'a' or 'b'\n");
}

TEST(axsAssessment, each_reference_without_an_id_is_told_once)
{
  Schema const schema(with_type("r", sequence("<xs:element name='i' type='xs:ID' minOccurs='0' maxOccurs='9'/>"
                                              "<xs:element name='f' type='xs:IDREFS' minOccurs='0' maxOccurs='9'/>")));
  EXPECT_EQ(schema.wrong("<r><i>a</i><i>b</i><f>a b a</f></r>"), "");
  EXPECT_EQ(
    schema.wrong("<r><i>a</i>\n<i>a</i><f>a</f></r>"), "2: element 'i': ID value 'a' is not unique; first at line 1\n");
  EXPECT_EQ(schema.wrong("<r><f>x y x</f>\n<f>x</f></r>"),
    "1: there is no ID 'x', to which an IDREF refers\n1: there is no ID 'y', to which an IDREF refers\n");
  Schema const lists("<xs:simpleType name='ids'><xs:list itemType='xs:ID'/></xs:simpleType>" +
                     with_type("r", sequence("<xs:element name='i' type='ids' maxOccurs='9'/>")));
  EXPECT_EQ(
    lists.wrong("<r><i>a b</i><i>b a</i></r>"), "1: element 'i': ID value 'b' is not unique; first at line 1\n");
}

TEST(axsAssessment, attributes_that_are_declared_are_looked_at_wherever_they_stand)
{
  Schema const schema("<xs:attribute name='g' type='xs:int' fixed='1'/><xs:attribute name='i' type='xs:int'/>");
  EXPECT_EQ(schema.wrong("<u xmlns='u' g='01' i='2' other='x'/>"), "");
  EXPECT_EQ(
    schema.wrong("<u xmlns='u' g='2'/>"), "1: attribute 'g' of element 'u': \"2\" is not allowed: it must be \"1\"\n");
  EXPECT_EQ(schema.wrong("<u xmlns='u' i='x'/>"), "1: attribute 'i' of element 'u': \"x\" is not of the type xs:int\n");
}

TEST(axsAssessment, an_id_by_a_wildcard_does_not_stand_beside_a_declared_one)
{
  Schema const schema("<xs:attribute name='g' type='xs:ID'/>" +
                      with_type("r", "<xs:attribute name='i' type='xs:ID'/><xs:attribute name='n' type='xs:int'/>"
                                     "<xs:anyAttribute/>"));
  EXPECT_EQ(schema.wrong("<r i='a' n='1'/>"), "");
  EXPECT_EQ(schema.wrong("<r g='a'/>"), "1: attribute 'g' of element 'r' is an ID beside another one\n");
}

TEST(axsAssessment, a_default_that_refers_to_notations_or_lists_counts_as_a_value)
{
  Schema const schema(with_type("r", "<xs:attribute name='f' type='xs:IDREFS' default='x y'/>"
                                     "<xs:attribute name='i' type='xs:ID'/>"));
  EXPECT_EQ(schema.wrong("<r i='x'/>"), "1: there is no ID 'y', to which an IDREF refers\n");
}

TEST(axsValidation, without_schemas_a_document_is_only_read)
{
  axsValidation const reading{axmLoadOptions(axmValidateNone)};
  EXPECT_FALSE(reading.has_schemas());
  std::string const document = "<!DOCTYPE r [<!ELEMENT r ANY>]><r a='1'>text<!--c--><?p q?></r>";
  axsValidation::Result const good = reading.check(bytes(document));
  EXPECT_TRUE(good.errors.empty());
  EXPECT_TRUE(good.is_whole);
  EXPECT_FALSE(good.has_assessed);
  axsValidation::Result const bad = reading.check(bytes("<r>\n</s>"));
  ASSERT_EQ(bad.errors.size(), 1u);
  EXPECT_EQ(bad.errors.front().line_number(), 2);
}

TEST(axsValidation, options_that_name_no_schema_validate_nothing)
{
  axsValidation const reading{axmLoadOptions(axmValidateWithSchemas)};
  EXPECT_FALSE(reading.has_schemas());
  EXPECT_TRUE(reading.check(bytes("<r/>")).errors.empty());
}

TEST(axsValidation, progress_is_told_in_bytes_up_to_the_size_of_the_file)
{
  std::string document = "<r>";
  for (int i = 0; i < 20000; ++i)
    document += "<a/>";
  TestFile const file("axsValidation_progress.xml", document + "</r>");
  axsValidation const reading{axmLoadOptions(axmValidateNone)};
  std::uint64_t last = 0;
  int calls = 0;
  auto const progress = [&](std::uint64_t count)
  {
    EXPECT_GE(count, last);
    last = count;
    ++calls;
  };
  EXPECT_TRUE(reading.check(file.path(), 1, progress).errors.empty());
  EXPECT_GT(calls, 1);
  EXPECT_GT(last, 0u);
  EXPECT_LE(last, document.size() + 4);
}

TEST(axsValidation, a_file_that_is_not_there_is_an_error_with_its_name)
{
  axsValidation const reading{axmLoadOptions(axmValidateNone)};
  axsValidation::Result const result = reading.check(apPath("no/such/file.xml"));
  ASSERT_EQ(result.errors.size(), 1u);
  EXPECT_EQ(narrow(result.errors.front().url()), "no/such/file.xml");
}

TEST(axsValidation, a_schema_is_checked_by_itself_for_whatever_namespace)
{
  std::string const begin = "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' targetNamespace='urn:t'>\n";
  TestFile const good("axsValidation_good.xsd", begin + "<xs:element name='r'/></xs:schema>");
  EXPECT_TRUE(axsValidation::check_schema(good.path()).empty());

  TestFile const bad("axsValidation_bad.xsd", begin + "<xs:element name='r' type='xs:none'/>\n"
                                                      "<xs:element name='s' type='xs:none'/></xs:schema>");
  std::vector<axmParseError> const errors = axsValidation::check_schema(bad.path());
  ASSERT_EQ(errors.size(), 2u);
  EXPECT_EQ(errors[0].line_number(), 2);
  EXPECT_EQ(errors[1].line_number(), 3);
  EXPECT_EQ(narrow(errors[0].url()), "axsValidation_bad.xsd");
  EXPECT_EQ(axsValidation::check_schema(bad.path(), 1).size(), 1u);

  // With what imports of a namespace take.
  TestFile const importing("axsValidation_import.xsd",
    "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' xmlns:t='urn:t'>\n"
    "<xs:import namespace='urn:t' schemaLocation='http://localhost:1/t.xsd'/>"
    "<xs:complexType name='c'><xs:sequence><xs:element ref='t:r'/></xs:sequence></xs:complexType></xs:schema>");
  EXPECT_EQ(axsValidation::check_schema(importing.path()).size(), 1u);
  axmLoadOptions options(axmValidateNone);
  options.add_external_schema(APSTRING("urn:t"), good.path());
  EXPECT_TRUE(axsValidation::check_schema(importing.path(), options).empty());
  EXPECT_TRUE(axsValidation::check_schema(good.path(), options).empty());
  axmLoadOptions wrong(axmValidateNone);
  wrong.add_external_schema(APSTRING("urn:t"), bad.path());
  EXPECT_EQ(axsValidation::check_schema(importing.path(), wrong).size(), 2u);

  std::vector<axmParseError> const missing = axsValidation::check_schema(apPath("no/such/schema.xsd"));
  ASSERT_EQ(missing.size(), 1u);
  EXPECT_EQ(narrow(missing.front().url()), "no/such/schema.xsd");
}
