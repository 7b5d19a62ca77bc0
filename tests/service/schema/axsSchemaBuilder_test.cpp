#include "SchemaFiles.h"

#include <axsBuiltInTypes.h>
#include <axsComplexType.h>
#include <axsElementDecl.h>
#include <axsNamespaceConstraint.h>
#include <axsSimpleType.h>

namespace
{
std::string complex(std::string const& name, std::string const& content)
{
  return "<xs:complexType name='" + name + "'>" + content + "</xs:complexType>\n";
}

std::string derived(
  std::string const& name, std::string const& how, std::string const& base, std::string const& content)
{
  return complex(name,
    "<xs:complexContent><xs:" + how + " base='" + base + "'>" + content + "</xs:" + how + "></xs:complexContent>");
}

std::string sequence(std::string const& particles)
{
  return "<xs:sequence>" + particles + "</xs:sequence>";
}

std::string element(std::string const& name, std::string const& more = {})
{
  return "<xs:element name='" + name + "' " + more + "/>";
}

// A base type in line 2 and one derived from it in line 3.
std::string restriction(std::string const& base, std::string const& content)
{
  return complex("b", base) + derived("d", "restriction", "b", content);
}

std::string extension(std::string const& base, std::string const& content)
{
  return complex("b", base) + derived("d", "extension", "b", content);
}
}

TEST(axsSchemaBuilder, names_are_resolved_and_unique)
{
  expect_rules({
    {"src-resolve", "<xs:element name='a' type='t'/><xs:complexType name='t'/>", "<xs:element name='a' type='t'/>",
      "2: there is no declaration of 't' in no namespace"},
    {"src-resolve", "<xs:element name='a' type='xs:int'/>", "<xs:element name='a' type='xs:itn'/>",
      "2: there is no declaration of 'itn' in the namespace 'http://www.w3.org/2001/XMLSchema'"},
    {"src-qname", "<xs:element name='a' type='xs:int'/>", "<xs:element name='a' type='p:int'/>",
      "2: the prefix 'p' is not declared"},
    {"src-resolve.4", "<xs:import namespace='u'/>", "<xs:element name='a' type='p:t' xmlns:p='u'/>",
      "2: there is no declaration of 't' in the namespace 'u': the schema does not import that namespace"},
    {"sch-props-correct.2", "<xs:element name='a'/><xs:attribute name='a'/><xs:complexType name='a'/>",
      "<xs:simpleType name='a'><xs:list itemType='xs:int'/></xs:simpleType>\n<xs:complexType name='a'/>",
      "3: 'a' is declared more than once; first at line 2"},
    {"a-props-correct", "<xs:attribute name='a' type='xs:int'/>",
      "<xs:complexType name='t'/><xs:attribute name='a' type='t'/>", "2: 't' in no namespace is not a simple type"},
    {"st-props-correct", "<xs:attribute name='a' type='xs:anySimpleType'/>",
      "<xs:attribute name='a' type='xs:anyType'/>",
      "2: 'anyType' in the namespace 'http://www.w3.org/2001/XMLSchema' is not a simple type"},
    {"enumeration-required-notation",
      "<xs:notation name='n' public='p'/><xs:simpleType name='N'><xs:restriction base='xs:NOTATION'><xs:enumeration "
      "value='n'/></xs:restriction></xs:simpleType><xs:attribute name='a' type='N'/><xs:element name='e' type='N'/>",
      "<xs:attribute name='a' type='xs:NOTATION'/>",
      "2: attribute 'a' cannot have the type xs:NOTATION itself: a type that is derived from it with an enumeration of "
      "notations can"},
    {"enumeration-required-notation",
      "<xs:simpleType name='N'><xs:list itemType='xs:NOTATION'/></xs:simpleType><xs:element name='e' type='N'/>",
      "<xs:simpleType name='N'><xs:restriction base='xs:NOTATION'><xs:length value='1'/></xs:restriction>"
      "</xs:simpleType><xs:element name='e'><xs:complexType><xs:simpleContent><xs:extension base='N'/>"
      "</xs:simpleContent></xs:complexType></xs:element>",
      "2: element 'e' cannot have the type xs:NOTATION itself: a type that is derived from it with an enumeration of "
      "notations can"},
    {"no-xmlns", "<xs:attribute name='xmlnsx'/>", "<xs:attribute name='xmlns'/>",
      "2: no attribute can be named 'xmlns'"},
  });
  EXPECT_EQ(error_of_schema("<xs:attribute name='a'/>", // no-xsi
              "targetNamespace='http://www.w3.org/2001/XMLSchema-instance'"),
    "s.xsd:2: no attribute can be declared in the namespace 'http://www.w3.org/2001/XMLSchema-instance'");
}

TEST(axsSchemaBuilder, nothing_is_defined_by_itself)
{
  expect_rules({
    {"ct-props-correct.3", "<xs:annotation/>",
      "<xs:complexType name='A'><xs:complexContent><xs:extension base='A'/></xs:complexContent></xs:complexType>",
      "2: 'A' is defined by itself"},
    {"st-props-correct.2", "<xs:annotation/>",
      "<xs:simpleType name='A'><xs:restriction base='B'/></xs:simpleType>\n"
      "<xs:simpleType name='B'><xs:restriction base='A'/></xs:simpleType>",
      "3: 'A' is defined by itself"},
    {"src-simple-type.4", "<xs:annotation/>",
      "<xs:simpleType name='A'><xs:union memberTypes='xs:int A'/></xs:simpleType>", "2: 'A' is defined by itself"},
    {"mg-props-correct.2", "<xs:annotation/>",
      "<xs:group name='A'><xs:sequence><xs:group ref='A'/></xs:sequence></xs:group>", "2: 'A' is defined by itself"},
    {"src-attribute_group.3", "<xs:annotation/>",
      "<xs:attributeGroup name='A'><xs:attributeGroup ref='A'/></xs:attributeGroup>", "2: 'A' is defined by itself"},
    {"e-props-correct.6", "<xs:element name='A' substitutionGroup='B'/><xs:element name='B'/>",
      "<xs:element name='A' substitutionGroup='B'/><xs:element name='B' substitutionGroup='A'/>",
      "2: 'A' is in its own substitution group"},
  });
  // An element within itself is no circle.
  EXPECT_EQ(error_of_schema("<xs:element name='A'><xs:complexType><xs:sequence><xs:element ref='A' minOccurs='0'/>"
                            "</xs:sequence></xs:complexType></xs:element>"),
    "");
}

TEST(axsSchemaBuilder, attributes_and_their_values_are_right)
{
  expect_rules({
    {"a-props-correct.2", "<xs:attribute name='a' type='xs:int' default=' 1 '/>",
      "<xs:attribute name='a' type='xs:boolean' default='x'/>",
      "2: the default is wrong: \"x\" is not of the type xs:boolean, which is true, false, 1 or 0"},
    {"a-props-correct.3", "<xs:attribute name='a' type='xs:ID'/>", "<xs:attribute name='a' type='xs:ID' fixed='i'/>",
      "2: the fixed value of 'attribute' is not allowed for an ID"},
    {"au-props-correct.2",
      "<xs:attribute name='a' type='xs:decimal' fixed='1'/><xs:attributeGroup name='g'><xs:attribute ref='a' "
      "fixed='1.0'/></xs:attributeGroup>",
      "<xs:attribute name='a' fixed='1'/><xs:attributeGroup name='g'><xs:attribute ref='a' fixed='2'/>"
      "</xs:attributeGroup>",
      "2: attribute 'a' has the fixed value '1', which a reference cannot change"},
    {"ag-props-correct.2",
      "<xs:attributeGroup name='g'><xs:attribute name='a'/></xs:attributeGroup><xs:attributeGroup name='h'>"
      "<xs:attributeGroup ref='g'/><xs:attributeGroup ref='g'/></xs:attributeGroup>",
      "<xs:attributeGroup name='g'><xs:attribute name='a'/></xs:attributeGroup>\n<xs:attributeGroup name='h'>\n"
      "<xs:attributeGroup ref='g'/><xs:attribute name='a'/></xs:attributeGroup>",
      "4: attribute 'a' is declared twice; first at line 2"},
    {"ct-props-correct.4", "<xs:complexType name='t'><xs:attribute name='a'/><xs:attribute name='b'/></xs:complexType>",
      "<xs:complexType name='t'><xs:attribute name='a'/>\n<xs:attribute name='a' type='xs:int'/></xs:complexType>",
      "3: attribute 'a' is declared twice; first at line 2"},
    {"ct-props-correct.5", "<xs:complexType name='t'><xs:attribute name='a' type='xs:ID'/></xs:complexType>",
      "<xs:complexType name='t'><xs:attribute name='a' type='xs:ID'/><xs:attribute name='b' type='xs:ID'/>"
      "</xs:complexType>",
      "2: the attributes 'a' and 'b' are both of the type xs:ID; a type may have one such attribute"},
  });
  EXPECT_EQ(
    error_of_schema(extension("<xs:attribute name='a' type='xs:ID'/>", "<xs:attribute name='b' type='xs:ID'/>")),
    "s.xsd:3: the attributes 'b' and 'a' are both of the type xs:ID; a type may have one such attribute");
  // ag-props-correct.3
  std::string const group = "<xs:attributeGroup name='g'><xs:attribute name='a' type='xs:ID'/></xs:attributeGroup>";
  EXPECT_EQ(
    error_of_schema(group + "<xs:attributeGroup name='h'><xs:attributeGroup ref='g'/><xs:attributeGroup ref='g'/>"
                            "<xs:attribute name='b' type='xs:IDREF'/></xs:attributeGroup>"),
    "");
  EXPECT_EQ(error_of_schema(group + "\n<xs:attributeGroup name='h'><xs:attribute name='b' type='xs:ID'/>"
                                    "<xs:attributeGroup ref='g'/></xs:attributeGroup>"
                                    "<xs:attributeGroup name='i'><xs:attributeGroup ref='h'/></xs:attributeGroup>"),
    "s.xsd:3: the attributes 'a' and 'b' are both of the type xs:ID; a group may have one such attribute");
}

TEST(axsSchemaBuilder, elements_and_their_values_are_right)
{
  expect_rules({
    {"e-props-correct.2", "<xs:element name='r' type='xs:boolean' default='1'/>",
      "<xs:element name='r' type='xs:boolean' default='x'/>",
      "2: the default is wrong: \"x\" is not of the type xs:boolean, which is true, false, 1 or 0"},
    {"cos-valid-default.2.1", "<xs:element name='r' default='x'><xs:complexType mixed='true'/></xs:element>",
      "<xs:element name='r' default='x'><xs:complexType><xs:sequence/></xs:complexType></xs:element>",
      "2: the element 'r' has a default or fixed value, but its type allows no text only"},
    {"cos-valid-default.2.2.2",
      "<xs:element name='r' default='x'><xs:complexType mixed='true'><xs:sequence><xs:element name='a' minOccurs='0'/>"
      "</xs:sequence></xs:complexType></xs:element>",
      "<xs:element name='r' default='x'><xs:complexType mixed='true'><xs:sequence><xs:element name='a'/></xs:sequence>"
      "</xs:complexType></xs:element>",
      "2: the element 'r' has a default or fixed value, but its type allows no text only"},
    {"e-props-correct.4",
      "<xs:element name='h' type='xs:integer'/><xs:element name='m' substitutionGroup='h' "
      "type='xs:int'/><xs:element name='n' substitutionGroup='h'/>",
      "<xs:element name='h' type='xs:int'/>\n<xs:element name='m' substitutionGroup='h' type='xs:string'/>",
      "3: the type of 'm' is not derived from that of 'h', the head of its substitution group, in a way that this "
      "allows"},
    {"e-props-correct.4",
      "<xs:element name='h' type='xs:integer' final='extension'/><xs:element name='m' "
      "substitutionGroup='h' type='xs:int'/>",
      "<xs:element name='h' type='xs:integer' final='restriction'/>\n<xs:element name='m' substitutionGroup='h' "
      "type='xs:int'/>",
      "3: the type of 'm' is not derived from that of 'h', the head of its substitution group, in a way that this "
      "allows"},
    {"e-props-correct.5", "<xs:element name='r' type='xs:ID'/>", "<xs:element name='r' type='xs:ID' default='i'/>",
      "2: the default of 'element' is not allowed for an ID"},
  });
}

TEST(axsSchemaBuilder, contents_are_made_as_their_bases_allow)
{
  std::string const one = complex("s", "<xs:simpleContent><xs:extension base='xs:int'/></xs:simpleContent>");
  EXPECT_EQ(error_of_schema(derived("d", "extension", "xs:int", "")), // src-ct.1
    "s.xsd:2: 'int' in the namespace 'http://www.w3.org/2001/XMLSchema' is a simple type; complexContent is made from "
    "a "
    "complex one");
  EXPECT_EQ(error_of_schema(complex("b", "<xs:sequence/>") + // src-ct.2
                            complex("d", "<xs:simpleContent><xs:extension base='b'/></xs:simpleContent>")),
    "s.xsd:3: simpleContent cannot be made from a type whose content is not simple");
  EXPECT_EQ(
    error_of_schema(complex("d", "<xs:simpleContent><xs:restriction base='xs:int'/></xs:simpleContent>")), // src-ct.2
    "s.xsd:2: a restriction in simpleContent is made from a complex type, not from a simple one");
  EXPECT_EQ(error_of_schema(one + complex("d", "<xs:simpleContent><xs:restriction base='s'><xs:maxInclusive value='5'/>"
                                               "</xs:restriction></xs:simpleContent>")),
    "");
  std::string const mixed = "<xs:complexType name='m' mixed='true'/>\n";
  EXPECT_EQ(error_of_schema(mixed + complex("d", "<xs:simpleContent><xs:restriction base='m'/></xs:simpleContent>")),
    "s.xsd:3: 'restriction' of a mixed content to a simple one lacks its 'simpleType'");
  EXPECT_EQ(error_of_schema(mixed + complex("d", "<xs:simpleContent><xs:restriction base='m'><xs:simpleType>"
                                                 "<xs:restriction base='xs:int'/></xs:simpleType></xs:restriction>"
                                                 "</xs:simpleContent>")),
    "");
  // cos-ct-extends.1.4
  EXPECT_EQ(error_of_schema(extension(sequence(element("a")), sequence(element("b")))), "");
  EXPECT_EQ(error_of_schema(mixed + derived("d", "extension", "m", sequence(element("b")))),
    "s.xsd:3: the content cannot extend that of 'm': both must be mixed, or both consist of elements only");
  EXPECT_EQ(error_of_schema(one + derived("d", "extension", "s", sequence(element("b")))),
    "s.xsd:3: the content cannot extend that of 's': both must be mixed, or both consist of elements only");
  EXPECT_EQ(error_of_schema(one + derived("d", "extension", "s", "<xs:attribute name='a'/>")), "");
}

TEST(axsSchemaBuilder, final_types_are_not_derived_from)
{
  std::string const no_extension = "<xs:complexType name='b' final='extension'/>\n";
  std::string const no_restriction = "<xs:complexType name='b' final='restriction'/>\n";
  EXPECT_EQ(error_of_schema(no_extension + derived("d", "extension", "b", "")), // cos-ct-extends.1.1
    "s.xsd:3: the type 'b' may not be extended: it is final");
  EXPECT_EQ(error_of_schema(no_extension + derived("d", "restriction", "b", "")), "");
  EXPECT_EQ(error_of_schema(no_restriction + derived("d", "restriction", "b", "")), // derivation-ok-restriction.1
    "s.xsd:3: the type 'b' may not be restricted: it is final");
  EXPECT_EQ(error_of_schema(no_restriction + derived("d", "extension", "b", "")), "");
  EXPECT_EQ(error_of_schema(complex("b", "") + derived("d", "extension", "b", ""), "finalDefault='#all'"),
    "s.xsd:3: the type 'b' may not be extended: it is final");
  EXPECT_EQ(error_of_schema("<xs:simpleType name='s' final='#all'><xs:restriction base='xs:int'/></xs:simpleType>\n" +
                            complex("d", "<xs:simpleContent><xs:extension base='s'/></xs:simpleContent>")),
    "s.xsd:3: the type 's' may not be extended: it is final"); // cos-ct-extends.2.2
}

TEST(axsSchemaBuilder, restrictions_keep_to_the_attributes_of_their_bases)
{
  std::string const a = "<xs:attribute name='a' type='xs:integer'/>";
  EXPECT_EQ(error_of_schema(restriction(a, "<xs:attribute name='a' type='xs:int' use='required'/>")), "");
  EXPECT_EQ(error_of_schema(restriction(a, "<xs:attribute name='a' use='prohibited'/>")), "");
  EXPECT_EQ(error_of_schema(restriction(a, "")), "");
  EXPECT_EQ(error_of_schema(restriction(a, "<xs:attribute name='a' type='xs:string'/>")), // 2.1.2
    "s.xsd:3: attribute 'a' has a type that is not derived from the one that it has in the base type");
  std::string const required = "<xs:attribute name='a' use='required'/>";
  EXPECT_EQ(error_of_schema(restriction(required, "<xs:attribute name='a'/>")), // 2.1.1
    "s.xsd:3: attribute 'a' is required by the base type, so it must be here, too");
  EXPECT_EQ(error_of_schema(restriction(required, "<xs:attribute name='a' use='prohibited'/>")), // 3
    "s.xsd:3: attribute 'a' is required by the base type and may not be left out");
  std::string const fixed = "<xs:attribute name='a' type='xs:decimal' fixed='1'/>";
  EXPECT_EQ(error_of_schema(restriction(fixed, "<xs:attribute name='a' type='xs:decimal' fixed='1.0'/>")), "");
  EXPECT_EQ(error_of_schema(restriction(fixed, "<xs:attribute name='a' type='xs:decimal'/>")), // 2.1.3
    "s.xsd:3: attribute 'a' has the fixed value '1' in the base type, so it must be here, too");
  EXPECT_EQ(error_of_schema(restriction(a, "<xs:attribute name='b'/>")), // 2.2
    "s.xsd:3: attribute 'b' is not one of the base type, so a restriction may not have it");
  EXPECT_EQ(error_of_schema(restriction("<xs:anyAttribute namespace='##local'/>", "<xs:attribute name='b'/>")), "");
  EXPECT_EQ(error_of_schema(restriction(a, "<xs:anyAttribute/>")), // 4.1
    "s.xsd:3: the base type has no attribute wildcard, so a restriction may not have one");
  EXPECT_EQ(error_of_schema(restriction("<xs:anyAttribute namespace='u'/>", "<xs:anyAttribute/>")), // 4.2
    "s.xsd:3: the attribute wildcard allows more than that of the base type");
  EXPECT_EQ(error_of_schema(restriction("<xs:anyAttribute/>", "<xs:anyAttribute processContents='lax'/>")), // 4.3
    "s.xsd:3: the attribute wildcard is processed less strictly than that of the base type");
  EXPECT_EQ(error_of_schema(extension(a, "<xs:attribute name='a'/>")), // ct-props-correct.4
    "s.xsd:3: attribute 'a' is declared twice: the base type has it, too");
}

TEST(axsSchemaBuilder, attribute_wildcards_are_combined_only_if_that_can_be_expressed)
{
  std::string const group = "<xs:attributeGroup name='g'><xs:anyAttribute namespace='##other'/></xs:attributeGroup>";
  std::string const target = "targetNamespace='u' xmlns='u'";
  EXPECT_EQ(
    error_of_schema(group + complex("t", "<xs:attributeGroup ref='g'/><xs:anyAttribute namespace='v u'/>"), target),
    "");
  // src-ct, of an extension: what is in `u` and what is in no namespace nor in `u`.
  EXPECT_EQ(error_of_schema(
              extension("<xs:anyAttribute namespace='##other'/>", "<xs:anyAttribute namespace='##local'/>"), target),
    "s.xsd:3: what this attribute wildcard or that of the base type allows cannot be expressed (intensional union)");
  SchemaFiles files;
  files.schema("v.xsd", group, "targetNamespace='v'");
  files.schema("u.xsd",
    "<xs:import namespace='v' schemaLocation='v.xsd'/>" +
      complex("t", "<xs:attributeGroup ref='v:g'/><xs:anyAttribute namespace='##other'/>"),
    "targetNamespace='u' xmlns:v='v'");
  files.compile({"u.xsd"});
  EXPECT_EQ(files.first_error(),
    "u.xsd:2: what two attribute wildcards both allow cannot be expressed (intensional intersection)");
}

TEST(axsSchemaBuilder, restrictions_keep_to_the_content_of_their_bases)
{
  std::string const base = sequence(element("a") + element("b", "minOccurs='0'"));
  EXPECT_EQ(error_of_schema(restriction(base, sequence(element("a")))), "");
  EXPECT_EQ(error_of_schema(restriction(base, sequence(element("b")))),
    "s.xsd:3: the content is no restriction of that of 'b': element 'b' does not fit"); // rcase-Recurse
  EXPECT_EQ(error_of_schema(restriction(base, "")),                                     // 5.2
    "s.xsd:3: the content of 'b' may not be empty");
  EXPECT_EQ(error_of_schema(restriction("<xs:sequence/>", sequence(element("a")))),
    "s.xsd:3: the content is no restriction of that of 'b'"); // 5.3
  std::string const mixed = "<xs:complexType name='b' mixed='true'><xs:sequence><xs:element name='a'/></xs:sequence>"
                            "</xs:complexType>\n";
  EXPECT_EQ(error_of_schema(mixed + derived("d", "restriction", "b", sequence(element("a")))), "");
  EXPECT_EQ(error_of_schema(mixed + complex("d", "<xs:simpleContent><xs:restriction base='b'><xs:simpleType>"
                                                 "<xs:restriction base='xs:int'/></xs:simpleType></xs:restriction>"
                                                 "</xs:simpleContent>")),
    "s.xsd:3: the content of 'b' cannot be restricted to a simple one"); // 5.1.2
  EXPECT_EQ(error_of_schema(complex("b", base) +
                            "<xs:complexType name='d'><xs:complexContent mixed='true'><xs:restriction base='b'>" +
                            base + "</xs:restriction></xs:complexContent></xs:complexType>"),
    "s.xsd:3: the content is no restriction of that of 'b'"); // 5.4.1
}

TEST(axsSchemaBuilder, an_element_may_occur_as_often_as_the_choice_that_it_restricts)
{
  auto const of_choice = [](std::string const& occurrence, std::string const& own)
  {
    return error_of_schema(restriction(
      "<xs:choice " + occurrence + ">" + element("a") + element("b") + "</xs:choice>", sequence(element("a", own))));
  };
  EXPECT_EQ(of_choice("minOccurs='0' maxOccurs='unbounded'", "minOccurs='0' maxOccurs='unbounded'"), "");
  EXPECT_EQ(of_choice("maxOccurs='5'", "minOccurs='2' maxOccurs='5'"), "");
  EXPECT_NE(of_choice("maxOccurs='5'", "maxOccurs='6'"), "");
  EXPECT_NE(of_choice("", "maxOccurs='2'"), "");
}

TEST(axsSchemaBuilder, all_groups_are_the_whole_content)
{
  std::string const all = "<xs:group name='g'><xs:all><xs:element name='a'/></xs:all></xs:group>\n";
  EXPECT_EQ(error_of_schema(all + complex("t", "<xs:group ref='g'/>")), "");
  EXPECT_EQ(error_of_schema(all + complex("t", "<xs:group ref='g' minOccurs='0'/>")), "");
  EXPECT_EQ(error_of_schema(all + complex("t", "<xs:group ref='g' maxOccurs='2'/>")), // cos-all-limited.1
    "s.xsd:3: an 'all' group may occur only once");
  EXPECT_EQ(error_of_schema(all + complex("t", sequence("<xs:group ref='g'/>"))),
    "s.xsd:3: an 'all' group must be the whole content; it may not stand in another group");
  EXPECT_EQ(
    error_of_schema(all + complex("b", "<xs:group ref='g'/>") + derived("d", "extension", "b", sequence(element("c")))),
    "s.xsd:3: an 'all' group must be the whole content; it may not stand in another group");
}

// Part 1, appendix A; Part 2, appendix A
TEST(axsSchemaBuilder, the_schema_of_schemas_may_define_what_is_built_in)
{
  std::string const language = "targetNamespace='http://www.w3.org/2001/XMLSchema'";
  auto const type = [](std::string const& name)
  {
    return "<xs:simpleType name='" + name + "'><xs:restriction base='xs:anySimpleType'>" +
           "<xs:whiteSpace value='preserve'/></xs:restriction></xs:simpleType>";
  };
  SchemaFiles files;
  files.schema("s.xsd", type("string") + "<xs:element name='e' type='xs:string'/>", language);
  auto const schema = files.compile({"s.xsd"});
  ASSERT_NE(schema, nullptr) << files.first_error();
  EXPECT_EQ(schema->element("http://www.w3.org/2001/XMLSchema", "e")->type.simple, &axsBuiltInTypes::get("string"));
  EXPECT_NE(error_of_schema(type("text"), language), "");
  EXPECT_NE(error_of_schema(type("string")), "");
}

TEST(axsSchemaBuilder, contents_are_unambiguous_and_consistent)
{
  EXPECT_EQ(error_of_schema(complex("t", sequence(element("a", "minOccurs='0'") + element("a")))), // cos-nonambig
    "s.xsd:2: the content of the type 't' is ambiguous: an element in it may be meant by 'a' of line 2 or by 'a' of "
    "line 2 (unique particle attribution)");
  EXPECT_EQ(error_of_schema(complex("t", sequence("\n<xs:any minOccurs='0'/>\n<xs:group ref='g'/>")) + "\n" +
                            "<xs:group name='g'>\n" + sequence(element("a")) + "</xs:group>"),
    "s.xsd:2: the content of the type 't' is ambiguous: an element in it may be meant by a wildcard of line 3 or by "
    "'a' "
    "of line 7 (unique particle attribution)");
  EXPECT_EQ(error_of_schema(complex("t", sequence(element("a", "type='xs:int'") + element("b") + element("a")))),
    "s.xsd:2: the content of the type 't' has 'a' with two different types (element declarations consistent)");
  std::string const group =
    "<xs:group name='g'><xs:choice>" + element("a", "type='xs:int'") + element("b") + "%</xs:choice></xs:group>";
  auto const with = [&](std::string const& more)
  {
    std::string text = group;
    return text.replace(text.find('%'), 1, more);
  };
  EXPECT_EQ(error_of_schema(with("<xs:any processContents='skip'/>")), ""); // ambiguous, but no content yet
  EXPECT_EQ(error_of_schema(with(sequence(element("a", "type='xs:string'")))),
    "s.xsd:2: the group 'g' has 'a' with two different types (element declarations consistent)");
}

// cos-element-consistent, with those that may stand in the place of an element
TEST(axsSchemaBuilder, a_member_of_a_substitution_group_has_one_type_beside_its_head)
{
  std::string const members =
    element("h", "type='xs:decimal'") + element("m", "type='xs:int' substitutionGroup='h'") + element("n");
  auto const type = [&](std::string const& own) { return members + complex("t", sequence(own)); };
  std::string const head = "<xs:element ref='h'/>";
  EXPECT_EQ(error_of_schema(type(head + element("b") + element("m", "type='xs:int'"))), "");
  EXPECT_EQ(error_of_schema(type(head + element("b") + element("n", "type='xs:int'"))), "");
  std::string const wrong =
    "s.xsd:2: the content of the type 't' has 'm' with two different types (element declarations consistent)";
  EXPECT_EQ(error_of_schema(type(head + element("b") + element("m", "type='xs:byte'"))), wrong);
  EXPECT_EQ(error_of_schema(type(element("m", "type='xs:byte'") + element("b") + head)), wrong);
}

// rcase-NameAndTypeOK.5 and .6
TEST(axsSchemaBuilder, an_element_is_restricted_with_its_own_keys_and_what_it_blocks)
{
  std::string const key = "<xs:key name='%'><xs:selector xpath='a'/><xs:field xpath='@b'/></xs:key>";
  auto const with = [&](std::string const& name, std::string const& more)
  {
    std::string constraint = key;
    constraint.replace(constraint.find('%'), 1, name);
    return sequence("<xs:element name='e' " + more + ">" + (name.empty() ? "" : constraint) + "</xs:element>");
  };
  EXPECT_EQ(error_of_schema(restriction(with("k", ""), with("", ""))), "");
  EXPECT_NE(error_of_schema(restriction(with("", ""), with("k", ""))), "");
  EXPECT_NE(error_of_schema(restriction(with("k", ""), with("l", ""))), "");
  EXPECT_EQ(error_of_schema(restriction(with("", "block='extension'"), with("", "block='#all'"))), "");
  EXPECT_NE(error_of_schema(restriction(with("", "block='extension'"), with("", ""))), "");
}

TEST(axsSchemaBuilder, identity_constraints_refer_to_keys_with_as_many_fields)
{
  auto const keys = [](std::string const& reference, std::string const& more)
  {
    return "<xs:element name='r'>\n<xs:key name='k'><xs:selector xpath='a'/><xs:field xpath='@b'/></xs:key>\n"
           "<xs:keyref name='r' refer='" +
           reference + "'><xs:selector xpath='c'/><xs:field xpath='@d'/>" + more + "</xs:keyref></xs:element>";
  };
  EXPECT_EQ(error_of_schema(keys("k", "")), "");
  EXPECT_EQ(error_of_schema(keys("r", "")), "s.xsd:4: 'r' is no key, but a reference to one"); // c-props-correct.1
  EXPECT_EQ(error_of_schema(keys("k", "<xs:field xpath='@e'/>")),                              // c-props-correct.2
    "s.xsd:4: the key 'k' has 1 fields, the reference to it 2");
  EXPECT_EQ(error_of_schema(keys("x", "")), "s.xsd:4: there is no declaration of 'x' in no namespace");
  EXPECT_EQ(error_of_schema("<xs:element name='r'>\n<xs:key name='k'><xs:selector xpath='a'/><xs:field xpath='@b'/>"
                            "</xs:key>\n<xs:key name='k'><xs:selector xpath='a'/><xs:field xpath='@b'/></xs:key>"
                            "</xs:element>"),
    "s.xsd:4: 'k' is declared more than once; first at line 3");
}

TEST(axsSchemaBuilder, types_of_simple_values_are_held_to_their_rules)
{
  auto const type = [](std::string const& facets)
  {
    return error_of_schema(
      "<xs:simpleType name='t'><xs:restriction base='xs:int'>\n" + facets + "</xs:restriction></xs:simpleType>");
  };
  EXPECT_EQ(type("<xs:minInclusive value='1'/><xs:maxInclusive value='2'/>"), "");
  // Which rules there are, the tests of the types say; here it is that faults are told of at the place of their facet.
  EXPECT_EQ(type("<xs:maxInclusive value='x'/>").substr(0, 8), "s.xsd:3:");
  EXPECT_EQ(type("<xs:minInclusive value='2'/>\n<xs:maxInclusive value='1'/>").substr(0, 8), "s.xsd:3:");
  EXPECT_EQ(type("<xs:minInclusive value='2'/>\n<xs:length value='1'/>").substr(0, 8), "s.xsd:4:");
  EXPECT_NE(type("<xs:maxInclusive value='x'/>").find('x'), std::string::npos);
}

TEST(axsSchemaBuilder, the_components_are_what_the_document_says)
{
  SchemaFiles files;
  files.schema("s.xsd",
    "<xs:element name='r' type='d' nillable='true' block='extension'/>" +
      extension(sequence(element("a", "minOccurs='2' maxOccurs='unbounded'")),
        sequence(element("c", "form='unqualified'")) + "<xs:attribute name='x' type='xs:int' default='5'/>") +
      "<xs:notation name='n' public='p'/>",
    "targetNamespace='u' xmlns='u' elementFormDefault='qualified'");
  auto const schema = files.compile({"s.xsd"});
  ASSERT_NE(schema, nullptr) << files.first_error();
  EXPECT_EQ(schema->element("", "r"), nullptr);
  EXPECT_TRUE(schema->knows("u"));
  EXPECT_FALSE(schema->knows(""));
  EXPECT_TRUE(schema->has_notation("u", "n"));
  EXPECT_FALSE(schema->has_notation("u", "m"));
  axsElementDecl const* const r = schema->element("u", "r");
  ASSERT_NE(r, nullptr);
  EXPECT_TRUE(r->is_nillable);
  EXPECT_EQ(r->block, axsDerivationExtension);
  EXPECT_EQ(r->place.line, 2u);
  EXPECT_EQ(r->type, schema->type("u", "d"));
  axsComplexType const& type = *r->type.complex;
  EXPECT_EQ(type.derivation, axsDerivationExtension);
  EXPECT_EQ(type.base, schema->type("u", "b"));
  EXPECT_EQ(type.base.complex->base, schema->type("http://www.w3.org/2001/XMLSchema", "anyType"));
  ASSERT_EQ(type.attributes.size(), 1u);
  EXPECT_EQ(type.attributes[0].constraint.value, "5");
  EXPECT_EQ(type.attributes.find("", "x"), 0u);
  EXPECT_EQ(type.attributes.find("u", "x"), axsAttributeUses::none);
  ASSERT_TRUE(type.particle.has_value());
  ASSERT_EQ(type.particle->group->particles.size(), 2u);
  axsParticle const& a = type.particle->group->particles[0].group->particles[0];
  EXPECT_EQ(a.element->name.name_space, "u");
  EXPECT_EQ(a.min_occurs, 2u);
  EXPECT_EQ(a.max_occurs, axsParticle::unbounded);
  EXPECT_EQ(type.particle->group->particles[1].group->particles[0].element->name.name_space, "");
  EXPECT_NE(type.automaton, nullptr);
  EXPECT_EQ(schema->type("http://www.w3.org/2001/XMLSchema", "int").simple->name(), "int");
}

TEST(axsSchemaBuilder, a_particle_that_may_not_occur_is_none)
{
  SchemaFiles files;
  files.schema("s.xsd", complex("t", sequence(element("a", "minOccurs='0' maxOccurs='0'") + element("b"))) +
                          complex("e", "<xs:sequence minOccurs='0' maxOccurs='0'>" + element("a") + "</xs:sequence>"));
  auto const schema = files.compile({"s.xsd"});
  ASSERT_NE(schema, nullptr) << files.first_error();
  EXPECT_EQ(schema->type("", "t").complex->particle->group->particles.size(), 1u);
  EXPECT_EQ(schema->type("", "e").complex->content, axsComplexType::Content::empty);
}

TEST(axsSchemaBuilder, an_element_without_a_type_takes_that_of_its_head)
{
  SchemaFiles files;
  files.schema("s.xsd", "<xs:element name='c' substitutionGroup='b'/><xs:element name='b' substitutionGroup='a'/>"
                        "<xs:element name='a' type='xs:int'/><xs:element name='d'/>");
  auto const schema = files.compile({"s.xsd"});
  ASSERT_NE(schema, nullptr) << files.first_error();
  EXPECT_EQ(schema->element("", "c")->type, schema->type("http://www.w3.org/2001/XMLSchema", "int"));
  EXPECT_EQ(schema->element("", "c")->head, schema->element("", "b"));
  EXPECT_EQ(schema->element("", "d")->type, schema->type("http://www.w3.org/2001/XMLSchema", "anyType"));
}

// rcase-RecurseLax, rcase-RecurseAsIfGroup, with the choice that the head of a substitution group stands for (3.9.6)
TEST(axsSchemaBuilder, a_substitution_group_is_restricted_by_some_of_its_members_in_any_order)
{
  auto const error_of = [](std::string const& base, std::string const& restricted)
  {
    return error_of_schema(
      "<xs:element name='x' type='xs:int'/><xs:element name='y' type='xs:int'/><xs:element name='h' type='xs:int'/>"
      "<xs:element name='a' substitutionGroup='h'/><xs:element name='b' substitutionGroup='a'/>"
      "<xs:element name='c' substitutionGroup='h'/><xs:complexType name='B'>" +
      base + "</xs:complexType><xs:complexType name='R'><xs:complexContent><xs:restriction base='B'>" + restricted +
      "</xs:restriction></xs:complexContent></xs:complexType>");
  };
  auto const choice = [](std::string const& names, std::string const& range = {})
  {
    std::string parts;
    for (char const name : names)
      parts += std::string("<xs:element ref='") + name + "'/>";
    return "<xs:choice" + range + ">" + parts + "</xs:choice>";
  };
  std::string const often = " minOccurs='0' maxOccurs='unbounded'";
  std::string const head = sequence("<xs:element ref='h'/>");
  std::string const heads = sequence("<xs:element ref='h'" + often + "/>");
  for (char const* const members : {"a", "b", "bc", "cb", "ca"})
  {
    EXPECT_EQ(error_of(head, choice(members)), "") << members;
    EXPECT_EQ(error_of(heads, choice(members, often)), "") << members;
    EXPECT_EQ(error_of(choice("xhy"), choice(members)), "") << members;
    EXPECT_EQ(error_of(choice("xhy", often), choice("x" + std::string(members) + "y", often)), "") << members;
    EXPECT_NE(error_of(choice("xhy"), choice("y" + std::string(members))), "") << members;
    EXPECT_NE(error_of(head, choice("x" + std::string(members))), "") << members;
    EXPECT_NE(error_of(head, choice(members, often)), "") << members;
  }
  EXPECT_EQ(error_of(choice("xa"), head.substr(0, head.find('h')) + "a'/></xs:sequence>"), "");
  EXPECT_NE(error_of(choice("xa"), head), "");
  EXPECT_EQ(error_of(choice("xh", often), sequence("<xs:element ref='c'" + often + "/>")), "");
  EXPECT_NE(error_of(choice("xh"), sequence("<xs:element ref='c'" + often + "/>")), "");
  EXPECT_EQ(
    error_of(sequence("<xs:element ref='x'/><xs:element ref='h'/>"), sequence("<xs:element ref='x'/>" + choice("cb"))),
    "");
}

namespace
{
std::string simple(std::string const& name, std::string const& how, std::string const& base, std::string const& content)
{
  return complex(
    name, "<xs:simpleContent><xs:" + how + " base='" + base + "'>" + content + "</xs:" + how + "></xs:simpleContent>");
}

std::string type_inside(std::string const& base)
{
  return "<xs:simpleType><xs:restriction base='" + base + "'/></xs:simpleType>";
}
}

TEST(axsSchemaBuilder, simple_contents_are_derived_from_simple_contents)
{
  std::string const base = simple("b", "extension", "xs:decimal", "");
  EXPECT_EQ(error_of_schema(base + simple("d", "restriction", "b", type_inside("xs:integer"))), "");
  EXPECT_EQ(error_of_schema(base + simple("d", "restriction", "b", type_inside("xs:string"))),
    "s.xsd:3: the content is not derived from that of 'b'");
  EXPECT_EQ(error_of_schema(base + simple("d", "extension", "b", "<xs:attribute name='a'/>")), "");
  EXPECT_EQ(error_of_schema(base + derived("d", "extension", "b", "<xs:attribute name='a'/>")), "");
  EXPECT_EQ(error_of_schema(base + derived("d", "extension", "b", sequence(element("a")))),
    "s.xsd:3: the content cannot extend that of 'b': both must be mixed, or both consist of elements only");

  SchemaFiles files;
  files.schema("s.xsd", base + simple("d", "extension", "b", "") + derived("e", "extension", "d", ""));
  auto const schema = files.compile({"s.xsd"});
  ASSERT_NE(schema, nullptr) << files.first_error();
  axsSimpleType const* const decimal = schema->type("http://www.w3.org/2001/XMLSchema", "decimal").simple;
  EXPECT_EQ(schema->type("", "d").complex->simple_content, decimal);
  EXPECT_EQ(schema->type("", "e").complex->simple_content, decimal);
  EXPECT_EQ(schema->type("", "e").complex->content, axsComplexType::Content::simple);
}

TEST(axsSchemaBuilder, a_mixed_extension_takes_what_its_base_has)
{
  auto const mixed = [](std::string const& base)
  {
    return complex("b", base) + complex("d", "<xs:complexContent mixed='true'><xs:extension base='b'/>"
                                             "</xs:complexContent>");
  };
  EXPECT_EQ(error_of_schema(mixed("")), "");
  EXPECT_EQ(error_of_schema(mixed(sequence(element("a")))),
    "s.xsd:3: the content cannot extend that of 'b': both must be mixed, or both consist of elements only");
  SchemaFiles files;
  files.schema("s.xsd", "<xs:complexType name='b' mixed='true'>" + sequence(element("a")) + "</xs:complexType>" +
                          derived("d", "extension", "b", ""));
  auto const schema = files.compile({"s.xsd"});
  ASSERT_NE(schema, nullptr) << files.first_error();
  EXPECT_EQ(schema->type("", "d").complex->content, axsComplexType::Content::mixed);
  EXPECT_NE(schema->type("", "d").complex->automaton, nullptr);
}

TEST(axsSchemaBuilder, a_restriction_is_as_strict_about_attributes_as_its_base)
{
  std::string const required = "<xs:attribute name='a' use='required'/>";
  EXPECT_EQ(error_of_schema(restriction(required, required)), "");
  EXPECT_EQ(error_of_schema(restriction(required, "<xs:attribute name='a'/>")),
    "s.xsd:3: attribute 'a' is required by the base type, so it must be here, too");
  std::string const strict = "<xs:anyAttribute/>";
  std::string const lax = "<xs:anyAttribute processContents='lax'/>";
  EXPECT_EQ(error_of_schema(restriction(lax, strict)), "");
  EXPECT_EQ(error_of_schema(restriction(strict, lax)),
    "s.xsd:3: the attribute wildcard is processed less strictly than that of the base type");
}

TEST(axsSchemaBuilder, a_reference_to_an_attribute_keeps_its_fixed_value)
{
  auto const used = [](std::string const& constraint)
  {
    return "<xs:attribute name='g' type='xs:int' fixed='1'/>" +
           complex("t", "\n<xs:attribute ref='g' " + constraint + "/>");
  };
  std::string const changed = "s.xsd:3: attribute 'g' has the fixed value '1', which a reference cannot change";
  EXPECT_EQ(error_of_schema(used("")), "");
  EXPECT_EQ(error_of_schema(used("fixed='01'")), "");
  EXPECT_EQ(error_of_schema(used("fixed='2'")), changed);
  EXPECT_EQ(error_of_schema(used("default='1'")), changed);

  SchemaFiles files;
  files.schema("s.xsd", used("") + "<xs:attribute name='h' type='xs:int' default='3'/>" +
                          complex("u", "<xs:attribute ref='h'/>") +
                          complex("v", "<xs:attribute ref='h' default='4'/>"));
  auto const schema = files.compile({"s.xsd"});
  ASSERT_NE(schema, nullptr) << files.first_error();
  EXPECT_EQ(schema->type("", "t").complex->attributes[0].constraint.kind, axsValueConstraint::Kind::fixed);
  EXPECT_EQ(schema->type("", "u").complex->attributes[0].constraint.value, "3");
  EXPECT_EQ(schema->type("", "v").complex->attributes[0].constraint.value, "4");
}

TEST(axsSchemaBuilder, a_group_with_two_ids_is_told_of_once)
{
  std::string const two = "<xs:attributeGroup name='g'><xs:attribute name='a' type='xs:ID'/>"
                          "<xs:attribute name='b' type='xs:ID'/></xs:attributeGroup>\n";
  SchemaFiles files;
  files.schema("s.xsd", two + "<xs:attributeGroup name='h'><xs:attributeGroup ref='g'/></xs:attributeGroup>");
  EXPECT_EQ(files.compile({"s.xsd"}), nullptr);
  EXPECT_EQ(
    files.errors(), (std::vector<std::string>{"s.xsd:2: the attributes 'a' and 'b' are both of the type xs:ID; a "
                                              "group may have one such attribute"}));
}

TEST(axsSchemaBuilder, wildcards_of_several_attribute_groups_are_intersected)
{
  auto const group = [](std::string const& name, std::string const& spaces) {
    return "<xs:attributeGroup name='" + name + "'><xs:anyAttribute namespace='" + spaces + "'/></xs:attributeGroup>";
  };
  SchemaFiles files;
  files.schema("s.xsd",
    group("g", "u v") + group("h", "v w") + complex("t", "<xs:attributeGroup ref='g'/><xs:attributeGroup ref='h'/>"));
  auto const schema = files.compile({"s.xsd"});
  ASSERT_NE(schema, nullptr) << files.first_error();
  axsWildcard const& wildcard = *schema->type("", "t").complex->attribute_wildcard;
  EXPECT_TRUE(axsNamespaceConstraint::allows(wildcard, "v"));
  EXPECT_FALSE(axsNamespaceConstraint::allows(wildcard, "u"));
  EXPECT_FALSE(axsNamespaceConstraint::allows(wildcard, "w"));
}

TEST(axsSchemaBuilder, prefixes_of_types_are_declared)
{
  std::string const told = "s.xsd:2: the prefix 'p' is not declared";
  for (std::string const wrong : {"<xs:attribute name='a' type='p:t'/>",
         "<xs:simpleType name='t'><xs:union memberTypes='xs:int p:t'/></xs:simpleType>",
         "<xs:simpleType name='t'><xs:restriction base='p:t'/></xs:simpleType>",
         "<xs:simpleType name='t'><xs:list itemType='p:t'/></xs:simpleType>"})
    EXPECT_EQ(error_of_schema(wrong), told) << wrong;
}

TEST(axsSchemaBuilder, a_value_may_name_an_entity_of_the_document_to_come)
{
  EXPECT_EQ(error_of_schema("<xs:attribute name='a' type='xs:ENTITY' fixed='e'/>"), "");
  EXPECT_NE(error_of_schema("<xs:attribute name='a' type='xs:ENTITY' fixed='1'/>"), "");
}

TEST(axsSchemaBuilder, a_long_name_is_shown_by_its_beginning)
{
  std::string name;
  for (int i = 0; i < 200; ++i)
    name += "\xC3\xA4";
  for (std::string const shift : {"", "a"})
  {
    std::string const error = error_of_schema("<xs:element name='e' type='" + shift + name + "'/>");
    EXPECT_NE(error.find("\xC3\xA4...'"), std::string::npos) << error;
    EXPECT_LT(error.size(), name.size());
  }
}
