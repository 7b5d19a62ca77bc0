#include "axmSchemaUtest.h"

#include "axmSchemaDraw.h"
#include "axmSchemaTables.h"
#include "axmUtestAccess.h"

#include <utUnitTest.h>

#include <string>

using namespace axmSchemaTables;

namespace
{
using Factory = std::shared_ptr<axmDocumentFactory>;

char const file[] = "source/utest/axmSchemaUtest";
}

axmSchemaUtest::axmSchemaUtest(utUnitTest* given_tester) : tester(given_tester) {}
axmSchemaUtest::~axmSchemaUtest() = default;

void axmSchemaUtest::run_tests(Factory const& factory) const
{
  using Utest = axmSchemaUtest;
  axmUtestEntry<Utest, Factory const&> const groups[] = {
    {&Utest::test_types, "axmSchemaUtest::test_types"},
    {&Utest::test_facets, "axmSchemaUtest::test_facets"},
    {&Utest::test_contents, "axmSchemaUtest::test_contents"},
    {&Utest::test_attributes, "axmSchemaUtest::test_attributes"},
    {&Utest::test_derivation, "axmSchemaUtest::test_derivation"},
    {&Utest::test_constraints, "axmSchemaUtest::test_constraints"},
    {&Utest::test_rules, "axmSchemaUtest::test_rules"},
    {&Utest::test_modules, "axmSchemaUtest::test_modules"},
    {&Utest::test_wrong_schemas, "axmSchemaUtest::test_wrong_schemas"},
  };
  axm_run_groups(*this, factory, groups, tester, file);
}

namespace
{
// A schema with a target namespace, in which every kind of name and wildcard is.
char const of_namespace[] =
  "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' targetNamespace='urn:o' xmlns:o='urn:o' "
  "elementFormDefault='qualified'><xs:element name='h' type='xs:int'/><xs:element name='s' type='xs:int' "
  "substitutionGroup='o:h'/><xs:attribute name='g' type='xs:int'/><xs:complexType name='b'><xs:sequence><xs:element "
  "name='x' type='xs:int' minOccurs='0'/></xs:sequence></xs:complexType><xs:complexType name='d'><xs:complexContent>"
  "<xs:extension base='o:b'><xs:sequence><xs:element name='y' type='xs:int'/></xs:sequence></xs:extension>"
  "</xs:complexContent></xs:complexType><xs:element name='t' type='o:b'/><xs:element name='w'><xs:complexType>"
  "<xs:sequence><xs:any namespace='##targetNamespace'/></xs:sequence><xs:anyAttribute namespace='##targetNamespace'/>"
  "</xs:complexType></xs:element><xs:element name='l'><xs:complexType><xs:sequence><xs:any namespace='##local' "
  "processContents='skip'/></xs:sequence></xs:complexType></xs:element><xs:element name='u'><xs:complexType>"
  "<xs:sequence><xs:any namespace='##other' processContents='skip'/></xs:sequence></xs:complexType></xs:element>"
  "<xs:element name='m'><xs:complexType><xs:sequence><xs:any namespace='urn:p ##targetNamespace' "
  "processContents='lax'/></xs:sequence></xs:complexType></xs:element><xs:element name='k'><xs:complexType>"
  "<xs:sequence><xs:element name='e' maxOccurs='unbounded'><xs:complexType><xs:attribute name='id' type='xs:int'/>"
  "</xs:complexType></xs:element></xs:sequence></xs:complexType><xs:unique name='q'><xs:selector xpath='o:e'/>"
  "<xs:field xpath='@id'/></xs:unique></xs:element><xs:element name='n'><xs:complexType><xs:sequence><xs:element "
  "name='e' form='unqualified' type='xs:int'/></xs:sequence><xs:attribute name='a' form='qualified' type='xs:int'/>"
  "</xs:complexType></xs:element><xs:element name='c'><xs:complexType><xs:sequence><xs:element ref='o:h'/>"
  "</xs:sequence><xs:attribute ref='o:g'/></xs:complexType></xs:element><xs:element name='ao'><xs:complexType>"
  "<xs:anyAttribute namespace='##other' processContents='skip'/></xs:complexType></xs:element><xs:element name='al'>"
  "<xs:complexType><xs:anyAttribute namespace='##local' processContents='skip'/></xs:complexType></xs:element>"
  "</xs:schema>";

char const* const valid_in_namespace[] = {"<w xmlns='urn:o'><h>1</h></w>", "<o:w o:g='1'><o:h>1</o:h></o:w>",
  "<o:w><o:s>1</o:s></o:w>", "<o:l><z/></o:l>", "<l xmlns='urn:o'><h xmlns=''>x</h></l>", "<o:u><p:z/></o:u>",
  "<o:m><p:z/></o:m>", "<o:m><o:h>1</o:h></o:m>", "<t xmlns='urn:o'><x>1</x></t>", "<o:t/>",
  "<t xmlns='urn:o' xsi:type='d'><x>1</x><y>2</y></t>", "<o:t xsi:type='o:d'><o:y>1</o:y></o:t>",
  "<o:k><o:e id='1'/><o:e id='2'/></o:k>", "<k xmlns='urn:o'><e id='1'/><e/><e/></k>", "<o:n o:a='1'><e>1</e></o:n>",
  "<c xmlns='urn:o'><h>1</h></c>", "<c xmlns='urn:o' o:g='1'><s>1</s></c>", "<o:ao p:g='x'/>", "<o:al g='x'/>",
  "<al xmlns='urn:o' g=''/>"};

char const* const invalid_in_namespace[] = {"<w xmlns='urn:o'><p:h/></w>", "<w xmlns='urn:o'><h xmlns=''>1</h></w>",
  "<o:w g='1'><o:h>1</o:h></o:w>", "<o:w p:g='1'><o:h>1</o:h></o:w>", "<o:w o:g='x'><o:h>1</o:h></o:w>",
  "<w xmlns='urn:o'><h>x</h></w>", "<o:w><o:z/></o:w>", "<l xmlns='urn:o'><z/></l>", "<o:l><p:z/></o:l>",
  "<o:u><z/></o:u>", "<o:u><o:h>1</o:h></o:u>", "<o:m><z/></o:m>", "<o:m><o:h>x</o:h></o:m>",
  "<t xmlns='urn:o'><y>1</y></t>", "<o:t><x>1</x></o:t>", "<o:t xsi:type='d'><o:y>1</o:y></o:t>",
  "<o:t xsi:type='p:d'><o:y>1</o:y></o:t>", "<o:t xsi:type='o:d'><y>1</y></o:t>",
  "<o:k><o:e id='1'/><o:e id='1'/></o:k>", "<k xmlns='urn:o'><e id='1'/><e id='01'/></k>", "<o:n a='1'><e>1</e></o:n>",
  "<n xmlns='urn:o'><e>1</e></n>", "<o:n o:a='x'><e>1</e></o:n>", "<c xmlns='urn:o' g='1'><h>1</h></c>",
  "<c xmlns='urn:o' p:g='1'><h>1</h></c>", "<o:c><o:s>x</o:s></o:c>", "<o:c><h>1</h></o:c>", "<o:ao g='1'/>",
  "<o:ao o:g='1'/>", "<o:al o:g='1'/>", "<o:al p:g='1'/>"};

// With the prefixes that the documents above are written with.
std::string with_prefixes(std::string const& document)
{
  std::size_t const end = document.find_first_of(" />");
  return document.substr(0, end) +
         " xmlns:o='urn:o' xmlns:p='urn:p' xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance'" +
         document.substr(end);
}

bool are_judged_in_namespace(utUnitTest& tester, axmDocumentFactory const& factory)
{
  SchemaFile const schema("namespace", of_namespace);
  axmLoadOptions options(axmValidateWithSchemas);
  options.add_external_schema(APSTRING("urn:o"), schema.path);
  bool are_right = true;
  for (char const* const document : valid_in_namespace)
    are_right = is_judged(tester, factory, options, with_prefixes(document), true) && are_right;
  for (char const* const document : invalid_in_namespace)
    are_right = is_judged(tester, factory, options, with_prefixes(document), false) && are_right;
  return are_right;
}
}

namespace
{
// Whether local names are looked for where the schema says they are, and nowhere else.
bool are_forms_kept(utUnitTest& tester, axmDocumentFactory const& factory)
{
  bool are_right = true;
  for (auto const& [text, is_element_qualified, is_attribute_qualified] : axmSchemaDraw::forms())
  {
    SchemaFile const schema("forms", text);
    axmLoadOptions options(axmValidateWithSchemas);
    options.add_external_schema(APSTRING("urn:o"), schema.path);
    for (bool const is_element_prefixed : {false, true})
      for (bool const is_attribute_prefixed : {false, true})
      {
        std::string const document = std::string("<o:r xmlns:o='urn:o' ") + (is_attribute_prefixed ? "o:a" : "a") +
                                     "=''>" + (is_element_prefixed ? "<o:e/>" : "<e/>") + "</o:r>";
        bool const is_valid =
          is_element_prefixed == is_element_qualified && is_attribute_prefixed == is_attribute_qualified;
        are_right = is_judged(tester, factory, options, document, is_valid) && are_right;
      }
    if (!are_right)
      tester.printf("under the schema %s", text.c_str());
  }
  return are_right;
}
}

void axmSchemaUtest::test_modules(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmSchemaUtest::test_modules");
  std::string const begin = "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' ";
  SchemaFile const part(
    "part", begin + "><xs:simpleType name='t'><xs:restriction base='xs:int'/></xs:simpleType></xs:schema>");
  SchemaFile const other("other", begin + "targetNamespace='urn:o' elementFormDefault='qualified'>"
                                          "<xs:element name='o' type='xs:int'/><xs:attribute name='a' type='xs:int'/>"
                                          "</xs:schema>");
  std::string const part_name = part.path.path().c_str();
  std::string const other_name = other.path.path().c_str();
  SchemaFile const including(
    "including", schema_of("<xs:include schemaLocation='" + part_name + "'/><xs:element name='r' type='t'/>"));
  SchemaFile const redefining("redefining",
    schema_of("<xs:redefine schemaLocation='" + part_name +
              "'><xs:simpleType name='t'><xs:restriction base='t'><xs:maxInclusive value='9'/></xs:restriction>"
              "</xs:simpleType></xs:redefine><xs:element name='r' type='t'/>"));
  SchemaFile const importing(
    "importing", begin + "xmlns:o='urn:o'><xs:import namespace='urn:o' schemaLocation='" + other_name +
                   "'/><xs:element name='r'><xs:complexType><xs:sequence><xs:element ref='o:o'/></xs:sequence>"
                   "<xs:attribute ref='o:a'/></xs:complexType></xs:element></xs:schema>");
  SchemaFile const unqualified("unqualified", begin +
                                                "targetNamespace='urn:o'><xs:element name='r'><xs:complexType>"
                                                "<xs:sequence><xs:element name='e' type='xs:int'/></xs:sequence>"
                                                "<xs:attribute name='a' type='xs:int'/></xs:complexType></xs:element>"
                                                "</xs:schema>");
  SchemaFile const types("types", begin + "><xs:complexType name='c'><xs:sequence><xs:element name='e' type='xs:int'/>"
                                          "</xs:sequence><xs:attribute name='a' use='required'/></xs:complexType>"
                                          "<xs:group name='g'><xs:choice><xs:element name='e'/><xs:element name='f'/>"
                                          "</xs:choice></xs:group></xs:schema>");
  std::string const types_name = types.path.path().c_str();
  SchemaFile const of_types("of_types", schema_of("<xs:include schemaLocation='" + types_name +
                                                  "'/><xs:element name='r' type='c'/><xs:element name='s'>"
                                                  "<xs:complexType><xs:group ref='g'/></xs:complexType>"
                                                  "</xs:element>"));
  SchemaFile const of_more("of_more",
    schema_of("<xs:redefine schemaLocation='" + types_name +
              "'><xs:complexType name='c'><xs:complexContent><xs:extension base='c'><xs:sequence><xs:element name='f'/>"
              "</xs:sequence></xs:extension></xs:complexContent></xs:complexType></xs:redefine><xs:element name='r' "
              "type='c'/>"));
  struct Load
  {
    apPath const& schema;
    char const* document;
    bool is_valid;
    char const* description;
  };
  Load const loads[] = {
    {including.path, "<r>1</r>", true, "an included schema"},
    {including.path, "<r>x</r>", false, "an included schema"},
    {of_types.path, "<r a=''><e>1</e></r>", true, "an included type"},
    {of_types.path, "<r a=''/>", false, "an included type"},
    {of_types.path, "<r a=''><e>x</e></r>", false, "an included type"},
    {of_types.path, "<r><e>1</e></r>", false, "an included type"},
    {of_types.path, "<r a=''><e>1</e><e>1</e></r>", false, "an included type"},
    {of_types.path, "<s><f/></s>", true, "an included group"},
    {of_types.path, "<s/>", false, "an included group"},
    {of_types.path, "<s><e/><f/></s>", false, "an included group"},
    {of_more.path, "<r a=''><e>1</e><f/></r>", true, "a type that is redefined as more"},
    {of_more.path, "<r a=''><e>1</e></r>", false, "a type that is redefined as more"},
    {of_more.path, "<r a=''><f/></r>", false, "a type that is redefined as more"},
    {of_more.path, "<r><e>1</e><f/></r>", false, "a type that is redefined as more"},
    {redefining.path, "<r>9</r>", true, "a redefined type"},
    {redefining.path, "<r>10</r>", false, "a redefined type"},
    {redefining.path, "<r>x</r>", false, "a redefined type"},
    {importing.path, "<r xmlns:p='urn:o' p:a='1'><p:o>1</p:o></r>", true, "an imported schema"},
    {importing.path, "<r><o xmlns='urn:o'>1</o></r>", true, "an imported schema"},
    {importing.path, "<r><o>1</o></r>", false, "an imported schema"},
    {importing.path, "<r xmlns:p='urn:o'><p:o>x</p:o></r>", false, "an imported schema"},
    {importing.path, "<r xmlns:p='urn:o' p:a='x'><p:o>1</p:o></r>", false, "an imported schema"},
    {importing.path, "<r xmlns:p='urn:o' a='1'><p:o>1</p:o></r>", false, "an imported schema"},
  };
  for (auto const& [schema, document, is_valid, description] : loads)
    group.check(
      is_judged(*tester, *factory, options_with(schema), document, is_valid), all_are_judged, __LINE__, description);
  axmLoadOptions in_namespace(axmValidateWithSchemas);
  in_namespace.add_external_schema(APSTRING("urn:o"), unqualified.path);
  struct Local
  {
    char const* document;
    bool is_valid;
  };
  Local const local[] = {
    {"<p:r xmlns:p='urn:o' a='1'><e>1</e></p:r>", true},
    {"<p:r xmlns:p='urn:o'><p:e>1</p:e></p:r>", false},
    {"<r xmlns='urn:o'><e>1</e></r>", false},
    {"<r xmlns='urn:o'><e xmlns=''>1</e></r>", true},
    {"<p:r xmlns:p='urn:o' p:a='1'><e>1</e></p:r>", false},
    {"<p:r xmlns:p='urn:o'><e>x</e></p:r>", false},
  };
  for (auto const& [document, is_valid] : local)
    group.check(is_judged(*tester, *factory, in_namespace, document, is_valid), all_are_judged, __LINE__,
      "local names are in no namespace unless the schema says so");
  group.check(are_forms_kept(*tester, *factory), all_are_judged, __LINE__, "every form of local names");
  group.check(are_judged_in_namespace(*tester, *factory), all_are_judged, __LINE__,
    "declarations, wildcards, types and keys of a target namespace");
}
