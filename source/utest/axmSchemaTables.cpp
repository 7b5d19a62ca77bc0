#include "axmSchemaTables.h"

#include "axmUtestUtils.h"
#include "model/axmModelText.h"

#include <utUnitTest.h>

using namespace axmUtestAccess;

namespace
{
// The document with what declares the prefixes that it may say, in the tag of its root.
std::string declared(std::string text)
{
  if (text.find("xsi:") == std::string::npos)
    return text;
  std::size_t const name = text.find_first_of("abcdefghijklmnopqrstuvwxyz", text.find('<'));
  return text.insert(text.find_first_of(" />", name), " xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' "
                                                      "xmlns:xs='http://www.w3.org/2001/XMLSchema'");
}
}

std::string axmSchemaTables::typed(char const* type)
{
  std::string const of_type = std::string(" type='") + type + "'/>";
  return "<xs:element name='v'" + of_type + "<xs:element name='w'><xs:complexType><xs:attribute name='a'" + of_type +
         "</xs:complexType></xs:element>";
}

std::string axmSchemaTables::restricted(char const* base, char const* facets)
{
  return std::string("<xs:element name='v'><xs:simpleType><xs:restriction base='") + base + "'>" + facets +
         "</xs:restriction></xs:simpleType></xs:element>";
}

std::string axmSchemaTables::schema_of(std::string const& content)
{
  return "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>" + content + "</xs:schema>";
}

axmSchemaTables::SchemaFile::SchemaFile(char const* name, std::string const& text)
  : path(axmUtestUtils::uniquify_filename(apString((std::string("./schema_") + name).c_str()), APSTRING("xsd"))),
    removed_at_the_end(path)
{
  axmUtestUtils::write_data(path, text.c_str());
}

axmLoadOptions axmSchemaTables::options_with(apPath const& schema)
{
  axmLoadOptions options(axmValidateWithSchemas);
  options.set_no_namespace_schema(schema);
  return options;
}

bool axmSchemaTables::is_judged(utUnitTest& tester, axmDocumentFactory const& factory, axmLoadOptions const& options,
  std::string const& text, bool is_valid)
{
  axmParseError error;
  bool const is_loaded = factory.loadDocument(bytes_of(text.c_str()), options, error) != nullptr;
  if (is_loaded == is_valid && is_loaded == error.invalid())
    return true;
  tester.printf("%s: %s", is_loaded ? "is loaded, but not valid" : "is valid, but not loaded",
    axmModelText::quoted(apString(text.c_str()).view()).c_str());
  tester.printf("Error was \"%s\"", error.message().to_utf8().c_str());
  return false;
}

bool axmSchemaTables::is_kept(utUnitTest& tester, axmDocumentFactory const& factory, Rule const& rule)
{
  SchemaFile const schema("table", schema_of(rule.schema));
  axmLoadOptions const options = options_with(schema.path);
  bool are_right = true;
  for (std::string const& document : rule.valid)
    are_right = is_judged(tester, factory, options, declared(document), true) && are_right;
  for (std::string const& document : rule.invalid)
    are_right = is_judged(tester, factory, options, declared(document), false) && are_right;
  if (!are_right)
    tester.printf("under the schema %s", rule.schema.c_str());
  return are_right;
}

void axmSchemaTables::check_cases(
  axmUtestGroup const& group, utUnitTest& tester, axmDocumentFactory const& factory, std::vector<Case> const& cases)
{
  for (auto const& [description, rule] : cases)
    group.check(is_kept(tester, factory, rule), all_are_judged, __LINE__, description);
}
