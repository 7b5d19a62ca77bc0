#include "axmValidationUtest.h"

#include "axmUtestAccess.h"
#include "axmUtestFile.h"
#include "axmUtestGroup.h"
#include "axmUtestUtils.h"

#include <utUnitTest.h>

using namespace axmUtestAccess;

namespace
{
char const file[] = "source/utest/axmValidationUtest";

// Literals are joined by these.
#define DECLARATION "<?xml version=\"1.0\" encoding=\"UTF-8\"?>"
#define TYPE_XY                                                                                                        \
  "<xs:complexType name=\"XY\"><xs:attribute name=\"Value\" type=\"xs:decimal\" use=\"required\"/></xs:complexType>"
#define XS "xmlns:xs=\"http://www.w3.org/2001/XMLSchema\" elementFormDefault=\"qualified\""

char const namespace_schema[] = DECLARATION
  "<xs:schema " XS " xmlns=\"x-schema:MySchema.xsd\" targetNamespace=\"x-schema:MySchema.xsd\">" TYPE_XY
  "<xs:element name=\"machine\"><xs:complexType><xs:sequence><xs:element name=\"XY\" type=\"XY\"/></xs:sequence>"
  "</xs:complexType></xs:element></xs:schema>";

char const no_namespace_schema[] = DECLARATION
  "<xs:schema " XS ">" TYPE_XY
  "<xs:element name=\"machine\"><xs:complexType><xs:sequence><xs:element name=\"XY\" type=\"XY\"/></xs:sequence>"
  "</xs:complexType></xs:element></xs:schema>";

char const first_schema[] = DECLARATION
  "<xs:schema " XS " xmlns=\"x-schema:MySchema1.xsd\" targetNamespace=\"x-schema:MySchema1.xsd\">" TYPE_XY
  "<xs:element name=\"machine\"><xs:complexType><xs:sequence><xs:element name=\"XY\" type=\"XY\"/></xs:sequence>"
  "<xs:anyAttribute namespace=\"x-schema:MySchema2.xsd\"/></xs:complexType></xs:element></xs:schema>";

// A global attribute cannot be required; engines take the `use` for what it would say on a local one.
char const second_schema[] =
  DECLARATION "<xs:schema " XS " xmlns=\"x-schema:MySchema2.xsd\" targetNamespace=\"x-schema:MySchema2.xsd\">"
              "<xs:attribute name=\"AB\" type=\"xs:decimal\" use=\"required\"/></xs:schema>";

char const valid_namespaced[] = DECLARATION "<machine xmlns=\"x-schema:MySchema.xsd\">  <XY Value=\"1.2\"/></machine>";
char const invalid_namespaced[] =
  DECLARATION "<machine xmlns=\"x-schema:MySchema.xsd\">  <XY Value=\"Some Text\"/></machine>";
char const valid_no_namespace[] = DECLARATION "<machine>  <XY Value=\"1.2\"/></machine>";
char const invalid_no_namespace[] = DECLARATION "<machine>  <XY Value=\"Some Text\"/></machine>";
char const missing_schema_document[] =
  DECLARATION "<root xmlns=\"x-schema:MySchema.xsd\">  <tag_1>Some Text</tag_1></root>";

#define TWO_SCHEMAS "<machine xmlns=\"x-schema:MySchema1.xsd\" xmlns:s2=\"x-schema:MySchema2.xsd\" "
char const valid_both[] = DECLARATION TWO_SCHEMAS "s2:AB=\"0.1\">  <XY Value=\"1.2\"/></machine>";
char const invalid_first[] = DECLARATION TWO_SCHEMAS "s2:AB=\"0.1\">  <XY Value=\"Some Text\"/></machine>";
char const invalid_second[] = DECLARATION TWO_SCHEMAS "s2:AB=\"Some Text\">  <XY Value=\"1.2\"/></machine>";
char const invalid_both[] = DECLARATION TWO_SCHEMAS "s2:AB=\"Some Text\">  <XY Value=\"Some Text\"/></machine>";
#undef TWO_SCHEMAS
#undef XS
#undef TYPE_XY
#undef DECLARATION

apPath schema_file(apString const& base)
{
  return axmUtestUtils::uniquify_filename(base, APSTRING("xsd"));
}

apPath document_file(apString const& base)
{
  return axmUtestUtils::uniquify_filename(base, APSTRING("xml"));
}

axmLoadOptions with_schema(apPath const& schema_path)
{
  axmLoadOptions options(axmValidateWithSchemas);
  options.add_external_schema(APSTRING("x-schema:MySchema.xsd"), schema_path);
  return options;
}

axmLoadOptions with_nons_schema(apPath const& schema_path)
{
  axmLoadOptions options(axmValidateWithSchemas);
  options.set_no_namespace_schema(schema_path);
  return options;
}

void check_fails_with_error(axmDocumentFactory const& factory, axmUtestGroup const& group,
  axmLoadOptions const& options, apPath const& path, char const* description)
{
  {
    axmParseError error;
    auto const document = factory.loadDocument(bytes_of(missing_schema_document), options, error);
    group.check(document == nullptr, "!document.get()", __LINE__, description);
    group.check(!error.invalid(), "!error.invalid()", __LINE__, description);
  }
  axmUtestFile const removed_at_the_end(path);
  axmUtestUtils::write_data(path, missing_schema_document);
  axmParseError error;
  auto const document = factory.loadDocument(path, options, error);
  group.check(document == nullptr, "!document.get()", __LINE__, description);
  group.check(!error.invalid(), "!error.invalid()", __LINE__, description);
}
}

axmValidationUtest::axmValidationUtest(utUnitTest* given) : tester(given) {}

axmValidationUtest::~axmValidationUtest() = default;

void axmValidationUtest::run_tests(axmDocumentFactory const& factory) const
{
  using Utest = axmValidationUtest;
  axmUtestEntry<Utest, axmDocumentFactory const&> const groups[] = {
    {&Utest::test_missing_schema, "axmValidationUtest::test_missing_schema"},
    {&Utest::test_missing_nons_schema, "axmValidationUtest::test_missing_nons_schema"},
    {&Utest::test_simple_schema_path, "axmValidationUtest::test_simple_schema_path"},
    {&Utest::test_simple_nons_schema_path, "axmValidationUtest::test_simple_nons_schema_path"},
    {&Utest::test_spaces_in_schema, "axmValidationUtest::test_spaces_in_schema"},
    {&Utest::test_spaces_in_nons_schema, "axmValidationUtest::test_spaces_in_nons_schema"},
    {&Utest::test_nb_spaces_in_schema, "axmValidationUtest::test_nb_spaces_in_schema"},
    {&Utest::test_nb_spaces_in_nons_schema, "axmValidationUtest::test_nb_spaces_in_nons_schema"},
    {&Utest::test_mixed_spaces_in_schema, "axmValidationUtest::test_mixed_spaces_in_schema"},
    {&Utest::test_mixed_spaces_in_nons_schema, "axmValidationUtest::test_mixed_spaces_in_nons_schema"},
    {&Utest::test_percent_in_schema, "axmValidationUtest::test_percent_in_schema"},
    {&Utest::test_percent_in_nons_schema, "axmValidationUtest::test_percent_in_nons_schema"},
    {&Utest::test_cyrillic_in_schema, "axmValidationUtest::test_cyrillic_in_schema"},
    {&Utest::test_cyrillic_in_nons_schema, "axmValidationUtest::test_cyrillic_in_nons_schema"},
    {&Utest::test_multiple_schemas, "axmValidationUtest::test_multiple_schemas"},
  };
  axm_run_groups(*this, factory, groups, tester, file);
}

void axmValidationUtest::test_missing_schema(axmDocumentFactory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmValidationUtest::test_missing_schema");
  check_fails_with_error(factory, group, with_schema(apPath("./does_not_exist.xsd")),
    document_file(APSTRING("./missing_schema")), "test error when schema missing");
}

void axmValidationUtest::test_missing_nons_schema(axmDocumentFactory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmValidationUtest::test_missing_nons_schema");
  check_fails_with_error(factory, group, with_nons_schema(apPath("./do_not_exist.xsd")),
    document_file(APSTRING("./missing_nons_schema")), "test error when no namespace schema missing");
}

void axmValidationUtest::test_simple_schema_path(axmDocumentFactory const& factory) const
{
  run_schema_test(factory, schema_file(APSTRING("./nospacesinname")), "simple path");
}

void axmValidationUtest::test_simple_nons_schema_path(axmDocumentFactory const& factory) const
{
  run_nons_schema_test(factory, schema_file(APSTRING("./nonsnospacesinname")), "simple path");
}

void axmValidationUtest::test_spaces_in_schema(axmDocumentFactory const& factory) const
{
  run_schema_test(factory, schema_file(APSTRING("./spaces in name")), "spaces");
}

void axmValidationUtest::test_spaces_in_nons_schema(axmDocumentFactory const& factory) const
{
  run_nons_schema_test(factory, schema_file(APSTRING("./nons spaces in name")), "spaces");
}

void axmValidationUtest::test_nb_spaces_in_schema(axmDocumentFactory const& factory) const
{
  run_schema_test(factory, schema_file(APSTRING("./nb\u00A0spaces\u00A0in\u00A0name")), "non-breaking spaces");
}

void axmValidationUtest::test_nb_spaces_in_nons_schema(axmDocumentFactory const& factory) const
{
  run_nons_schema_test(
    factory, schema_file(APSTRING("./nons\u00A0nb\u00A0spaces\u00A0in\u00A0name")), "non-breaking spaces");
}

void axmValidationUtest::test_mixed_spaces_in_schema(axmDocumentFactory const& factory) const
{
  run_schema_test(factory, schema_file(APSTRING("./mixed spaces\u00A0in name")), "mixed spaces");
}

void axmValidationUtest::test_mixed_spaces_in_nons_schema(axmDocumentFactory const& factory) const
{
  run_nons_schema_test(factory, schema_file(APSTRING("./nons\u00A0mixed spaces\u00A0in name")), "mixed spaces");
}

void axmValidationUtest::test_percent_in_schema(axmDocumentFactory const& factory) const
{
  run_schema_test(factory, schema_file(APSTRING("./percent%20in%20name")), "percent");
}

void axmValidationUtest::test_percent_in_nons_schema(axmDocumentFactory const& factory) const
{
  run_nons_schema_test(factory, schema_file(APSTRING("./nons%20percent%20in%20name")), "percent");
}

void axmValidationUtest::test_cyrillic_in_schema(axmDocumentFactory const& factory) const
{
  run_schema_test(factory, schema_file(APSTRING("./cyrillic_\u0444_in_name")), "cyrillic U+0444");
}

void axmValidationUtest::test_cyrillic_in_nons_schema(axmDocumentFactory const& factory) const
{
  run_nons_schema_test(factory, schema_file(APSTRING("./nons_cyrillic_\u0444_in_name")), "cyrillic U+0444");
}

void axmValidationUtest::test_multiple_schemas(axmDocumentFactory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmValidationUtest::test_multiple_schemas");
  apPath const first_path = schema_file(APSTRING("./MySchema1"));
  apPath const second_path = schema_file(APSTRING("./MySchema2"));
  axmUtestFile const first_removed_at_the_end(first_path);
  axmUtestFile const second_removed_at_the_end(second_path);
  axmUtestUtils::write_data(first_path, first_schema);
  axmUtestUtils::write_data(second_path, second_schema);
  auto const options = [&first_path, &second_path]
  {
    axmLoadOptions both(axmValidateWithSchemas);
    both.add_external_schema(APSTRING("x-schema:MySchema1.xsd"), first_path);
    both.add_external_schema(APSTRING("x-schema:MySchema2.xsd"), second_path);
    return both;
  };
  {
    axmParseError error;
    auto const document = factory.loadDocument(bytes_of(valid_both), options(), error);
    group.check(document != nullptr, "document.get()", __LINE__, "test valid xml");
  }
  auto const check_invalid = [&](char const* text, char const* description)
  {
    axmParseError error;
    auto const document = factory.loadDocument(bytes_of(text), options(), error);
    group.check(document == nullptr, "!document.get()", __LINE__, description);
    group.check(!error.invalid(), "!error.invalid()", __LINE__, "test error with invalid data");
  };
  check_invalid(invalid_first, "test invalid xml | first schema");
  check_invalid(invalid_second, "test invalid xml | second schema");
  check_invalid(invalid_both, "test invalid xml | both schemas");
}

void axmValidationUtest::run_schema_test(
  axmDocumentFactory const& factory, apPath const& schema_path, char const* description) const
{
  axmUtestGroup const group(tester, file, "axmValidationUtest::run_schema_test");
  axmUtestFile const removed_at_the_end(schema_path);
  axmUtestUtils::write_data(schema_path, namespace_schema);
  {
    axmParseError error;
    auto const document = factory.loadDocument(bytes_of(valid_namespaced), with_schema(schema_path), error);
    group.check(
      document != nullptr, "document.get()", __LINE__, utUnitTest::build_varargs("test valid xml | %s", description));
  }
  axmParseError error;
  auto const document = factory.loadDocument(bytes_of(invalid_namespaced), with_schema(schema_path), error);
  group.check(
    document == nullptr, "!document.get()", __LINE__, utUnitTest::build_varargs("test invalid xml | %s", description));
}

void axmValidationUtest::run_nons_schema_test(
  axmDocumentFactory const& factory, apPath const& schema_path, char const* description) const
{
  axmUtestGroup const group(tester, file, "axmValidationUtest::run_nons_schema_test");
  axmUtestFile const removed_at_the_end(schema_path);
  axmUtestUtils::write_data(schema_path, no_namespace_schema);
  {
    axmParseError error;
    auto const document = factory.loadDocument(bytes_of(valid_no_namespace), with_nons_schema(schema_path), error);
    group.check(
      document != nullptr, "document.get()", __LINE__, utUnitTest::build_varargs("test valid xml | %s", description));
  }
  axmParseError error;
  auto const document = factory.loadDocument(bytes_of(invalid_no_namespace), with_nons_schema(schema_path), error);
  group.check(
    document == nullptr, "!document.get()", __LINE__, utUnitTest::build_varargs("test invalid xml | %s", description));
}
