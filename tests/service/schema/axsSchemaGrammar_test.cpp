#include "SchemaFiles.h"

TEST(axsSchemaGrammar, the_elements_of_a_schema_stand_where_their_grammar_has_them)
{
  expect_rules({
    {"schema", "<xs:element name='a'/>", "<xs:elment name='a'/>", "2: this element may not stand in 'schema'"},
    {"schema", "<xs:element name='a'/>", "<element/>", "2: this element may not stand in 'schema'"},
    {"schema", "<xs:element name='a'/>", "<xs:sequence/>", "2: this element may not stand in 'schema'"},
    {"schema", "<xs:import namespace='u'/>\n<xs:element name='a'/>",
      "<xs:element name='a'/>\n<xs:import namespace='u'/>", "3: 'import' may not stand here in 'schema'"},
    {"annotation", "<xs:element name='a'><xs:annotation/><xs:complexType/></xs:element>",
      "<xs:element name='a'><xs:complexType/><xs:annotation/></xs:element>",
      "2: 'annotation' may not stand here in 'element'"},
    {"annotation",
      "<xs:annotation><xs:appinfo><b>t</b></xs:appinfo><xs:documentation>t</xs:documentation></xs:annotation>",
      "<xs:annotation><xs:element name='a'/></xs:annotation>", "2: this element may not stand in 'annotation'"},
    {"annotation", "<xs:notation name='n' public='p'><xs:annotation/></xs:notation>",
      "<xs:notation name='n' public='p'><xs:annotation/><xs:annotation/></xs:notation>",
      "2: 'annotation' may not stand here in 'notation'"},
    {"complexType",
      "<xs:complexType name='t'><xs:sequence/><xs:attribute name='a'/><xs:anyAttribute/></xs:complexType>",
      "<xs:complexType name='t'><xs:attribute name='a'/><xs:sequence/></xs:complexType>",
      "2: 'sequence' may not stand here in 'complexType'"},
    {"complexType", "<xs:complexType name='t'><xs:sequence/></xs:complexType>",
      "<xs:complexType name='t'><xs:sequence/><xs:choice/></xs:complexType>",
      "2: 'choice' may not stand here in 'complexType'"},
    {"complexType",
      "<xs:complexType name='t'><xs:simpleContent><xs:extension base='xs:int'/></xs:simpleContent></xs:complexType>",
      "<xs:complexType name='t'><xs:simpleContent><xs:extension base='xs:int'/></xs:simpleContent>"
      "<xs:attribute name='a'/></xs:complexType>",
      "2: 'attribute' may not stand here in 'complexType'"},
    {"simpleType", "<xs:simpleType name='t'><xs:list itemType='xs:int'/></xs:simpleType>", "<xs:simpleType name='t'/>",
      "2: 'simpleType' lacks its 'list' or 'restriction' or 'union'"},
    {"simpleType", "<xs:simpleType name='t'><xs:restriction base='xs:int'/></xs:simpleType>",
      "<xs:simpleType name='t'><xs:restriction base='xs:int'/><xs:list itemType='xs:int'/></xs:simpleType>",
      "2: 'list' may not stand here in 'simpleType'"},
    {"group", "<xs:group name='g'><xs:all/></xs:group>", "<xs:group name='g'/>",
      "2: 'group' lacks its 'all' or 'choice' or 'sequence'"},
    {"all", "<xs:group name='g'><xs:all><xs:element name='a'/></xs:all></xs:group>",
      "<xs:group name='g'><xs:all><xs:any/></xs:all></xs:group>", "2: this element may not stand in 'all'"},
    {"unique",
      "<xs:element name='a'><xs:unique name='u'><xs:selector xpath='b'/><xs:field "
      "xpath='@c'/></xs:unique></xs:element>",
      "<xs:element name='a'><xs:unique name='u'><xs:selector xpath='b'/></xs:unique></xs:element>",
      "2: 'unique' lacks its 'field'"},
    {"unique",
      "<xs:element name='a'><xs:unique name='u'><xs:selector xpath='b'/><xs:field "
      "xpath='@c'/></xs:unique></xs:element>",
      "<xs:element name='a'><xs:unique name='u'><xs:field xpath='@c'/><xs:selector "
      "xpath='b'/></xs:unique></xs:element>",
      "2: 'unique' lacks its 'selector'"},
    {"text", "<xs:element name='a'>\n \t</xs:element>", "<xs:element name='a'>t</xs:element>",
      "2: text may not stand in 'element'"},
  });
}

TEST(axsSchemaGrammar, elements_have_the_attributes_of_their_place)
{
  expect_rules({
    {"element", "<xs:element name='a' xmlns:o='o' o:other='x'/>", "<xs:element name='a' other='x'/>",
      "2: attribute 'other' may not stand on 'element' here"},
    {"element", "<xs:element name='a'/>", "<xs:element name='a' xs:nillable='true'/>",
      "2: attribute 'xs:nillable' may not stand on 'element' here"},
    {"element", "<xs:element name='a'/>", "<xs:element/>", "2: 'element' lacks its attribute 'name'"},
    {"element", "<xs:element name='a'/>", "<xs:element name='a' minOccurs='1'/>",
      "2: attribute 'minOccurs' may not stand on 'element' here"},
    {"element", "<xs:element name='a'/>", "<xs:element name='a' form='qualified'/>",
      "2: attribute 'form' may not stand on 'element' here"},
    {"local element",
      "<xs:complexType name='t'><xs:sequence><xs:element name='a' form='qualified'/></xs:sequence></xs:complexType>",
      "<xs:complexType name='t'><xs:sequence><xs:element name='a' abstract='true'/></xs:sequence></xs:complexType>",
      "2: attribute 'abstract' may not stand on 'element' here"},
    {"complexType", "<xs:element name='a'><xs:complexType/></xs:element>",
      "<xs:element name='a'><xs:complexType name='t'/></xs:element>",
      "2: attribute 'name' may not stand on 'complexType' here"},
    {"group", "<xs:group name='g'><xs:sequence/></xs:group>",
      "<xs:group name='g'><xs:sequence minOccurs='0'/></xs:group>",
      "2: attribute 'minOccurs' may not stand on 'sequence' here"},
    {"facet",
      "<xs:simpleType name='t'><xs:restriction base='xs:int'><xs:maxInclusive value='1' fixed='1'/></xs:restriction>"
      "</xs:simpleType>",
      "<xs:simpleType name='t'><xs:restriction base='xs:int'><xs:pattern value='1' fixed='1'/></xs:restriction>"
      "</xs:simpleType>",
      "2: attribute 'fixed' may not stand on 'pattern' here"},
    {"facet",
      "<xs:simpleType name='t'><xs:restriction base='xs:int'><xs:pattern value='1'/></xs:restriction></xs:simpleType>",
      "<xs:simpleType name='t'><xs:restriction base='xs:int'><xs:pattern/></xs:restriction></xs:simpleType>",
      "2: 'pattern' lacks its attribute 'value'"},
    {"include", "<xs:annotation/>", "<xs:include/>", "2: 'include' lacks its attribute 'schemaLocation'"},
  });
}

TEST(axsSchemaGrammar, attributes_have_values_of_their_types)
{
  expect_rules({
    {"NCName", "<xs:element name=' a '/>", "<xs:element name='a:b'/>",
      "2: attribute 'name' of 'element': 'a:b' is not a name without a colon"},
    {"NCName", "<xs:element name='\xC3\xA4'/>", "<xs:element name='1'/>",
      "2: attribute 'name' of 'element': '1' is not a name without a colon"},
    {"ID", "<xs:element name='a' id='i'/><xs:element name='b' id='j'/>",
      "<xs:element name='a' id='i'/>\n<xs:element name='b' id='i'/>", "3: the id 'i' is given twice in the document"},
    {"QName", "<xs:element name='a' type='xs:int'/>", "<xs:element name='a' type='xs:int:x'/>",
      "2: attribute 'type' of 'element': 'xs:int:x' is not a name with or without a prefix"},
    {"boolean", "<xs:element name='a' nillable='1'/>", "<xs:element name='a' nillable='yes'/>",
      "2: attribute 'nillable' of 'element': 'yes' is not 'true', 'false', '1' or '0'"},
    {"use", "<xs:complexType name='t'><xs:attribute name='a' use='required'/></xs:complexType>",
      "<xs:complexType name='t'><xs:attribute name='a' use='sometimes'/></xs:complexType>",
      "2: attribute 'use' of 'attribute': 'sometimes' is not 'optional', 'prohibited' or 'required'"},
    {"form", "<xs:complexType name='t'><xs:attribute name='a' form='qualified'/></xs:complexType>",
      "<xs:complexType name='t'><xs:attribute name='a' form='x'/></xs:complexType>",
      "2: attribute 'form' of 'attribute': 'x' is not 'qualified' or 'unqualified'"},
    {"processContents", "<xs:complexType name='t'><xs:anyAttribute processContents='lax'/></xs:complexType>",
      "<xs:complexType name='t'><xs:anyAttribute processContents='x'/></xs:complexType>",
      "2: attribute 'processContents' of 'anyAttribute': 'x' is not 'lax', 'skip' or 'strict'"},
    {"namespace",
      "<xs:complexType name='t'><xs:anyAttribute namespace='##local ##targetNamespace u'/></xs:complexType>",
      "<xs:complexType name='t'><xs:anyAttribute namespace='##other u'/></xs:complexType>",
      "2: attribute 'namespace' of 'anyAttribute': '##other u' is not '##any', '##other' or a list of namespaces, "
      "'##targetNamespace' and '##local'"},
    {"block", "<xs:element name='a' block='extension substitution'/>", "<xs:element name='a' block='#all extension'/>",
      "2: attribute 'block' of 'element': '#all extension' is not '#all' or of 'extension', 'restriction' and "
      "'substitution'"},
    {"block", "<xs:complexType name='t' block='extension'/>", "<xs:complexType name='t' block='substitution'/>",
      "2: attribute 'block' of 'complexType': 'substitution' is not '#all' or of 'extension' and 'restriction'"},
    {"final", "<xs:simpleType name='t' final='list'><xs:list itemType='xs:int'/></xs:simpleType>",
      "<xs:simpleType name='t' final='extension'><xs:list itemType='xs:int'/></xs:simpleType>",
      "2: attribute 'final' of 'simpleType': 'extension' is not '#all' or of 'list', 'union', 'restriction'"},
    {"occurrence",
      "<xs:complexType name='t'><xs:sequence minOccurs='+0' maxOccurs='99999999999999999999999'/></xs:complexType>",
      "<xs:complexType name='t'><xs:sequence minOccurs='-1'/></xs:complexType>",
      "2: attribute 'minOccurs' of 'sequence': '-1' is not a number that is not negative"},
    {"occurrence",
      "<xs:complexType name='t'><xs:sequence minOccurs='99999999999999999999998' "
      "maxOccurs='099999999999999999999998'/></xs:complexType>",
      "<xs:complexType name='t'><xs:sequence minOccurs='99999999999999999999999' "
      "maxOccurs='99999999999999999999998'/></xs:complexType>",
      "2: maxOccurs of 'sequence' is less than its minOccurs"},
    {"language", "<xs:annotation xml:lang='x-2'><xs:documentation xml:lang=''/></xs:annotation>",
      "<xs:annotation><xs:documentation xml:lang='1 2'/></xs:annotation>",
      "2: attribute 'xml:lang' of 'documentation': '1 2' is not a language code (xs:language)"},
    {"language", "<xs:annotation><xs:documentation><p xml:lang='1 2'/></xs:documentation></xs:annotation>",
      "<xs:element name='a' xml:lang='de_DE'/>",
      "2: attribute 'xml:lang' of 'element': 'de_DE' is not a language code (xs:language)"},
    {"occurrence", "<xs:complexType name='t'><xs:sequence maxOccurs='unbounded'/></xs:complexType>",
      "<xs:complexType name='t'><xs:sequence minOccurs='unbounded'/></xs:complexType>",
      "2: attribute 'minOccurs' of 'sequence': 'unbounded' is not a number that is not negative"},
    {"all",
      "<xs:complexType name='t'><xs:all minOccurs='0'><xs:element name='a' maxOccurs='1'/></xs:all></xs:complexType>",
      "<xs:complexType name='t'><xs:all><xs:element name='a' maxOccurs='2'/></xs:all></xs:complexType>",
      "2: attribute 'maxOccurs' of 'element': '2' is not 0 or 1 in an 'all' group"},
    {"all", "<xs:complexType name='t'><xs:all maxOccurs='1'/></xs:complexType>",
      "<xs:complexType name='t'><xs:all maxOccurs='2'/></xs:complexType>",
      "2: attribute 'maxOccurs' of 'all': '2' is not 1 for an 'all' group"},
  });
}

TEST(axsSchemaGrammar, declarations_say_what_belongs_together)
{
  expect_rules({
    {"src-element.1", "<xs:element name='a' default='1'/>", "<xs:element name='a' default='1' fixed='1'/>",
      "2: 'element' has both 'default' and 'fixed'"},
    {"src-element.2.1",
      "<xs:element name='b'/><xs:complexType name='t'><xs:sequence><xs:element "
      "ref='b'/></xs:sequence></xs:complexType>",
      "<xs:complexType name='t'><xs:sequence><xs:element/></xs:sequence></xs:complexType>",
      "2: 'element' lacks its attribute 'name' or 'ref'"},
    {"src-element.2.1",
      "<xs:element name='b'/><xs:complexType name='t'><xs:sequence><xs:element "
      "ref='b'/></xs:sequence></xs:complexType>",
      "<xs:element name='b'/><xs:complexType name='t'><xs:sequence><xs:element ref='b' name='c'/></xs:sequence>"
      "</xs:complexType>",
      "2: 'element' has both 'ref' and 'name'"},
    {"src-element.2.2",
      "<xs:element name='b'/><xs:complexType name='t'><xs:sequence><xs:element ref='b' minOccurs='0' id='i'/>"
      "</xs:sequence></xs:complexType>",
      "<xs:element name='b'/><xs:complexType name='t'><xs:sequence><xs:element ref='b' type='xs:int'/></xs:sequence>"
      "</xs:complexType>",
      "2: attribute 'type' may not stand on an 'element' with 'ref'"},
    {"src-element.2.2",
      "<xs:element name='b'/><xs:complexType name='t'><xs:sequence><xs:element ref='b'><xs:annotation/></xs:element>"
      "</xs:sequence></xs:complexType>",
      "<xs:element name='b'/><xs:complexType name='t'><xs:sequence><xs:element ref='b'><xs:complexType/></xs:element>"
      "</xs:sequence></xs:complexType>",
      "2: 'complexType' may not stand in an 'element' with 'ref'"},
    {"src-element.3", "<xs:element name='a'><xs:complexType/></xs:element>",
      "<xs:element name='a' type='xs:int'><xs:complexType/></xs:element>",
      "2: 'element' has both an attribute 'type' and a type in it"},
    {"src-attribute.1", "<xs:attribute name='a' fixed='1'/>", "<xs:attribute name='a' default='1' fixed='1'/>",
      "2: 'attribute' has both 'default' and 'fixed'"},
    {"src-attribute.2", "<xs:complexType name='t'><xs:attribute name='a' default='1' use='optional'/></xs:complexType>",
      "<xs:complexType name='t'><xs:attribute name='a' default='1' use='required'/></xs:complexType>",
      "2: an attribute with 'default' is optional, not 'required'"},
    {"src-attribute.3.1",
      "<xs:attribute name='b'/><xs:attributeGroup name='g'><xs:attribute ref='b'/></xs:attributeGroup>",
      "<xs:attributeGroup name='g'><xs:attribute/></xs:attributeGroup>",
      "2: 'attribute' lacks its attribute 'name' or 'ref'"},
    {"src-attribute.3.2",
      "<xs:attribute name='b'/><xs:attributeGroup name='g'><xs:attribute ref='b'/></xs:attributeGroup>",
      "<xs:attribute name='b'/><xs:attributeGroup name='g'><xs:attribute ref='b' type='xs:int'/></xs:attributeGroup>",
      "2: attribute 'type' may not stand on an 'attribute' with 'ref'"},
    {"src-attribute.3.2",
      "<xs:attribute name='b'/><xs:attributeGroup name='g'><xs:attribute ref='b'/></xs:attributeGroup>",
      "<xs:attribute name='b'/><xs:attributeGroup name='g'><xs:attribute ref='b'><xs:simpleType><xs:list "
      "itemType='xs:int'/></xs:simpleType></xs:attribute></xs:attributeGroup>",
      "2: 'simpleType' may not stand in an 'attribute' with 'ref'"},
    {"src-attribute.4",
      "<xs:attribute name='a'><xs:simpleType><xs:list itemType='xs:int'/></xs:simpleType></xs:attribute>",
      "<xs:attribute name='a' type='xs:int'><xs:simpleType><xs:list itemType='xs:int'/></xs:simpleType></xs:attribute>",
      "2: 'attribute' has both an attribute 'type' and a type in it"},
    {"src-simple-type.2", "<xs:simpleType name='t'><xs:restriction base='xs:int'/></xs:simpleType>",
      "<xs:simpleType name='t'><xs:restriction/></xs:simpleType>", "2: 'restriction' lacks its attribute 'base'"},
    {"src-simple-type.3", "<xs:simpleType name='t'><xs:list itemType='xs:int'/></xs:simpleType>",
      "<xs:simpleType name='t'><xs:list itemType='xs:int'><xs:simpleType><xs:restriction "
      "base='xs:int'/></xs:simpleType>"
      "</xs:list></xs:simpleType>",
      "2: 'list' has both an attribute 'itemType' and a type in it"},
    {"src-union-memberTypes-or-simpleTypes", "<xs:simpleType name='t'><xs:union memberTypes='xs:int'/></xs:simpleType>",
      "<xs:simpleType name='t'><xs:union memberTypes=''/></xs:simpleType>", "2: 'union' lacks its member types"},
    {"n-props-correct", "<xs:notation name='n' system='s'/>", "<xs:notation name='n'/>",
      "2: 'notation' lacks its attribute 'public' or 'system'"},
    {"src-import.1.2", "<xs:import namespace='u'/>", "<xs:import/>",
      "2: 'import' lacks its attribute 'namespace', as the schema has no namespace either"},
    {"p-props-correct.2.1", "<xs:complexType name='t'><xs:sequence minOccurs='2' maxOccurs='2'/></xs:complexType>",
      "<xs:complexType name='t'><xs:sequence minOccurs='2'/></xs:complexType>",
      "2: maxOccurs of 'sequence' is less than its minOccurs; without one it is 1"},
  });
}

TEST(axsSchemaGrammar, a_schema_does_not_import_its_own_namespace)
{
  EXPECT_EQ(error_of_schema("<xs:import namespace='u'/>", "targetNamespace='u'"), // src-import.1.1
    "s.xsd:2: a schema cannot import its own namespace; 'include' is for that");
  EXPECT_EQ(error_of_schema("<xs:import/>", "targetNamespace='u'"), "");
  EXPECT_NE(error_of_schema("", "targetNamespace=''"), "");
}

// anyURI (Part 2, 3.2.17) in the schema for schemas
TEST(axsSchemaGrammar, what_names_namespaces_and_files_are_uri_references)
{
  EXPECT_EQ(error_of_schema("", "targetNamespace='urn:a b#c'"), "");
  EXPECT_NE(error_of_schema("", "targetNamespace='a#b#c'"), "");
  EXPECT_NE(error_of_schema("", "targetNamespace='50%'"), "");
  EXPECT_NE(error_of_schema("<xs:import namespace='%x'/>"), "");
  EXPECT_NE(error_of_schema("<xs:notation name='n' system=':x'/>"), "");
  EXPECT_NE(error_of_schema("<xs:annotation><xs:appinfo source='%'/></xs:annotation>"), "");
  std::string const open = "<xs:complexType name='t'><xs:anyAttribute namespace='";
  EXPECT_EQ(error_of_schema(open + "urn:a ##local'/></xs:complexType>"), "");
  EXPECT_NE(error_of_schema(open + "urn:a %'/></xs:complexType>"), "");
}

TEST(axsSchemaGrammar, a_use_of_a_global_attribute_is_let_pass_if_it_is_legal)
{
  EXPECT_EQ(error_of_schema("<xs:attribute name='a' use='required'/>"), "");
  EXPECT_NE(error_of_schema("<xs:attribute name='a' use='sometimes'/>"), "");
}

TEST(axsSchemaGrammar, tells_of_several_faults_with_their_places)
{
  SchemaFiles files;
  files.schema("s.xsd", "<xs:element/>\n<xs:attribute/>\n<xs:element name='a' type='none'/>");
  files.compile({"s.xsd"});
  // Names are looked up only once the documents are right.
  EXPECT_EQ(files.errors(), (std::vector<std::string>{"s.xsd:2: 'element' lacks its attribute 'name'",
                              "s.xsd:3: 'attribute' lacks its attribute 'name'"}));
  files.schema("s.xsd", "<xs:element name='a' type='none'/>\n<xs:element name='b' type='xs:nothing'/>");
  files.compile({"s.xsd"});
  EXPECT_EQ(files.errors(),
    (std::vector<std::string>{"s.xsd:2: there is no declaration of 'none' in no namespace",
      "s.xsd:3: there is no declaration of 'nothing' in the namespace 'http://www.w3.org/2001/XMLSchema'"}));
}

TEST(axsSchemaGrammar, a_type_that_is_not_there_is_told_of_once)
{
  SchemaFiles files;
  files.schema("s.xsd",
    "<xs:simpleType name='t'><xs:restriction base='none'><xs:length value='1'/></xs:restriction></xs:simpleType>"
    "<xs:simpleType name='u'><xs:restriction base='t'><xs:enumeration value='1'/></xs:restriction></xs:simpleType>"
    "<xs:simpleType name='v'><xs:list itemType='t'/></xs:simpleType>"
    "<xs:simpleType name='w'><xs:union memberTypes='v xs:int'><xs:simpleType><xs:restriction base='u'/></xs:simpleType>"
    "</xs:union></xs:simpleType>");
  files.compile({"s.xsd"});
  EXPECT_EQ(files.errors(), (std::vector<std::string>{"s.xsd:2: there is no declaration of 'none' in no namespace"}));
  // What is there, but may not be used so, is.
  EXPECT_NE(error_of_schema("<xs:simpleType name='t'><xs:restriction base='xs:anySimpleType'/></xs:simpleType>"), "");
}

TEST(axsSchemaGrammar, keeps_no_more_faults_than_its_limit)
{
  SchemaFiles files;
  std::string many;
  for (int i = 0; i < 1000; ++i)
    many += "<xs:element/>\n";
  files.schema("s.xsd", many);
  files.compile({"s.xsd"});
  EXPECT_EQ(files.errors().size(), axsSchemaErrors::default_limit);
}
