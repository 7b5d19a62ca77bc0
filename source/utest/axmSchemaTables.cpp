#include "axmSchemaTables.h"

#include "axmUtestUtils.h"
#include "axmXmlTables.h"
#include "model/axmModelText.h"

#include <utUnitTest.h>

#include <algorithm>

using namespace axmSchemaTables;
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

char const letters[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
char const name_characters[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_-.";

bool has(std::string const& text, std::string const& part)
{
  return text.find(part) != std::string::npos;
}

// The path of a constraint with the prefix t: at every name of an element.
std::string with_prefixes(std::string const& path)
{
  std::string result;
  bool is_attribute = false;
  for (std::size_t at = 0; at < path.size();)
  {
    std::size_t const end = std::min(path.find_first_not_of(name_characters, at), path.size());
    bool const is_name = std::string(letters).find(path[at]) != std::string::npos;
    bool const is_axis = is_name && path.compare(end, 2, "::") == 0;
    if (is_name && !is_axis && !is_attribute)
      result += "t:";
    is_attribute = path[at] == '@' || (is_axis ? path.compare(at, end - at, "attribute") == 0
                                               : is_attribute && (path[at] == ':' || path[at] == ' '));
    std::size_t const next = is_name ? end : at + 1;
    result += path.substr(at, next - at);
    at = next;
  }
  return result;
}

std::string with_prefixed_paths(std::string schema)
{
  static std::string const begin = "xpath='";
  for (std::size_t at = schema.find(begin); at != std::string::npos; at = schema.find(begin, at))
  {
    at += begin.size();
    std::size_t const size = schema.find('\'', at) - at;
    schema.replace(at, size, with_prefixes(schema.substr(at, size)));
  }
  return schema;
}

// Whether an attribute is declared at the beginning or beside an element, where none of a type can be.
bool has_global_attribute(std::string const& schema)
{
  for (std::size_t at = schema.find("<xs:attribute "); at != std::string::npos;
       at = schema.find("<xs:attribute ", at + 1))
  {
    std::size_t const before = at > 0 ? schema.rfind('<', at - 1) : std::string::npos;
    if (before == std::string::npos || schema.compare(before, 11, "<xs:element") == 0 ||
        schema.compare(before, 12, "</xs:element") == 0)
      return true;
  }
  return false;
}

// In a target namespace, global attributes and wildcards that name namespaces are about other documents.
bool is_same_in_namespace(std::string const& schema)
{
  return !has(schema, " namespace='") && !has(schema, "<xs:attribute ref='") && !has_global_attribute(schema);
}

bool is_same_in_namespace(std::vector<std::string> const& documents)
{
  return std::none_of(documents.begin(), documents.end(),
    [](std::string const& text) { return has(text, "xmlns='") || text.compare(0, 1, "<") != 0; });
}

std::string in_namespace(std::string text)
{
  std::size_t const name = text.find_first_of(letters);
  std::size_t const end = text.find_first_of(" />\t\n", name);
  return name == std::string::npos || end == std::string::npos ? text : text.insert(end, " xmlns='urn:t'");
}

std::vector<std::string> in_namespace(std::vector<std::string> documents)
{
  for (std::string& text : documents)
    text = in_namespace(text);
  return documents;
}

bool are_judged(utUnitTest& tester, axmDocumentFactory const& factory, axmLoadOptions const& options, Rule const& rule)
{
  bool are_right = true;
  for (std::string const& document : rule.valid)
    are_right = is_judged(tester, factory, options, declared(document), true) && are_right;
  for (std::string const& document : rule.invalid)
    are_right = is_judged(tester, factory, options, declared(document), false) && are_right;
  return are_right;
}

bool is_told(utUnitTest& tester, axmParseError const& error, bool is_loaded, std::string const& text, bool is_valid)
{
  if (is_loaded == is_valid && is_loaded == error.invalid())
    return true;
  tester.printf("%s: %s", is_loaded ? "is loaded, but not valid" : "is valid, but not loaded",
    axmModelText::quoted(apString(text.c_str()).view()).c_str());
  tester.printf("Error was \"%s\"", error.message().to_utf8().c_str());
  return false;
}

using Writing = std::string (*)(std::string const& text);

std::string in_two_bytes(std::string const& text)
{
  return axmXmlTables::in_utf16(text, false);
}

std::string in_latin(std::string const& text)
{
  bool const is_ascii = std::all_of(text.begin(), text.end(), [](char character) { return (character & 0x80) == 0; });
  return is_ascii ? "<?xml version='1.0' encoding='ISO-8859-1'?>" + text : text;
}

bool are_judged_as(utUnitTest& tester, axmDocumentFactory const& factory, axmLoadOptions const& options,
  Rule const& rule, Writing writing)
{
  bool are_right = true;
  for (bool const is_valid : {true, false})
    for (std::string const& document : is_valid ? rule.valid : rule.invalid)
    {
      std::string const text = declared(document);
      std::string const bytes = writing(text);
      axmParseError error;
      bool const is_loaded = factory.loadDocument(apByteArray(bytes.data(), bytes.size()), options, error) != nullptr;
      are_right = is_told(tester, error, is_loaded, text, is_valid) && are_right;
    }
  return are_right;
}

// From files, with a document type before what they hold.
bool are_judged_from_files(
  utUnitTest& tester, axmDocumentFactory const& factory, axmLoadOptions const& options, Rule const& rule)
{
  apPath const path = axmUtestUtils::uniquify_filename(APSTRING("./schema_document"), APSTRING("xml"));
  axmUtestFile const removed_at_the_end(path);
  bool are_right = true;
  for (bool const is_valid : {true, false})
    for (std::string const& document : is_valid ? rule.valid : rule.invalid)
    {
      std::string const text = "<!DOCTYPE any [<!ENTITY none ''>]>" + declared(document);
      axmUtestUtils::write_data(path, text.c_str());
      axmParseError error;
      bool const is_loaded = factory.loadDocument(path, options, error) != nullptr;
      are_right = is_told(tester, error, is_loaded, text, is_valid) && are_right;
    }
  return are_right;
}

std::string with_other_quotes(std::string text)
{
  if (!has(text, "\""))
    std::replace(text.begin(), text.end(), '\'', '"');
  return text;
}

// Written with the other quotes.
Rule requoted(Rule rule)
{
  rule.schema = with_other_quotes(rule.schema);
  for (std::vector<std::string>* const documents : {&rule.valid, &rule.invalid})
    for (std::string& text : *documents)
      text = with_other_quotes(text);
  return rule;
}

axmLoadOptions options_with(apString const& name_space, apPath const& schema)
{
  axmLoadOptions options(axmValidateWithSchemas);
  options.add_external_schema(name_space, schema);
  return options;
}

char const declared_prefixes[] = "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' xmlns:t='urn:t' "
                                 "elementFormDefault='qualified'";

bool is_told(utUnitTest& tester, bool is_right, char const* how, Rule const& rule)
{
  if (!is_right)
    tester.printf("under the schema, %s, %s", how, rule.schema.c_str());
  return is_right;
}

// Inside of an element of another namespace, whose schema imports the one of the documents.
Rule wrapped(Rule rule)
{
  for (std::vector<std::string>* const documents : {&rule.valid, &rule.invalid})
    for (std::string& text : *documents)
      text = "<m:m xmlns:m='urn:m'>" + declared(text) + "</m:m>";
  return rule;
}

bool can_be_wrapped(std::vector<std::string> const& documents)
{
  return std::all_of(documents.begin(), documents.end(),
    [](std::string const& text) { return text.size() > 1 && has(letters, text.substr(1, 1)); });
}

// The documents and the schema in a target namespace: the schema by itself; without its own, included by another one;
// imported by one of another namespace.
bool is_kept_in_namespace(utUnitTest& tester, axmDocumentFactory const& factory, Rule const& rule)
{
  if (!is_same_in_namespace(rule.schema) || !is_same_in_namespace(rule.valid) || !is_same_in_namespace(rule.invalid))
    return true;
  Rule const other{with_prefixed_paths(rule.schema), in_namespace(rule.valid), in_namespace(rule.invalid)};
  Rule const with_quotes = requoted(other);
  std::string const begin = declared_prefixes;
  std::string const target = " targetNamespace='urn:t'";
  SchemaFile const whole("target", begin + target + " xmlns='urn:t'>" + other.schema + "</xs:schema>");
  SchemaFile const part("part", begin + ">" + with_quotes.schema + "</xs:schema>");
  SchemaFile const including(
    "including", begin + target + "><xs:include schemaLocation='" + part.path.path().c_str() + "'/></xs:schema>");
  SchemaFile const importing("importing",
    begin + " targetNamespace='urn:m'><xs:import namespace='urn:t' schemaLocation='" + whole.path.path().c_str() +
      "'/><xs:element name='m'><xs:complexType><xs:sequence><xs:any namespace='urn:t'/></xs:sequence></xs:complexType>"
      "</xs:element></xs:schema>");
  bool const is_right = are_judged_from_files(tester, factory, options_with(APSTRING("urn:t"), whole.path), other);
  bool const is_right_included =
    are_judged(tester, factory, options_with(APSTRING("urn:t"), including.path), with_quotes);
  bool const is_right_imported =
    !can_be_wrapped(other.valid) || !can_be_wrapped(other.invalid) ||
    are_judged_as(tester, factory, options_with(APSTRING("urn:m"), importing.path), wrapped(other), in_two_bytes);
  return is_told(tester, is_right, "in the namespace urn:t", other) &&
         is_told(tester, is_right_included, "included in one of the namespace urn:t", with_quotes) &&
         is_told(tester, is_right_imported, "imported by one of the namespace urn:m", other);
}

char const begin_of_v[] = "<xs:element name='v'";
char const end_of_element[] = "</xs:element>";

// Whether all there is is an element v of a simple type.
bool is_of_simple_type(std::string const& schema)
{
  std::size_t const at = schema.find(begin_of_v);
  bool const is_only_one = at != std::string::npos && schema.find("<xs:element", at + 1) == std::string::npos &&
                           schema.find("<xs:element") == at;
  for (char const* const part :
    {"<xs:complexType", "nillable=", "default=", "fixed=", "<xs:key", "<xs:unique", "block="})
    if (has(schema, part))
      return false;
  return is_only_one;
}

// The values of those elements v that can be values of an attribute as they are.
std::vector<std::string> in_attributes(std::vector<std::string> const& documents)
{
  std::vector<std::string> found;
  for (std::string const& text : documents)
  {
    bool const is_plain =
      text.size() >= 7 && text.compare(0, 3, "<v>") == 0 && text.compare(text.size() - 4, 4, "</v>") == 0;
    std::string const value = is_plain ? text.substr(3, text.size() - 7) : "";
    if (is_plain && value.find_first_of("<'\t\r\n") == std::string::npos)
      found.push_back("<v a='" + value + "'/>");
  }
  return found;
}

// The values of elements v that are plain text, with a comment, an instruction and a section in their middle.
std::vector<std::string> in_pieces(std::vector<std::string> const& documents)
{
  std::vector<std::string> found;
  for (std::string const& text : documents)
  {
    bool const is_plain = text.size() > 9 && text.compare(0, 3, "<v>") == 0 &&
                          text.find_first_of("<&]>", 3) == text.size() - 4 && text[4] > 0 && text[5] > 0 && text[6] > 0;
    if (is_plain)
      found.push_back(text.substr(0, 4) + "<!--1-->" + text.substr(4, 1) + "<?p 1?>" + text.substr(5, 1) + "<![CDATA[" +
                      text.substr(6, text.size() - 10) + "]]></v>");
  }
  return found;
}

// The same values in pieces.
bool is_kept_in_pieces(utUnitTest& tester, axmDocumentFactory const& factory, Rule const& rule)
{
  if (!is_of_simple_type(rule.schema))
    return true;
  Rule const other{rule.schema, in_pieces(rule.valid), in_pieces(rule.invalid)};
  SchemaFile const file("pieces", schema_of(other.schema));
  return is_told(
    tester, are_judged(tester, factory, axmSchemaTables::options_with(file.path), other), "in pieces", other);
}

// The same type as that of an attribute.
bool is_kept_in_attributes(utUnitTest& tester, axmDocumentFactory const& factory, Rule const& rule)
{
  if (!is_of_simple_type(rule.schema))
    return true;
  std::string schema = rule.schema;
  std::size_t const begin = schema.find(begin_of_v);
  std::size_t end = schema.find(end_of_element, begin);
  bool const is_empty = end == std::string::npos;
  end = is_empty ? schema.find("/>", begin) + 2 : end + sizeof end_of_element - 1;
  std::string attribute = schema.substr(begin, end - begin);
  attribute.replace(0, sizeof begin_of_v - 1, "<xs:attribute name='a'");
  if (!is_empty)
    attribute.replace(attribute.size() + 1 - sizeof end_of_element, sizeof end_of_element - 1, "</xs:attribute>");
  schema.replace(
    begin, end - begin, "<xs:element name='v'><xs:complexType>" + attribute + "</xs:complexType></xs:element>");
  Rule const other{schema, in_attributes(rule.valid), in_attributes(rule.invalid)};
  SchemaFile const file("attribute", schema_of(other.schema));
  axmLoadOptions const options = axmSchemaTables::options_with(file.path);
  return is_told(tester, are_judged_as(tester, factory, options, other, in_latin), "of an attribute", other);
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
  return is_told(tester, error, is_loaded, text, is_valid);
}

bool axmSchemaTables::is_kept(utUnitTest& tester, axmDocumentFactory const& factory, Rule const& rule)
{
  SchemaFile const schema("table", schema_of(rule.schema));
  axmLoadOptions const options = options_with(schema.path);
  bool const are_right = are_judged(tester, factory, options, rule);
  if (!are_right)
    tester.printf("under the schema %s", rule.schema.c_str());
  bool const are_right_elsewhere = is_kept_in_namespace(tester, factory, rule) &&
                                   is_kept_in_attributes(tester, factory, rule) &&
                                   is_kept_in_pieces(tester, factory, rule);
  return are_right && are_right_elsewhere;
}

void axmSchemaTables::check_cases(
  axmUtestGroup const& group, utUnitTest& tester, axmDocumentFactory const& factory, std::vector<Case> const& cases)
{
  for (auto const& [description, rule] : cases)
    group.check(is_kept(tester, factory, rule), all_are_judged, __LINE__, description);
}
