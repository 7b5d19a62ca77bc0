#include "axmSchemaUtest.h"

#include "axmSchemaTables.h"
#include "axmUtestAccess.h"

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
}
